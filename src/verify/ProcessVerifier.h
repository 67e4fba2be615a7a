#pragma once

#include "model/Forward.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace flowloom {

// One finding of a verification.
struct VerifyFinding {
    int number = 0;
    int severity = 0;   // 1 a warning, 2 an error
    std::string text;   // the message with its arguments filled in
};

namespace severity {
inline constexpr int Warning = 1;
inline constexpr int Error = 2;
}  // namespace severity

// The error that stops a verification at its first error.
inline constexpr std::int32_t kVerifyStopped = static_cast<std::int32_t>(0x80040201u);

// Checks one process without running it and without changing it: that it is
// named, has datasources and activities, that what refers to something
// refers to something that exists, and that the activities stand in a
// possible order.
//
// Gathering mode collects every finding. The stop-at-first-error mode drops
// warnings, shows the first error in a box (offering a download where one
// helps) and ends the run.
class ProcessVerifier {
public:
    explicit ProcessVerifier(bool gather) : gather_(gather) {}

    // Runs every rule in order. False when the stop-at-first-error mode
    // stopped at an error; the findings gathered so far stay.
    bool Run(const std::shared_ptr<const Process>& process);

    const std::vector<VerifyFinding>& Findings() const noexcept { return findings_; }
    bool HasVerifyErrors() const noexcept { return !findings_.empty(); }

    // Fills the message's placeholders with the arguments and files the
    // finding (or, when not gathering, shows an error and stops the run).
    void ReportVerifyError(int number, int severity, const std::vector<std::string>& arguments = {});

private:
    bool VerifyProcessName();
    void VerifyDatasourceCount();
    void VerifyMainDatasource();
    void VerifyActivityCount();
    void VerifyDatabases();
    void VerifyDatabase(const Database& database, int index);
    void VerifyDatasources();
    void VerifyDatasource(const Datasource& datasource, int index);
    bool DatabaseExists(const std::string& name) const;
    bool InDocuments(const std::string& name) const;
    bool InDatasources(const std::string& name) const;

    // The activity rules.
    void VerifyActivities();
    void VerifyActivityRule(const Activity& activity);
    void VerifyMailMerge(const MailMerge& activity);
    void VerifySaveAs(const SaveAs& activity);
    void VerifyPrintOut(const PrintOut& activity);
    void VerifySendMail(const SendMail& activity);
    void VerifySendFax(const SendFax& activity);
    void VerifyAddRecord(const AddRecord& activity);
    void VerifyConvert(const Convert& activity);
    void VerifyPostscriptConversion(const Convert& activity);

    bool gather_;
    std::shared_ptr<const Process> process_;
    std::vector<VerifyFinding> findings_;
};

// The report of the findings: every message followed by CR LF, in the order
// found, without a mark of severity.
std::string VerifyReportText(const std::vector<VerifyFinding>& findings);

// Verifies a process as the Verify command does. Gathering (`showResult`):
// the report goes to the text window, or, with nothing found, the box
// "Everything is Ok". True when nothing was reported.
bool Verify(const std::shared_ptr<const Process>& process, bool showResult);

}  // namespace flowloom
