#include "Cli.h"

#include "support/AppPaths.h"

namespace flowloom::cli {

int Run(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
    if (!args.empty() && args[0] == "--version") {
        out << "flowloom-cli " << AppVersion() << "\n";
        return 0;
    }
    err << "usage: flowloom-cli --help\n";
    return 2;
}

}  // namespace flowloom::cli
