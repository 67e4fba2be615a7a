#include "verify/ProcessVerifier.h"

#include "app/Downloads.h"
#include "support/TextCompare.h"
#include "support/VbStrings.h"
#include "model/Activities.h"
#include "model/Database.h"
#include "model/Databases.h"
#include "model/Datasources.h"
#include "model/Documents.h"
#include "model/Process.h"
#include "model/Processes.h"
#include "support/FileHelpers.h"
#include "support/PathText.h"
#include "support/Prompts.h"
#include "verify/VerifyGuard.h"
#include "verify/VerifyMessages.h"

namespace flowloom {

using verify_detail::GuardedRule;

bool ProcessVerifier::Run(const std::shared_ptr<const Process>& process) {
    process_ = process;
    findings_.clear();
    try {
        if (!VerifyProcessName()) return true;  // an unnamed process gets that one finding
        VerifyDatasourceCount();
        VerifyMainDatasource();
        VerifyActivityCount();
        VerifyDatabases();
        VerifyDatasources();
        VerifyActivities();
    } catch (const VbError& e) {
        if (e.Number() != kVerifyStopped) throw;
        return false;
    }
    return true;
}

void ProcessVerifier::ReportVerifyError(int number, int severity, const std::vector<std::string>& arguments) {
    std::string text = VerifyMessage(number);
    for (std::size_t i = 0; i < arguments.size(); ++i)
        text = vb::Replace(text, "{%" + std::to_string(i + 1) + "}", arguments[i]);
    if (gather_) {
        findings_.push_back({number, severity, std::move(text)});
        return;
    }
    if (severity != severity::Error) return;
    findings_.push_back({number, severity, text});
    MsgBox(text, msgbox::OKOnly, "Process verifying");
    if (number == verifymsg::DistillerMissing &&
        MsgBox("Do you want to download Ghostscript?", msgbox::YesNo | msgbox::Question) == msgbox::Yes)
        CurrentPrompts().OpenUrl(downloads::kGhostscript);
    if (number == verifymsg::SaveAsPdfMissing &&
        MsgBox("Do you want to download Microsoft Save as PDF add-in?", msgbox::YesNo | msgbox::Question) ==
            msgbox::Yes)
        CurrentPrompts().OpenUrl(downloads::kSaveAsPdf);
    throw VbError(kVerifyStopped, text, "modVerify");
}

bool ProcessVerifier::VerifyProcessName() {
    if (!process_->name().empty()) return true;
    ReportVerifyError(0, severity::Warning);
    return false;
}

void ProcessVerifier::VerifyDatasourceCount() {
    if (process_->Datasources()->Count() == 0) ReportVerifyError(1, severity::Error);
}

void ProcessVerifier::VerifyMainDatasource() {
    const std::string& name = process_->MainDataSourceName();
    if (name.empty()) ReportVerifyError(3, severity::Warning);
    else if (!InDatasources(name)) ReportVerifyError(4, severity::Error, {name});
}

void ProcessVerifier::VerifyActivityCount() {
    if (process_->Activities()->Count() == 0) ReportVerifyError(2, severity::Error);
}

// Every database of the file, not only those the process uses.
void ProcessVerifier::VerifyDatabases() {
    const auto parent = process_->Parent();
    if (!parent || !parent->Databases()) return;
    int index = 0;
    for (const auto& database : *parent->Databases()) {
        ++index;
        GuardedRule("VerifyDatabase", [&] { VerifyDatabase(*database, index); });
    }
}

void ProcessVerifier::VerifyDatabase(const Database& database, int index) {
    if (database.name.empty()) {
        ReportVerifyError(11, severity::Warning, {std::to_string(index)});
        return;
    }
    if (EqualsNoCase(database.name, "CurrentDatabase")) return;
    if (database.Location.empty())
        ReportVerifyError(12, severity::Error, {database.name});
    else if (!FileExists(database.Location))
        ReportVerifyError(13, severity::Error, {database.name, database.Location});
    else if (ApplicationOfExtension(pathtext::GetExtensionName(database.Location), false) != "Microsoft Access")
        ReportVerifyError(14, severity::Error, {database.name, database.Location});
}

void ProcessVerifier::VerifyDatasources() {
    int index = 0;
    for (const auto& datasource : *process_->Datasources()) {
        ++index;
        GuardedRule("VerifyDatasource", [&] { VerifyDatasource(*datasource, index); });
    }
}

void ProcessVerifier::VerifyDatasource(const Datasource& datasource, int index) {
    const std::string number = std::to_string(index);
    if (datasource.name().empty()) ReportVerifyError(5, severity::Warning, {number});
    if (!datasource.Database.empty() && !DatabaseExists(datasource.Database))
        ReportVerifyError(7, severity::Warning, {number, datasource.Database});
    if (!EqualsNoCase(datasource.Type_, "Active Object") && datasource.ObjectName.empty())
        ReportVerifyError(9, severity::Error, {number});
}

bool ProcessVerifier::DatabaseExists(const std::string& name) const {
    const auto parent = process_->Parent();
    if (!parent || !parent->Databases()) return false;
    for (const auto& database : *parent->Databases())
        if (EqualsNoCase(database->name, name)) return true;
    return false;
}

bool ProcessVerifier::InDocuments(const std::string& name) const { return process_->Documents()->Contains(name); }

bool ProcessVerifier::InDatasources(const std::string& name) const {
    return process_->Datasources()->Contains(name);
}

std::string VerifyReportText(const std::vector<VerifyFinding>& findings) {
    std::string report;
    for (const auto& finding : findings) report.append(finding.text).append("\r\n");
    return report;
}

bool Verify(const std::shared_ptr<const Process>& process, bool showResult) {
    ProcessVerifier verifier(showResult);
    bool ranThrough = false;
    if (!Guarded("modVerify", "Verify", [&] { ranThrough = verifier.Run(process); })) return false;
    if (!ranThrough) return false;  // stopped at an error, which was shown
    if (verifier.HasVerifyErrors()) {
        CurrentPrompts().ShowText(VerifyReportText(verifier.Findings()));
        return false;
    }
    if (showResult) MsgBox("Everything is Ok", msgbox::Information, "Verifying");
    return true;
}

}  // namespace flowloom
