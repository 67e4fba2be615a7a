#include "support/AppPaths.h"

#include <unistd.h>

#include <cstdlib>
#include <system_error>

namespace flowloom {

namespace fs = std::filesystem;

namespace {
fs::path& Override() {
    static fs::path folder;
    return folder;
}

fs::path ExecutableFolder() {
    std::error_code ec;
    fs::path exe = fs::read_symlink("/proc/self/exe", ec);
    if (ec || exe.empty()) return fs::current_path(ec);
    return exe.parent_path();
}

bool IsWritableFolder(const fs::path& folder) {
    std::error_code ec;
    return fs::is_directory(folder, ec) && ::access(folder.c_str(), W_OK) == 0;
}

fs::path StateFolder() {
    fs::path base;
    if (const char* xdg = std::getenv("XDG_STATE_HOME"); xdg && *xdg) base = xdg;
    else if (const char* home = std::getenv("HOME"); home && *home) base = fs::path(home) / ".local" / "state";
    else base = fs::temp_directory_path();
    return base / "flowloom";
}
}  // namespace

std::string AppTitle() { return "Flowloom"; }

std::string AppVersion() {
#ifdef FLOWLOOM_VERSION
    return FLOWLOOM_VERSION;
#else
    return "0.0.0";
#endif
}

fs::path ProgramFolder() {
    if (!Override().empty()) return Override();
    static const fs::path folder = ExecutableFolder();
    return folder;
}

void SetProgramFolder(const fs::path& folder) { Override() = folder; }

fs::path WritableProgramFolder() {
    fs::path folder = ProgramFolder();
    if (IsWritableFolder(folder)) return folder;
    fs::path state = StateFolder();
    std::error_code ec;
    fs::create_directories(state, ec);
    return state;
}

}  // namespace flowloom
