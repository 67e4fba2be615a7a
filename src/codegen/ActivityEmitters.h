#pragma once

#include "codegen/CodeBuffer.h"

#include <cstdint>
#include <string>

namespace flowloom {

class AddRecord;
class Convert;
class MailMerge;
class Options;
class PrintOut;
class SaveAs;
class SendFax;
class SendMail;

// The property assignments of one activity inside its `With` block, at an
// indent of 8 (12 inside a nested `With`). Each emitter reports its own
// failure under "CGenerateCode" and its name; the lines written so far stay.
void SetMailMerge(CodeBuffer& out, const MailMerge& activity);
void SetSaveAs(CodeBuffer& out, const SaveAs& activity);
void SetPrintOut(CodeBuffer& out, const PrintOut& activity);
// The PostScript printer and the Ghostscript program come from `options`
// (may be null), so the macro carries the settings of this machine.
void SetConvert(CodeBuffer& out, const Convert& activity, const Options* options);
// `count`: the number of the activity among the mails, which names its lists.
void SetSendMail(CodeBuffer& out, const SendMail& activity, std::int32_t count, const std::string& mainDataSourceName);
void SetSendFax(CodeBuffer& out, const SendFax& activity);
// Numbers its field values on from `fieldValueCounter`, which it raises.
void SetAddRecord(CodeBuffer& out, const AddRecord& activity, std::int32_t& fieldValueCounter,
                  const std::string& mainDataSourceName);

}  // namespace flowloom
