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

// $VARIABLE/flowloom, else ~/FALLBACK/flowloom, else in the temporary folder.
fs::path XdgFolder(const char* variable, const fs::path& fallback) {
    fs::path base;
    if (const char* xdg = std::getenv(variable); xdg && *xdg) base = xdg;
    else if (const char* home = std::getenv("HOME"); home && *home) base = fs::path(home) / fallback;
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
    fs::path state = XdgFolder("XDG_STATE_HOME", fs::path(".local") / "state");
    std::error_code ec;
    fs::create_directories(state, ec);
    return state;
}

fs::path WritableProgramSubfolder(const std::string& name) {
    std::error_code ec;
    fs::path beside = ProgramFolder() / name;
    fs::create_directories(beside, ec);
    if (IsWritableFolder(beside)) return beside;
    fs::path cache = XdgFolder("XDG_CACHE_HOME", ".cache") / name;
    fs::create_directories(cache, ec);
    return cache;
}

}  // namespace flowloom
