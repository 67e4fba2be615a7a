#include "support/ErrorHandler.h"

#include "support/AppPaths.h"
#include "support/CMailToProtocol.h"
#include "support/Prompts.h"
#include "support/LocalTime.h"
#include "support/SystemInfo.h"
#include "support/UniqueFd.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <ctime>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>
#include <vector>

namespace flowloom {

namespace {

constexpr const char* kTitle = "Velorin";
constexpr int kRetryStyle = msgbox::RetryCancel | msgbox::Question;                            // 37
constexpr int kReportStyle = msgbox::YesNo | msgbox::Question | msgbox::DefaultButton2;         // 292
constexpr int kLogLinesInReport = 12;
constexpr std::int32_t kLargestHelpContext = 1000000;

bool InRanges(std::int32_t n, std::initializer_list<std::pair<std::int32_t, std::int32_t>> ranges) {
    return std::any_of(ranges.begin(), ranges.end(), [n](const auto& r) { return n >= r.first && n <= r.second; });
}

bool IsRetryError(std::int32_t n) {
    return n == 520 || n == 521 || n == 1004 || n == 5152 || n == 5153 || n == 5356;
}

std::string LastLines(const std::filesystem::path& path, int count) {
    std::ifstream in(path, std::ios::binary);
    if (!in) return {};
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        lines.push_back(line);
    }
    std::string out;
    const std::size_t first = lines.size() > static_cast<std::size_t>(count) ? lines.size() - count : 0;
    for (std::size_t i = first; i < lines.size(); ++i) {
        if (i > first) out += "\r\n";
        out += lines[i];
    }
    return out;
}

std::string WithoutAmpersands(std::string text) {
    text.erase(std::remove(text.begin(), text.end(), '&'), text.end());
    return text;
}

struct Texts {
    std::string shortText;
    std::string longText;
};

Texts BuildTexts(std::int32_t errNo, std::int32_t errLine, const std::string& description, const std::string& comment,
                 const std::string& source, const std::string& procedure) {
    const std::string note = comment.empty() ? std::string() : "\r\n\r\n" + comment;
    const std::string location = source.empty() && procedure.empty() ? std::string() : "\r\n in " + source + "." + procedure;
    if (errNo == -1 && errLine == -1) return {description, description};
    const std::string head = "Error " + std::to_string(errNo) + ": " + description;
    return {head + " " + note, head + location + " line " + std::to_string(errLine) + " " + note};
}

}  // namespace

bool IsReportableError(std::int32_t n) {
    // Expected failures of files, disks and databases.
    if (InRanges(n, {{52, 55}, {57, 58}, {61, 63}, {67, 68}, {70, 71}, {74, 76}, {482, 484}, {3024, 3031},
                     {3036, 3036}, {3040, 3040}, {3042, 3046}, {3049, 3056}, {3149, 3150}, {3152, 3154},
                     {3158, 3158}, {3165, 3166}, {3168, 3177}, {3179, 3180}, {3182, 3183}, {3186, 3189},
                     {3193, 3194}, {3196, 3196}, {3202, 3202}, {3204, 3204}, {3212, 3214}, {3233, 3233},
                     {3248, 3248}, {3301, 3301}, {3310, 3310}, {3418, 3418}, {3429, 3429}, {3445, 3445},
                     {3465, 3465}, {3472, 3472}, {3559, 3559}, {3566, 3566}, {3572, 3572}, {3575, 3575}}))
        return false;
    // The system's own codes that a user can put right.
    if (InRanges(n, {{30001, 30001}, {30006, 30008}, {30013, 30015}, {30017, 30017}, {30019, 30019},
                     {30027, 30027}, {30029, 30029}, {30031, 30031}, {30034, 30034}, {30036, 30042},
                     {30045, 30048}, {30050, 30050}, {30052, 30052}, {30057, 30061}, {30063, 30064},
                     {30069, 30069}, {30071, 30071}, {30076, 30076}, {30080, 30082}, {30084, 30084}}))
        return false;
    return true;
}

ErrorHandler::ErrorHandler() : AppTitleAndVersion(AppTitle() + " " + AppVersion()), SendTo("support@flowloom.example") {}

ErrorHandler& ErrorHandler::Shared() {
    static ErrorHandler handler;
    return handler;
}

std::filesystem::path ErrorHandler::LogFilePath() const { return WritableProgramFolder() / "errorlog.txt"; }

