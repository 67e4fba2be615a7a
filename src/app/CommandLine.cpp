#include "app/CommandLine.h"

#include "app/Common.h"
#include "support/ReportError.h"
#include "support/TextCompare.h"
#include "support/VbStrings.h"

#include <optional>

namespace flowloom {

namespace {

using Words = std::vector<std::string>;

std::string& RawCommandLine() {
    static std::string line;
    return line;
}

// Where the text behind `prefix + option` starts: the first occurrence
// counts, even inside a longer word, and the first prefix that is found wins.
std::optional<std::size_t> FindOption(std::string_view line, const std::string& option, const Words& prefixes) {
    for (const std::string& prefix : prefixes) {
        const auto [hit, length] = FindNoCaseSpan(line, prefix + option);
        if (hit != std::string_view::npos) return hit + length;
    }
    return std::nullopt;
}

// 1-based position of the blank in front of the next option, or 0. A hit
// inside quotes sends the search on to the next prefix, but the hit of the
// last prefix stands wherever it lies; a prefix that is not found at all
// leaves no cut.
std::size_t CutPosition(const std::string& raw, const Words& prefixes) {
    std::size_t position = 0;
    for (const std::string& prefix : prefixes) {
        const std::size_t found = raw.find(" " + prefix);
        position = found == std::string::npos ? 0 : found + 1;
        if (position > 0 && !IsInsideQuotes(raw, static_cast<long>(position))) break;
    }
    return position;
}

std::string ValueOf(const std::string& raw, const Words& prefixes) {
    const std::size_t cut = CutPosition(raw, prefixes);
    const std::string value = vb::Trim(cut > 0 ? std::string_view(raw).substr(0, cut - 1) : raw);
    std::string unquoted = vb::Trim(TrimChars(value, "\"", 1));
    return unquoted.empty() ? std::string(kEmptyValue) : unquoted;
}

}  // namespace

const std::string& CommandLineArguments::Value(std::size_t index) const {
    static const std::string none;
    return index < values_.size() ? values_[index] : none;
}

void CommandLineArguments::Parse(std::string_view commandLine) {
    const Words options = vb::Split(kCommandLineOptions, ";");
    const Words prefixes = vb::Split(kCommandLinePrefixes, ";");
    if (options.empty() || prefixes.empty()) return;
    values_.assign(options.size(), std::string());
    if (commandLine.empty()) return;
    for (std::size_t i = 0; i < options.size(); ++i) {
        if (const auto start = FindOption(commandLine, options[i], prefixes))
            values_[i] = ValueOf(std::string(commandLine.substr(*start)), prefixes);
    }
}

CommandLineArguments& gCommandLineArguments() {
    static CommandLineArguments arguments;
    return arguments;
}

void SetRawCommandLine(std::string commandLine) { RawCommandLine() = std::move(commandLine); }

void GetCommandLineArguments(std::string& commandLine) {
    Guarded("mCommandLine", "GetCommandLineArguments", [&] {
        commandLine = RawCommandLine();
        gCommandLineArguments().Parse(commandLine);
    });
}

bool IsOptionWord(std::string_view argument) {
    for (const std::string& prefix : vb::Split(kCommandLinePrefixes, ";"))
        for (const std::string& option : vb::Split(kCommandLineOptions, ";"))
            if (EqualsNoCase(argument, prefix + option)) return true;
    return false;
}

std::string RawCommandLineFromArgs(const std::vector<std::string>& args) {
    std::string line;
    for (const std::string& arg : args) {
        if (!line.empty()) line += ' ';
        line += IsOptionWord(arg) ? arg : '"' + arg + '"';
    }
    return line;
}

}  // namespace flowloom
