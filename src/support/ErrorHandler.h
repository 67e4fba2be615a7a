#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "support/Prompts.h"

namespace flowloom {

// The single place where a trapped run-time error becomes a message box, a
// record in errorlog.txt and, for what looks like a bug, a report by mail.
class ErrorHandler {
public:
    ErrorHandler();

    bool ShowProjectInfo = false;
    bool ShowSysInfo = false;
    bool ShowLocaleInfo = false;
    std::string AppTitleAndVersion;
    std::string PleaseSend = "Please send the following error to ";
    std::string SendTo;
    std::string WhatHappens = "DESCRIBE WHAT HAPPENS: ";
    std::string TryingTo = "DESCRIBE WHAT YOU TRY TO DO: ";
    std::string ContactMe = "Please contact me about the following problem:";

    // Classifies, logs, shows and offers to report one error; returns the
    // answer of the box that was shown (0 when none was).
    int ErrorMessage(std::int32_t errNo, std::int32_t errLine, const std::string& strDescription,
                     const std::string& strComment, const std::string& strSource,
                     const std::string& strProcedure, bool bReportError,
                     bool bHandledByCallingProcedure, bool bPickLinesFromErrorlog,
                     const std::string& strHelpFile, std::int32_t lngHelpContextId);

    // errorlog.txt beside the program (or in the writable fallback folder).
    std::filesystem::path LogFilePath() const;

    // The one shared handler, created on first use.
    static ErrorHandler& Shared();

private:
    // The clipboard and busy-application errors: retry or cancel.
    int AskRetry(ErrorBox box, const std::string& comment) const;
    void AppendToLog(const std::string& longText) const;
    // An expected failure: a critical box, with the help button when the
    // help file is there.
    int ShowPlain(ErrorBox box, const std::string& shortText) const;
    int Report(ErrorBox box, std::string shortText, std::string longText, bool pickLines);
    // The mail's text: contact line, long text, the two questions to the
    // user and the information sections that are switched on.
    std::string ReportBody(const std::string& longText) const;
    // When no mail program takes the report: the text in a window instead.
    void ShowReportFile(const std::string& body) const;
};

// Whether an error number asks for a report (false for the expected failures
// of files, disks and databases, and for the system's codes a user can fix).
bool IsReportableError(std::int32_t errNo);

}  // namespace flowloom
