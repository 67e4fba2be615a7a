#include "model/Activities.h"

#include "support/TextCompare.h"
#include "model/AddRecord.h"
#include "model/Convert.h"
#include "model/MailMerge.h"
#include "model/PrintOut.h"
#include "model/SaveAs.h"
#include "model/SendFax.h"
#include "model/SendMail.h"

namespace flowloom {

std::shared_ptr<Activity> CreateActivity(std::string_view typeName) {
    if (EqualsNoCase(typeName, "MailMerge")) return std::make_shared<MailMerge>();
    if (EqualsNoCase(typeName, "SaveAs")) return std::make_shared<SaveAs>();
    if (EqualsNoCase(typeName, "PrintOut")) return std::make_shared<PrintOut>();
    if (EqualsNoCase(typeName, "Convert")) return std::make_shared<Convert>();
    if (EqualsNoCase(typeName, "SendMail")) return std::make_shared<SendMail>();
    if (EqualsNoCase(typeName, "SendFax")) return std::make_shared<SendFax>();
    if (EqualsNoCase(typeName, "AddRecord")) return std::make_shared<AddRecord>();
    return nullptr;
}

}  // namespace flowloom
