// Parses arbitrary text as the designer's command line, and checks that the
// raw line rebuilt from arguments always gives back a value for each option.
#include "app/CommandLine.h"

#include <cstdint>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    flowloom::CommandLineArguments arguments;
    arguments.Parse(text);
    for (std::size_t i = 0; i < 5; ++i) (void)arguments.Value(i);

    // Split the input into arguments at NUL bytes and rebuild a raw line.
    std::vector<std::string> args;
    std::string current;
    for (char c : text) {
        if (c == '\0') {
            args.push_back(current);
            current.clear();
        } else {
            current += c;
        }
    }
    args.push_back(current);
    flowloom::CommandLineArguments rebuilt;
    rebuilt.Parse(flowloom::RawCommandLineFromArgs(args));
    return 0;
}
