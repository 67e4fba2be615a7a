// The rules of the activities: the walk that follows documents from the
// activity that makes them to those that use them, and one rule per type.
#include "verify/ProcessVerifier.h"

#include "app/CDictionary.h"
#include "app/KeyedCollection.h"
#include "model/Activities.h"
#include "model/Datasources.h"
#include "model/Documents.h"
#include "model/List.h"
#include "model/Process.h"
#include "model/Processes.h"
#include "model/VisitActivity.h"
#include "model/OptionPlaceholders.h"
#include "support/FileHelpers.h"
#include "support/Printers.h"
#include "verify/VerifyGuard.h"

namespace flowloom {

using verify_detail::GuardedRule;

namespace {

// InputDocumentName of the types that have one, else "".
std::string InputDocumentNameOf(const Activity& activity) {
    return VisitActivity(activity, []<typename T>(const T& a) -> std::string {
        if constexpr (std::is_base_of_v<FileActivity, T> || std::is_same_v<T, SendFax>) return a.InputDocumentName();
        return {};
    });
}

std::string OutputDocumentNameOf(const Activity& activity) {
    const std::string* name = activity.ProducedDocumentName();
    return name ? *name : std::string();
}

std::string MergeLabel(int ordinal) { return "MailMerge(" + std::to_string(ordinal) + ")"; }

// The documents that mail merges make, with the label of the merge as value.
KeyedCollection<CDictionary> MergeOutputs(const Activities& activities) {
    KeyedCollection<CDictionary> outputs;
    int ordinal = 0;
    for (const auto& activity : activities) {
        const auto* merge = ActivityAs<MailMerge>(activity.get());
        if (!merge) continue;
        ++ordinal;
        const std::string& name = merge->OutputDocumentName();
        // A second merge of the same document is reported by the walk itself.
        if (!name.empty()) outputs.TryAdd(std::make_shared<CDictionary>(CDictionary{name, MergeLabel(ordinal)}), name);
    }
    return outputs;
}

}  // namespace

void ProcessVerifier::VerifyActivities() {
    const auto activities = process_->Activities();
    const KeyedCollection<CDictionary> mergeOutputs = MergeOutputs(*activities);
    KeyedCollection<std::string> createdDocuments;
    int ordinal = 0;
    for (const auto& activity : activities->Snapshot()) {
        GuardedRule("VerifyActivities", [&] {
            const std::string type = activity->ActivityType();
            const std::string input = InputDocumentNameOf(*activity);
            if (!input.empty() && type != "SendMail" && !createdDocuments.Contains(input))
                ReportVerifyError(15, severity::Error, {input, type});
            const std::string output = OutputDocumentNameOf(*activity);
            if (!output.empty() && !createdDocuments.TryAdd(std::make_shared<std::string>(output), output))
                ReportVerifyError(37, severity::Error, {output});

            if (const auto* merge = ActivityAs<MailMerge>(activity.get())) {
                ++ordinal;
                GuardedRule("VerifyMailMerge", [&] { VerifyMailMerge(*merge); });
                // Both neighbours must have been made by now: a SucceededBy
                // document made later is reported as well.
                const std::pair<const std::string*, int> sequence[] = {{&merge->PrecededBy(), 35},
                                                                      {&merge->SucceededBy(), 36}};
                for (const auto& [name, number] : sequence) {
                    if (name->empty() || createdDocuments.Contains(*name)) continue;
                    if (const auto pair = mergeOutputs.Find(*name))
                        ReportVerifyError(34, severity::Error, {MergeLabel(ordinal), pair->value.Text()});
                    else
                        ReportVerifyError(number, severity::Error, {*name});
                }
            } else {
                VerifyActivityRule(*activity);
            }
        });
    }
}

void ProcessVerifier::VerifyActivityRule(const Activity& activity) {
    VisitActivity(activity, Overloaded{
        [this](const MailMerge& a) { GuardedRule("VerifyMailMerge", [&] { VerifyMailMerge(a); }); },
        [this](const SaveAs& a) { GuardedRule("VerifySaveAs", [&] { VerifySaveAs(a); }); },
        [this](const PrintOut& a) { GuardedRule("VerifyPrintOut", [&] { VerifyPrintOut(a); }); },
        [this](const Convert& a) { GuardedRule("VerifyConvert", [&] { VerifyConvert(a); }); },
        [this](const SendMail& a) { GuardedRule("VerifySendMail", [&] { VerifySendMail(a); }); },
        [this](const SendFax& a) { GuardedRule("VerifySendFax", [&] { VerifySendFax(a); }); },
        [this](const AddRecord& a) { GuardedRule("VerifyAddRecord", [&] { VerifyAddRecord(a); }); },
    });
}

void ProcessVerifier::VerifyMailMerge(const MailMerge& activity) {
    if (activity.Template().empty()) ReportVerifyError(16, severity::Error);
    const std::string& datasource = activity.DatasourceName();
    if (!datasource.empty() && !InDatasources(datasource)) ReportVerifyError(18, severity::Error, {datasource});
}

void ProcessVerifier::VerifySaveAs(const SaveAs& activity) {
    const std::string& input = activity.InputDocumentName();
    if (input.empty()) {
        ReportVerifyError(19, severity::Error);
    } else if (!InDocuments(input)) {
        ReportVerifyError(20, severity::Error, {input});
    } else {
        // A mail body can be saved only from Outlook.
        const auto [kind, producer] = process_->ActivityForDocument(input, true);
        const auto* mail = ActivityAs<SendMail>(producer.get());
        if (kind == dockind::MailBody && mail && mail->MailApplication() != 1)
            ReportVerifyError(50, severity::Error, {input});
    }
    if (activity.Folder().empty()) ReportVerifyError(21, severity::Error);
    if (activity.File().empty()) ReportVerifyError(22, severity::Error);
}

void ProcessVerifier::VerifyPrintOut(const PrintOut& activity) {
    const std::string& input = activity.InputDocumentName();
    if (input.empty()) ReportVerifyError(24, severity::Error);
    else if (!InDocuments(input)) ReportVerifyError(25, severity::Error, {input});
}

void ProcessVerifier::VerifySendMail(const SendMail& activity) {
    const std::string& input = activity.InputDocumentName();
    if (!input.empty() && !InDocuments(input)) ReportVerifyError(26, severity::Error, {input});
    const std::string& output = activity.OutputDocumentName();
    if (!output.empty() && activity.MailApplication() != 1) ReportVerifyError(49, severity::Warning, {output});
    if (!activity.To_() || activity.To_()->ValueList().empty()) ReportVerifyError(27, severity::Error);
    if (activity.Subject().empty()) ReportVerifyError(28, severity::Warning);
    if (activity.MailApplication() == 2 && activity.SendMethod() == 2) ReportVerifyError(29, severity::Error);
    if (activity.MailApplication() == 2 && activity.SendMethod() == 1) ReportVerifyError(30, severity::Error);
}

void ProcessVerifier::VerifySendFax(const SendFax& activity) {
    const std::string& input = activity.InputDocumentName();
    if (input.empty()) ReportVerifyError(31, severity::Error);
    else if (!InDocuments(input)) ReportVerifyError(32, severity::Error, {input});
    if (activity.Address().empty()) ReportVerifyError(33, severity::Error);
}

void ProcessVerifier::VerifyAddRecord(const AddRecord& activity) {
    const std::string& datasource = activity.DatasourceName();
    if (!datasource.empty() && !InDatasources(datasource)) ReportVerifyError(53, severity::Error, {datasource});
    if (!activity.Database().empty() && !DatabaseExists(activity.Database()))
        ReportVerifyError(54, severity::Warning, {activity.Database()});
    if (activity.Tablename().empty()) ReportVerifyError(55, severity::Error, {activity.Tablename()});
    if (!activity.HasFieldValues() || activity.FieldValues()->Count() == 0) ReportVerifyError(57, severity::Error);
}

void ProcessVerifier::VerifyConvert(const Convert& activity) {
    const std::string& input = activity.InputDocumentName();
    if (input.empty()) ReportVerifyError(38, severity::Error);
    else if (!InDocuments(input)) ReportVerifyError(39, severity::Error, {input});
    constexpr std::int32_t kPdf = 1;
    constexpr std::int32_t kByPostscript = 2;
    if (activity.OutputFileFormat() == kPdf && activity.PDFConvertingMethod() == kByPostscript)
        VerifyPostscriptConversion(activity);
}

// The printer and the converter come from the file's options: they are
// settings of the machine, not of the activity.
void ProcessVerifier::VerifyPostscriptConversion(const Convert& activity) {
    const auto parent = process_->Parent();
    const Options* options = parent ? parent->Options().get() : nullptr;
    const std::string printer = OptionValue(options, "ConvertingPostscriptToPDF", "PostscriptPrinter");
    if (!printer.empty() && printer != kDefaultPrinterLabel && !PrinterExists(printer))
        ReportVerifyError(42, severity::Error, {printer});
    const std::int32_t converter = activity.Postscript2PDFConverter();
    if (converter == 1 && !DistillerInstalled()) ReportVerifyError(43, severity::Error);
    if (converter != 2 || !parent) return;
    const std::string ghostscript = OptionValue(options, "ConvertingPostscriptToPDF", "GhostscriptExecutableFile");
    if (ghostscript.empty()) ReportVerifyError(44, severity::Error);
    else if (!FileExists(ghostscript)) ReportVerifyError(45, severity::Error, {ghostscript});
}

}  // namespace flowloom
