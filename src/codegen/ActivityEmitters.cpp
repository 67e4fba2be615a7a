#include "codegen/ActivityEmitters.h"

#include "support/ReportError.h"
#include "support/VbStrings.h"
#include "model/AddRecord.h"
#include "model/Convert.h"
#include "model/FieldValue.h"
#include "model/MailMerge.h"
#include "model/PrintOut.h"
#include "model/SaveAs.h"
#include "model/SendFax.h"
#include "model/SendMail.h"
#include "model/OptionPlaceholders.h"

#include <string_view>
#include <utility>

namespace flowloom {

namespace {

constexpr int kIndent = 8;
constexpr int kNestedIndent = 12;
constexpr std::int32_t kWord = 1;
constexpr std::int32_t kExcel = 2;

// An emitter's failure is reported under this module; the lines written
// before it stay in the buffer.
constexpr const char* kModule = "CGenerateCode";

// One pass-through argument: its member in the macro and whether it is quoted.
template <typename Arg>
struct ArgLine {
    Arg arg;
    const char* member;
    bool quoted;
};

template <typename Activity, typename Arg, std::size_t N>
void ArgumentLines(CodeBuffer& out, const Activity& activity, const ArgLine<Arg> (&lines)[N]) {
    for (const auto& line : lines) {
        const std::string text = activity.Argument(line.arg).Text();
        if (line.quoted) out.QuotedIfSet(kIndent, line.member, text);
        else out.PlainIfSet(kIndent, line.member, text);
    }
}

constexpr ArgLine<SaveAsArg> kSaveAsWordLines[] = {
    {SaveAsArg::LockComments, ".LockComments", false},
    {SaveAsArg::Password, ".Password", true},
    {SaveAsArg::AddToRecentFiles, ".AddToRecentFiles", false},
    {SaveAsArg::WritePassword, ".WritePassword", true},
    {SaveAsArg::ReadOnlyRecommended, ".ReadOnlyRecommended", false},
    {SaveAsArg::EmbedTrueTypeFonts, ".EmbedTrueTypeFonts", false},
    {SaveAsArg::SaveNativePictureFormat, ".SaveNativePictureFormat", false},
    {SaveAsArg::SaveFormsData, ".SaveFormsData", false},
    {SaveAsArg::SaveAsAOCELetter, ".SaveAsAOCELetter", false},
    {SaveAsArg::Encoding, ".Encoding", false},
    {SaveAsArg::InsertLineBreaks, ".InsertLineBreaks", false},
    {SaveAsArg::AllowSubstitutions, ".AllowSubstitutions", false},
    {SaveAsArg::LineEnding, ".LineEnding", false},
    {SaveAsArg::AddBiDiMarks, ".AddBiDiMarks", false},
};

constexpr ArgLine<SaveAsArg> kSaveAsExcelLines[] = {
    {SaveAsArg::Password, ".Password", true},
    {SaveAsArg::WritePassword, ".WritePassword", true},
    {SaveAsArg::ReadOnlyRecommended, ".ReadOnlyRecommended", false},
    {SaveAsArg::CreateBackup, ".CreateBackup", false},
    {SaveAsArg::AccessMode, ".AccessMode", false},
    {SaveAsArg::ConflictResolution, ".ConflictResolution", false},
    {SaveAsArg::AddToMru, ".AddToMru", false},
    {SaveAsArg::TextCodepage, ".TextCodepage", true},
    {SaveAsArg::TextVisualLayout, ".TextVisualLayout", false},
    {SaveAsArg::Local_, ".Local_", false},
};

constexpr ArgLine<PrintOutArg> kPrintOutCommonLines[] = {
    {PrintOutArg::PrintToFile, ".PrintToFile", false},
    {PrintOutArg::OutputFileName, ".OutputFileName", true},
    {PrintOutArg::From, ".From", false},
    {PrintOutArg::To_, ".To_", false},
    {PrintOutArg::Copies, ".Copies", false},
    {PrintOutArg::Collate, ".Collate", false},
};

constexpr ArgLine<PrintOutArg> kPrintOutWordLines[] = {
    {PrintOutArg::Background, ".Background", false},
    {PrintOutArg::Append, ".Append", false},
    {PrintOutArg::Range, ".Range", false},
    {PrintOutArg::Item, ".Item", false},
    {PrintOutArg::Pages, ".Pages", true},
    {PrintOutArg::PageType, ".PageType", false},
    {PrintOutArg::ManualDuplexPrint, ".ManualDuplexPrint", false},
    {PrintOutArg::PrintZoomColumn, ".PrintZoomColumn", false},
    {PrintOutArg::PrintZoomRow, ".PrintZoomRow", false},
    {PrintOutArg::PrintZoomPaperWidth, ".PrintZoomPaperWidth", false},
    {PrintOutArg::PrintZoomPaperHeight, ".PrintZoomPaperHeight", false},
};

constexpr ArgLine<PrintOutArg> kPrintOutExcelLines[] = {
    {PrintOutArg::Preview, ".Preview", false},
    {PrintOutArg::IgnorePrintAreas, ".IgnorePrintAreas", false},
};

// A value of the options; a failure to read it counts as no value.
std::string OptionOrEmpty(const Options* options, std::string_view name) {
    try {
        return OptionValue(options, "ConvertingPostscriptToPDF", name);
    } catch (...) {
        return {};
    }
}

// Escapes the double quotes of a text for a quoted string of the macro.
std::string DoubleQuotes(std::string_view text) { return vb::Replace(text, "\"", "\"\""); }

void RecipientLines(CodeBuffer& out, const std::string& text, std::string_view list, std::string_view assignment,
                    const std::string& count) {
    if (text.empty()) return;
    const std::string variable = std::string(list) + count;
    out.Line(kIndent, "Set " + variable + " = New velorin.List");
    out.Quoted(kIndent, variable + ".ValueList", text);
    out.Line(kIndent, std::string(assignment) + variable);
}

void MailAccountLines(CodeBuffer& out, const SendMail& activity) {
    const std::int32_t application = activity.MailApplication();
    if (application != 0)
        out.Line(kIndent, ".MailApplication = " + std::to_string(application) +
                              " '0 - Default Mail Application; 1 - Outlook; 2 - CDO; 3 - Groupwise");
    if (application == 2 || application == 0) {
        out.QuotedIfSet(kIndent, ".SMTPServer", activity.SMTPServer);
        if (activity.SMTPServerPort != "25") out.QuotedIfSet(kIndent, ".SMTPServerPort", activity.SMTPServerPort);
        out.QuotedIfSet(kIndent, ".SendUsername", activity.SendUsername);
        out.QuotedIfSet(kIndent, ".SendPassword", activity.SendPassword);
        out.QuotedIfSet(kIndent, ".From", activity.From);
        out.QuotedIfSet(kIndent, ".Charset", activity.Charset);
    } else if (application == 3) {
        out.QuotedIfSet(kIndent, ".SendUsername", activity.SendUsername);
        out.QuotedIfSet(kIndent, ".SendPassword", activity.SendPassword);
    }
}

}  // namespace

void SetMailMerge(CodeBuffer& out, const MailMerge& activity) {
    Guarded(kModule, "SetMailMerge", [&] {
        out.QuotedIfSet(kIndent, ".Description", activity.Description());
        out.QuotedIfSet(kIndent, ".InvokedApplication", activity.InvokedApplication());
        out.QuotedIfSet(kIndent, ".Template", activity.Template());
        out.QuotedIfSet(kIndent, ".DatasourceName", activity.DatasourceName());
        out.QuotedIfSet(kIndent, ".Iteration", activity.Iteration());
        out.QuotedIfSet(kIndent, ".OutputDocumentName", activity.OutputDocumentName());
        out.Plain(kIndent, ".ShowDocument", BoolText(activity.ShowDocument()));
        if (activity.MailMergeType() != 0)
            out.Line(kIndent, ".MailMergeType = " + std::to_string(activity.MailMergeType()) +
                                  " '0 - Document; 1 - Listing; 2 - Labels");
        if (!activity.InsertPagebreak()) out.Plain(kIndent, ".InsertPagebreak", BoolText(false));
        out.QuotedIfSet(kIndent, ".PrecededBy", activity.PrecededBy());
        out.QuotedIfSet(kIndent, ".SucceededBy", activity.SucceededBy());
    });
}

void SetSaveAs(CodeBuffer& out, const SaveAs& activity) {
    Guarded(kModule, "SetSaveAs", [&] {
        out.QuotedIfSet(kIndent, ".Description", activity.Description());
        out.QuotedIfSet(kIndent, ".InputDocumentName", activity.InputDocumentName());
        out.QuotedIfSet(kIndent, ".Folder", activity.Folder());
        out.QuotedIfSet(kIndent, ".File", activity.File());
        out.Line(kIndent, ".OverwriteExistingFile = " + std::to_string(activity.OverwriteExistingFile()) +
                              " '0 - Ask For Confirmation; 1 - Overwrite Without Confirmation; 2 - No Overwrite");
        out.PlainIfSet(kIndent, ".FileFormat", activity.Argument(SaveAsArg::FileFormat).Text());
        switch (activity.InputDocumentKind()) {
        case kWord: ArgumentLines(out, activity, kSaveAsWordLines); break;
        case kExcel: ArgumentLines(out, activity, kSaveAsExcelLines); break;
        default: break;
        }
    });
}

void SetPrintOut(CodeBuffer& out, const PrintOut& activity) {
    Guarded(kModule, "SetPrintOut", [&] {
        out.QuotedIfSet(kIndent, ".Description", activity.Description());
        out.QuotedIfSet(kIndent, ".InputDocumentName", activity.InputDocumentName());
        ArgumentLines(out, activity, kPrintOutCommonLines);
        out.QuotedIfSet(kIndent, ".Printer", activity.Printer());
        switch (activity.InputDocumentKind()) {
        case kWord: ArgumentLines(out, activity, kPrintOutWordLines); break;
        case kExcel: ArgumentLines(out, activity, kPrintOutExcelLines); break;
        default: break;
        }
        out.QuotedIfSet(kIndent, ".FileName", activity.Argument(PrintOutArg::FileName).Text());
    });
}

void SetConvert(CodeBuffer& out, const Convert& activity, const Options* options) {
    Guarded(kModule, "SetConvert", [&] {
        out.QuotedIfSet(kIndent, ".Description", activity.Description());
        out.QuotedIfSet(kIndent, ".InputDocumentName", activity.InputDocumentName());
        out.QuotedIfSet(kIndent, ".OutputDocumentName", activity.OutputDocumentName());
        out.QuotedIfSet(kIndent, ".Folder", activity.Folder());
        out.QuotedIfSet(kIndent, ".File", activity.File());
        if (activity.ShowDocument()) out.Line(kIndent, ".ShowDocument = True");
        out.Plain(kIndent, ".PDFConvertingMethod", std::to_string(activity.PDFConvertingMethod()));
        std::string printer = OptionOrEmpty(options, "PostscriptPrinter");
        if (printer.empty()) printer = kDefaultPrinterLabel;
        // The blank in the member's name gives the established two blanks before "=".
        out.Quoted(kIndent, ".PostscriptPrinter ", printer);
        const std::int32_t converter = activity.Postscript2PDFConverter();
        if (converter != 0) out.Plain(kIndent, ".Postscript2PDFConverter", std::to_string(converter));
        if (converter == 2) {
            const std::string ghostscript = OptionOrEmpty(options, "GhostscriptExecutableFile");
            out.QuotedIfSet(kIndent, ".GhostscriptExecutableFile ", ghostscript);
        }
    });
}

void SetSendMail(CodeBuffer& out, const SendMail& activity, std::int32_t count, const std::string& mainDataSourceName) {
    Guarded(kModule, "SetSendMail", [&] {
        out.QuotedIfSet(kIndent, ".Description", activity.Description());
        out.QuotedIfSet(kIndent, ".InputDocumentName", activity.InputDocumentName());
        out.QuotedIfSet(kIndent, ".OutputDocumentName", activity.OutputDocumentName());
        const std::string& datasource = activity.DatasourceName();
        if (datasource != mainDataSourceName) out.QuotedIfSet(kIndent, ".DatasourceName", datasource);
        const std::string n = std::to_string(count);
        RecipientLines(out, activity.RecipientsToText(), "vlkTo", "Set .To_ = ", n);
        RecipientLines(out, activity.RecipientsCCText(), "vlkCC", "Set .CC = ", n);
        RecipientLines(out, activity.RecipientsBCCText(), "vlkBCC", "Set .BCC = ", n);
        // Only subject and body are escaped: they are the texts users type freely.
        out.QuotedIfSet(kIndent, ".Subject", DoubleQuotes(activity.Subject()));
        out.QuotedIfSet(kIndent, ".Body", DoubleQuotes(activity.Body()));
        if (activity.SendMethod() != 0)
            out.Line(kIndent, ".SendMethod = " + std::to_string(activity.SendMethod()) +
                                  " '0 - Send; 1 - Display; 2 - Save");
        MailAccountLines(out, activity);
        if (const auto attachments = activity.Attachments())
            for (const auto& attachment : *attachments) out.Line(kIndent, ".AddAttachment \"" + attachment->name + '"');
    });
}

void SetSendFax(CodeBuffer& out, const SendFax& activity) {
    Guarded(kModule, "SetSendFax", [&] {
        out.QuotedIfSet(kIndent, ".Description", activity.Description());
        out.QuotedIfSet(kIndent, ".InputDocumentName", activity.InputDocumentName());
        out.QuotedIfSet(kIndent, ".Address", activity.Address());
        out.QuotedIfSet(kIndent, ".Subject", activity.Subject());
    });
}

void SetAddRecord(CodeBuffer& out, const AddRecord& activity, std::int32_t& fieldValueCounter,
                  const std::string& mainDataSourceName) {
    Guarded(kModule, "SetAddRecord", [&] {
        out.QuotedIfSet(kIndent, ".Description", activity.Description());
        out.QuotedIfSet(kIndent, ".Database", activity.Database());
        out.QuotedIfSet(kIndent, ".TableName", activity.Tablename());
        if (activity.HasFieldValues() && !activity.FieldValues()->Empty()) {
            // The variables are only assigned: the With does not tie them to
            // the collection, and the run-time expects exactly this block.
            out.Line(kIndent, "With .FieldValues");
            for (const auto& fieldValue : *activity.FieldValues()) {
                const std::string variable = "vlkFieldValue" + std::to_string(++fieldValueCounter);
                out.Quoted(kNestedIndent, variable + ".Field", fieldValue->field);
                out.Plain(kNestedIndent, variable + ".Value", FieldValueText(fieldValue->value));
            }
            out.Line(kIndent, "End With");
        }
        const std::string& datasource = activity.DatasourceName();
        if (datasource != mainDataSourceName) out.QuotedIfSet(kIndent, ".DatasourceName", datasource);
    });
}

}  // namespace flowloom
