#include "cli/SessionTool.h"

#include "app/Common.h"

#include <filesystem>
#include <system_error>

namespace flowloom::cli {

namespace {

// The path of the " /file \"PATH\"" switch.
std::string FileSwitch(const std::string& arguments) {
    const std::string marker = " /file \"";
    const std::size_t start = arguments.find(marker);
    if (start == std::string::npos) return {};
    const std::size_t from = start + marker.size();
    const std::size_t end = arguments.find('"', from);
    return arguments.substr(from, end == std::string::npos ? std::string::npos : end - from);
}

}  // namespace

SessionToolLauncher::~SessionToolLauncher() {
    std::error_code ignored;
    if (running_ && !file_.empty()) std::filesystem::remove(file_, ignored);
}

bool SessionToolLauncher::Start(const std::string& program, const std::string& arguments) {
    out_ << "tool: " << std::filesystem::path(program).filename().string() << arguments << '\n';
    running_ = true;
    plainText_ = arguments.rfind(" /p", 0) == 0;
    file_ = FileSwitch(arguments);
    return true;
}

std::optional<std::string> SessionToolLauncher::WaitForWindow(int) {
    if (!running_) return std::nullopt;
    return plainText_ ? "text editor" : "html editor";
}

bool SessionToolLauncher::Close(const std::string& text) {
    if (!running_) return false;
    running_ = false;
    if (!file_.empty()) WriteFileText(file_, text);
    return true;
}

}  // namespace flowloom::cli
