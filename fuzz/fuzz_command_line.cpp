// Parses arbitrary text as the designer's command line, and rebuilds a raw
// line from the pieces of the input (split at NUL bytes) as the program does
// from its arguments. Checks that values are always trimmed and that a plain
// value given to "-process" comes back as it was.
#include "app/CommandLine.h"

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

namespace {

void Require(bool condition) {
    if (!condition) std::abort();
}

bool IsTrimmed(const std::string& value) {
    return value.empty() || (value.front() != ' ' && value.back() != ' ');
}

// A value that the parser has no reason to change: not an option word, no
// blank or quote at its ends and no blank followed by a prefix inside.
bool IsPlainValue(std::string_view value) {
    if (value.empty() || flowloom::IsOptionWord(value)) return false;
    if (value.front() == ' ' || value.back() == ' ') return false;
    if (value.front() == '"' || value.back() == '"') return false;
    return value.find(" -") == std::string_view::npos && value.find(" /") == std::string_view::npos;
}

std::vector<std::string> SplitAtNul(std::string_view text) {
    std::vector<std::string> pieces(1);
    for (const char c : text) {
        if (c == '\0') pieces.emplace_back();
        else pieces.back() += c;
    }
    return pieces;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);

    flowloom::SetRawCommandLine(text);
    std::string handedBack;
    flowloom::GetCommandLineArguments(handedBack);
    Require(handedBack == text);
    const auto& shared = flowloom::gCommandLineArguments();
    Require(shared.Size() == 4);
    for (std::size_t i = 0; i < shared.Size(); ++i) Require(IsTrimmed(shared.Value(i)));

    const std::vector<std::string> pieces = SplitAtNul(text);
    flowloom::CommandLineArguments rebuilt;
    rebuilt.Parse(flowloom::RawCommandLineFromArgs(pieces));
    for (const std::string& piece : pieces) {
        if (!IsPlainValue(piece)) continue;
        flowloom::CommandLineArguments single;
        single.Parse(flowloom::RawCommandLineFromArgs({"-process", piece}));
        Require(single.Value(flowloom::ArgProcess) == piece);
    }
    return 0;
}
