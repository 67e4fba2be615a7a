// Placeholder until the full handler lands: logs nothing, shows the error.
#include "support/ErrorHandler.h"

#include "support/AppPaths.h"
#include "support/Prompts.h"

namespace flowloom {

ErrorHandler::ErrorHandler() : AppTitleAndVersion(AppTitle() + " " + AppVersion()) {}

int ErrorHandler::ErrorMessage(std::int32_t errNo, std::int32_t, const std::string& strDescription,
                               const std::string&, const std::string&, const std::string&, bool, bool,
                               bool, const std::string&, std::int32_t) {
    ErrorBox box;
    box.number = errNo;
    box.description = strDescription;
    box.text = "Error " + std::to_string(errNo) + ": " + strDescription;
    box.title = "Velorin";
    return CurrentPrompts().ShowError(box);
}

std::filesystem::path ErrorHandler::LogFilePath() const { return WritableProgramFolder() / "errorlog.txt"; }

ErrorHandler& ErrorHandler::Shared() {
    static ErrorHandler handler;
    return handler;
}

bool IsReportableError(std::int32_t) { return true; }

}  // namespace flowloom
