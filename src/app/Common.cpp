#include "app/Common.h"

#include "app/TextCompare.h"
#include "app/VbError.h"
#include "app/VbStrings.h"
#include "support/AppPaths.h"
#include "support/Prompts.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace flowloom {

namespace {

bool IsUpper(char c) { return std::string(1, c) == ToUpper(std::string(1, c)); }

}  // namespace

std::string SpacedName(std::string_view identifier) {
    if (identifier.size() < 3) return std::string(identifier);
    std::string out(1, identifier.front());
    for (std::size_t i = 1; i + 1 < identifier.size(); ++i) {
        const char c = identifier[i];
        if (IsUpper(c) && (!IsUpper(identifier[i + 1]) || !IsUpper(identifier[i - 1]))) out += ' ';
        out += c;
    }
    out += identifier.back();
    return out;
}

bool IsInsideQuotes(std::string_view text, long position) {
    if (position < 1) return false;
    const std::size_t split = std::min<std::size_t>(static_cast<std::size_t>(position), text.size());
    const std::string_view left = text.substr(0, split);
    const std::string_view right = text.substr(std::min(split - 1, text.size()));
    for (char quote : {'"', '\''}) {
        const auto leftCount = std::count(left.begin(), left.end(), quote);
        const auto rightCount = std::count(right.begin(), right.end(), quote);
        if (leftCount % 2 == 1 && rightCount > 0) return true;
    }
    return false;
}

long CountOccurrences(std::string_view text, std::string_view separator) {
    if (text.empty()) return 0;
    return static_cast<long>(vb::Split(text, separator).size()) - 1;
}

std::string TrimChars(std::string_view text, std::string_view chars, int mode) {
    if (chars.empty()) return std::string(text);
    const std::size_t n = chars.size();
    std::string_view out = text;
    if (mode == 0 || mode == 1) {
        std::size_t first = 0;
        while (first + n <= out.size() && out.substr(first, n) == chars) first += n;
        // Only when another character comes before the last one.
        if (first < out.size() && first + 1 < out.size()) out.remove_prefix(first);
    }
    if (mode == 2 || mode == 1) {
        std::size_t end = out.size();
        while (end >= n && out.substr(end - n, n) == chars) end -= n;
        if (end > 0) out = out.substr(0, end);  // only when another character remains
    }
    return std::string(out);
}

std::string AddBackslash(std::string_view path) {
    std::string out = vb::Trim(path);
    if (out.empty() || out.back() != '\\') out += '\\';
    return out;
}

bool SafeBool(std::string_view text) { return vb::ToBool(text).value_or(false); }

std::string ReadFileText(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) RaiseStandardError(vberr::FileNotFound);
    return std::string((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
}

void WriteFileText(const std::string& path, std::string_view text) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    if (!out) RaiseStandardError(vberr::PathNotFound);
    out << text << "\r\n";
    out.flush();
    if (!out) RaiseStandardError(61);
}

bool IsHtmlText(std::string_view text) {
    return FindNoCase(text, "<html") != std::string_view::npos && FindNoCase(text, "</html>") != std::string_view::npos;
}

std::string GetTemporaryFolder() {
    std::error_code ec;
    const auto folder = std::filesystem::temp_directory_path(ec);
    return ec ? std::string() : folder.string();
}

const std::vector<std::string>& GetInvokedApplications() {
    static const std::vector<std::string> applications = {"Microsoft Word", "Microsoft Excel", "HTML", "Text"};
    return applications;
}

std::string InvokedApplicationExtension(std::string_view application) {
    static const char* const extensions[] = {".doc", ".xls", ".htm", ".txt"};
    const auto& applications = GetInvokedApplications();
    for (std::size_t i = 0; i < applications.size(); ++i)
        if (applications[i] == application) return extensions[i];
    return {};
}

std::string HelpFileName() {
    std::error_code ec;
    const auto exe = std::filesystem::read_symlink("/proc/self/exe", ec);
    return (ec ? std::string("flowloom") : exe.stem().string()) + ".chm";
}

std::string HelpFilePath() { return (ProgramFolder() / HelpFileName()).string(); }

bool ShellOpen(const std::string& target) { return CurrentPrompts().OpenUrl(target); }

}  // namespace flowloom