int ErrorHandler::ErrorMessage(std::int32_t errNo, std::int32_t errLine, const std::string& strDescription,
                               const std::string& strComment, const std::string& strSource,
                               const std::string& strProcedure, bool bReportError, bool bHandledByCallingProcedure,
                               bool bPickLinesFromErrorlog, const std::string& strHelpFile,
                               std::int32_t lngHelpContextId) {
    try {
        bReportError = IsReportableError(errNo);
        ErrorBox box;
        box.number = errNo;
        box.description = strDescription;
        box.helpFile = strHelpFile;
        box.helpContext = lngHelpContextId;
        box.module = strSource;
        box.procedure = strProcedure;
        box.title = kTitle;
        if (IsRetryError(errNo)) return AskRetry(box, strComment);

        const Texts texts = BuildTexts(errNo, errLine, strDescription, strComment, strSource, strProcedure);
        if (bReportError || bHandledByCallingProcedure) {
            AppendToLog(texts.longText);
            // The caller tells the user what it wants itself.
            if (bHandledByCallingProcedure) return 0;
        }
        if (!bReportError) return ShowPlain(box, texts.shortText);
        box.title = std::string(kTitle) + ": Error";
        return Report(box, texts.shortText, texts.longText, bPickLinesFromErrorlog);
    } catch (...) {
        return 0;  // reporting must never raise a second error
    }
}

int ErrorHandler::AskRetry(ErrorBox box, const std::string& comment) const {
    if (box.number == 520 || box.number == 521)
        box.description = "Another application is using the Clipboard and will not release it to your application.";
    box.text = box.description + "\r\n" + comment;
    box.style = kRetryStyle;
    return CurrentPrompts().ShowError(box);
}

void ErrorHandler::AppendToLog(const std::string& longText) const {
    const std::filesystem::path path = LogFilePath();
    const std::string record = FormatLocalTime("%Y-%m-%d %H:%M:%S") + ' ' + longText + "\r\n";
    const UniqueFd log(::open(path.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0644));
    if (log && ::write(log.Get(), record.data(), record.size()) == static_cast<ssize_t>(record.size())) return;
    // Neither the program's folder nor the state folder takes the log: say so
    // once rather than lose the records without a word.
    static bool told = false;
    if (told) return;
    told = true;
    std::cerr << AppTitle() << ": cannot write the error log " << path.string() << " (" << std::strerror(errno)
              << "); errors are not recorded\n";
}

int ErrorHandler::ShowPlain(ErrorBox box, const std::string& shortText) const {
    std::error_code ec;
    const bool help = !box.helpFile.empty() && std::filesystem::is_regular_file(box.helpFile, ec) &&
                      box.helpContext <= kLargestHelpContext;
    box.text = shortText;
    box.style = help ? msgbox::Critical | msgbox::HelpButton : msgbox::Critical;
    if (!help) {
        box.helpFile.clear();
        box.helpContext = 0;
    }
    return CurrentPrompts().ShowError(box);
}

int ErrorHandler::Report(ErrorBox box, std::string shortText, std::string longText, bool pickLines) {
    // No mail address of the user's goes into the question.
    if (const auto at = shortText.find('@'); at != std::string::npos) shortText.erase(at);
    // The last records of the log show support what led up to the error.
    if (pickLines) {
        const std::string lines = LastLines(LogFilePath(), kLogLinesInReport);
        if (!lines.empty()) {
            const std::string rule(30, '=');
            longText += "\r\n" + LogFilePath().string() + ":\r\n" + rule + "\r\n" + lines + "\r\n" + rule;
        }
    }
    const std::string subject = "Runtime error in " + AppTitleAndVersion;
    const std::string body = ReportBody(longText);

    box.text = shortText + "\r\n\r\nDo you want to report the problem?";
    box.style = kReportStyle;
    const int answer = CurrentPrompts().ShowError(box);
    if (answer != msgbox::Yes) return answer;

    if (CMailToProtocol().Send(SendTo, WithoutAmpersands(subject), WithoutAmpersands(body)) != 0) ShowReportFile(body);
    return answer;
}

std::string ErrorHandler::ReportBody(const std::string& longText) const {
    std::string body = ContactMe + "\r\n\r\n" + longText + "\r\n\r\n" + TryingTo + "\r\n\r\n" + WhatHappens;
    if (ShowProjectInfo) body += "\r\n\r\n" + CurrentStatusInfo(AppTitle(), AppVersion());
    if (ShowSysInfo) body += "\r\n\r\n" + SystemInformation();
    if (ShowLocaleInfo) body += "\r\n\r\n" + LocaleInformation();
    return body;
}

void ErrorHandler::ShowReportFile(const std::string& body) const {
    std::error_code ec;
    const auto path = std::filesystem::temp_directory_path(ec) / (std::string(1, '~').append(FormatLocalTime("%Y%m%d%H%M%S")).append(".txt"));
    const std::string text = PleaseSend + SendTo + "\r\n---\r\n\r\n" + body;
    {
        std::ofstream out(path, std::ios::binary | std::ios::trunc);
        out << text;
    }
    std::ifstream in(path, std::ios::binary);
    CurrentPrompts().ShowText(std::string((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>()));
    std::filesystem::remove(path, ec);
}

}  // namespace flowloom
