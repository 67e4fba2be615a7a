#include "cli/Cli.h"

#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

#if defined(__SANITIZE_ADDRESS__)
#define FLOWLOOM_LEAK_CHECKED 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define FLOWLOOM_LEAK_CHECKED 1
#endif
#endif

int main(int argc, char** argv) {
    std::vector<std::string> args(argv + 1, argv + argc);
#ifdef FLOWLOOM_LEAK_CHECKED
    // The leak check runs at a normal end: everything is freed as usual.
    return flowloom::cli::Run(args, std::cout, std::cerr);
#else
    // Ends without freeing the loaded models (see KeepModelsUntilExit):
    // files the commands wrote are closed by then, only the standard streams
    // still need flushing.
    flowloom::cli::KeepModelsUntilExit();
    const int code = flowloom::cli::Run(args, std::cout, std::cerr);
    std::cout.flush();
    std::cerr.flush();
    std::fflush(nullptr);
    std::quick_exit(code);
#endif
}
