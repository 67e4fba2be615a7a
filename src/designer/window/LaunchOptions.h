#pragma once

#include <optional>
#include <string>
#include <vector>

namespace flowloom::designer::window {

// The program's own switches, taken out of its arguments before the rest
// goes to the designer as its command line.
struct LaunchOptions {
    bool help = false;
    bool version = false;
    std::optional<std::string> screenshot;  // --screenshot FILE
    bool startupTime = false;               // --startup-time: print the time to the first paint and quit
    std::vector<std::string> designerArgs;  // -xmlfile and the others, as given
    std::string error;                      // a switch without its value
};

LaunchOptions ParseLaunchOptions(const std::vector<std::string>& args);

// What --help prints.
std::string UsageText();

}  // namespace flowloom::designer::window
