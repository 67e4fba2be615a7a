#include "app/CommandLine.h"

#include <ostream>
#include <string>
#include <vector>

namespace flowloom::cli {

// parse-command-line TEXT: the four values as the designer would read them.
int ParseCommandLineCommand(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
    if (args.size() != 2) {
        err << "usage: flowloom-cli parse-command-line TEXT\n";
        return 2;
    }
    SetRawCommandLine(args[1]);
    std::string commandLine;
    GetCommandLineArguments(commandLine);
    for (std::size_t i = ArgXmlFile; i <= ArgFields; ++i) out << gCommandLineArguments().Value(i) << '\n';
    return 0;
}

}  // namespace flowloom::cli
