#include "app/CommandLine.h"

#include "app/Common.h"
#include "app/ReportError.h"
#include "app/TextCompare.h"
#include "app/VbStrings.h"

namespace flowloom {

namespace {

std::string& RawCommandLine() {
    static std::string line;
    return line;
}

// 1-based position of the cut: the first blank-and-prefix outside quotes;
// the position found for the last prefix tried stands even inside quotes,
// and a prefix that is not found at all means no cut.
std::size_t CutPosition(const std::string& raw, const std::vector<std::string>& prefixes) {
    std::size_t position = 0;
    for (const std::string& prefix : prefixes) {
        const std::size_t found = raw.find(" " + prefix);
        position = found == std::string::npos ? 0 : found + 1;
        if (position > 0 && !IsInsideQuotes(raw, static_cast<long>(position))) break;
    }
    return position;
}

std::string ValueAfter(const std::string& raw, const std::vector<std::string>& prefixes) {
    const std::size_t cut = CutPosition(raw, prefixes);
    std::string value = vb::Trim(cut > 0 ? raw.substr(0, cut - 1) : raw);
    value = vb::Trim(TrimChars(value, "\"", 1));
    return value.empty() ? std::string(kEmptyValue) : value;
}

}  // namespace

const std::string& CommandLineArguments::Value(std::size_t index) const {
    static const std::string empty;
    return index < values_.size() ? values_[index] : empty;
}

void CommandLineArguments::Parse(std::string_view commandLine) {
    const auto options = vb::Split(kCommandLineOptions, ";");
    const auto prefixes = vb::Split(kCommandLinePrefixes, ";");
    if (options.empty() || prefixes.empty()) return;
    values_.assign(options.size(), std::string());
    if (commandLine.empty()) return;
    for (std::size_t i = 0; i < options.size(); ++i) {
        for (const std::string& prefix : prefixes) {
            const std::string word = prefix + options[i];
            // A plain search: the first occurrence counts, even inside a longer word.
            const std::size_t hit = FindNoCase(commandLine, word);
            if (hit == std::string_view::npos) continue;
            values_[i] = ValueAfter(std::string(commandLine.substr(hit + word.size())), prefixes);
            break;
        }
    }
}

CommandLineArguments& gCommandLineArguments() {
    static CommandLineArguments arguments;
    return arguments;
}

void SetRawCommandLine(std::string commandLine) { RawCommandLine() = std::move(commandLine); }

void GetCommandLineArguments(std::string& commandLine) {
    try {
        commandLine = RawCommandLine();
        gCommandLineArguments().Parse(commandLine);
    } catch (...) {
        ReportPendingError("mCommandLine", "GetCommandLineArguments");
    }
}

std::string RawCommandLineFromArgs(const std::vector<std::string>& args) {
    const auto options = vb::Split(kCommandLineOptions, ";");
    const auto prefixes = vb::Split(kCommandLinePrefixes, ";");
    auto isOptionWord = [&](const std::string& arg) {
        for (const auto& prefix : prefixes)
            for (const auto& option : options)
                if (EqualsNoCase(arg, prefix + option)) return true;
        return false;
    };
    std::string line;
    for (const std::string& arg : args) {
        if (!line.empty()) line += ' ';
        line += isOptionWord(arg) ? arg : "\"" + arg + "\"";
    }
    return line;
}

}  // namespace flowloom
