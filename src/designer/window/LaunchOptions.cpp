#include "designer/window/LaunchOptions.h"

#include "app/CommandLine.h"
#include "support/AppPaths.h"

namespace flowloom::designer::window {

LaunchOptions ParseLaunchOptions(const std::vector<std::string>& args) {
    LaunchOptions options;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& arg = args[i];
        if (arg == "--help" || arg == "-h") {
            options.help = true;
        } else if (arg == "--version") {
            options.version = true;
        } else if (arg == "--startup-time") {
            options.startupTime = true;
        } else if (arg == "--screenshot" || arg.rfind("--screenshot=", 0) == 0) {
            if (arg != "--screenshot") options.screenshot = arg.substr(arg.find('=') + 1);
            else if (i + 1 < args.size()) options.screenshot = args[++i];
            if (!options.screenshot || options.screenshot->empty()) options.error = "--screenshot needs a file name";
        } else {
            options.designerArgs.push_back(arg);
        }
    }
    // A file alone, as a desktop hands it over, is the file to open.
    if (options.designerArgs.size() == 1 && !IsOptionWord(options.designerArgs.front()))
        options.designerArgs.insert(options.designerArgs.begin(), "-xmlfile");
    return options;
}

std::string UsageText() {
    return "Usage: flowloom [-xmlfile FILE] [-process NAME] [-activeobject TYPE;NAME] [-fields F1;F2]\n"
           "                [--screenshot FILE] [--startup-time] [--help] [--version]\n"
           "       flowloom FILE\n"
           "\n"
           "Opens the processes file FILE in the designer (a new file without -xmlfile).\n"
           "  -xmlfile FILE             the processes file to open\n"
           "  -process NAME             the process to select in it\n"
           "  -activeobject TYPE;NAME   the object the caller works on (for field values)\n"
           "  -fields F1;F2             the fields of that object\n"
           "Options may also begin with \"/\".\n"
           "  --screenshot FILE         show the window, save a picture of it as PNG to FILE, and exit\n"
           "  --startup-time            print the milliseconds from the start to the window's first\n"
           "                            paint, and exit\n"
           "  --help                    show this text\n"
           "  --version                 show the version\n"
           "Without a display, run it with QT_QPA_PLATFORM=offscreen or under Xvfb.\n";
}

}  // namespace flowloom::designer::window
