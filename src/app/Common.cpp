#include "app/Common.h"

#include "support/TextCompare.h"
#include "support/VbError.h"
#include "support/VbStrings.h"
#include "support/AppPaths.h"
#include "support/Prompts.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace flowloom {

namespace {

// Numbers of the host language for a file that cannot be opened or written.
constexpr std::int32_t kPathFileAccessError = 75;
constexpr std::int32_t kDiskFull = 61;

// The text cut into its characters (UTF-8 code points; a stray byte that is
// not valid UTF-8 stands on its own).
std::vector<std::string_view> Characters(std::string_view text) {
    std::vector<std::string_view> characters;
    std::size_t start = 0;
    for (std::size_t i = 1; i <= text.size(); ++i) {
        const bool continuation = i < text.size() && (static_cast<unsigned char>(text[i]) & 0xC0) == 0x80;
        if (!continuation) {
            characters.push_back(text.substr(start, i - start));
            start = i;
        }
    }
    return characters;
}

bool EqualsItsUpperCase(std::string_view character) { return ToUpper(character) == character; }

}  // namespace

std::string SpacedName(std::string_view identifier) {
    const std::vector<std::string_view> characters = Characters(identifier);
    std::string label;
    label.reserve(identifier.size() + identifier.size() / 2);
    for (std::size_t i = 0; i < characters.size(); ++i) {
        const bool inBetween = i > 0 && i + 1 < characters.size();
        if (inBetween && EqualsItsUpperCase(characters[i]) &&
            (!EqualsItsUpperCase(characters[i + 1]) || !EqualsItsUpperCase(characters[i - 1])))
            label += ' ';
        label += characters[i];
    }
    return label;
}

bool IsInsideQuotes(std::string_view text, long position) {
    if (position < 1) return false;
    const auto at = static_cast<std::size_t>(position);
    const std::string_view left = text.substr(0, std::min(at, text.size()));
    const std::string_view right = at <= text.size() ? text.substr(at - 1) : std::string_view();
    for (const char quote : {'"', '\''}) {
        const auto before = std::count(left.begin(), left.end(), quote);
        if (before % 2 == 1 && right.find(quote) != std::string_view::npos) return true;
    }
    return false;
}

long CountOccurrences(std::string_view text, std::string_view separator) {
    if (text.empty()) return 0;
    return static_cast<long>(vb::Split(text, separator).size()) - 1;
}

std::string TrimChars(std::string_view text, std::string_view chars, int mode) {
    if (chars.empty()) return std::string(text);
    std::string_view out = text;
    if (mode == 0 || mode == 1) {
        std::size_t first = 0;
        while (out.substr(first).starts_with(chars)) first += chars.size();
        if (first + 1 < out.size()) out.remove_prefix(first);
    }
    if (mode == 1 || mode == 2) {
        std::size_t end = out.size();
        while (out.substr(0, end).ends_with(chars)) end -= chars.size();
        if (end > 0) out = out.substr(0, end);
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
    std::error_code ec;
    if (std::filesystem::is_directory(path, ec)) RaiseStandardError(kPathFileAccessError);
    std::ifstream in(path, std::ios::binary);
    if (!in) RaiseStandardError(vberr::FileNotFound);
    std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    if (in.bad()) RaiseStandardError(kPathFileAccessError);
    return text;
}

void WriteFileText(const std::string& path, std::string_view text) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    if (!out) {
        std::error_code ec;
        const auto folder = std::filesystem::path(path).parent_path();
        const bool folderMissing = !folder.empty() && !std::filesystem::is_directory(folder, ec);
        RaiseStandardError(folderMissing ? vberr::PathNotFound : kPathFileAccessError);
    }
    out << text << "\r\n";
    out.flush();
    if (!out) RaiseStandardError(kDiskFull);
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
    return (ec || exe.filename().empty() ? std::string("flowloom") : exe.filename().string()) + ".chm";
}

std::string HelpFilePath() { return (ProgramFolder() / HelpFileName()).string(); }

bool ShellOpen(const std::string& target) { return CurrentPrompts().OpenUrl(target); }

}  // namespace flowloom
