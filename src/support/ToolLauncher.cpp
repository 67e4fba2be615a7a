#include "support/ToolLauncher.h"

namespace flowloom {

namespace {
NoToolLauncher gNoLauncher;
ToolLauncher* gLauncher = &gNoLauncher;
}  // namespace

ToolLauncher& CurrentToolLauncher() { return *gLauncher; }

ToolLauncher* SetCurrentToolLauncher(ToolLauncher* launcher) {
    ToolLauncher* previous = gLauncher == &gNoLauncher ? nullptr : gLauncher;
    gLauncher = launcher ? launcher : &gNoLauncher;
    return previous;
}

}  // namespace flowloom
