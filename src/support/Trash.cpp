#include "support/Trash.h"

#include "app/VbError.h"
#include "support/LocalTime.h"

#include <cstdlib>
#include <ctime>
#include <fstream>
#include <string>

namespace flowloom {

namespace fs = std::filesystem;

namespace {

// Percent-encodes a path for the Path= line of a .trashinfo file.
std::string EncodePath(const std::string& path) {
    static const char* hex = "0123456789ABCDEF";
    std::string out;
    for (unsigned char c : path) {
        if (std::isalnum(c) || c == '/' || c == '-' || c == '_' || c == '.' || c == '~') {
            out += static_cast<char>(c);
        } else {
            out += '%';
            out += hex[c >> 4];
            out += hex[c & 15];
        }
    }
    return out;
}

}  // namespace

fs::path TrashFolder() {
    if (const char* data = std::getenv("XDG_DATA_HOME"); data && *data) return fs::path(data) / "Trash";
    const char* home = std::getenv("HOME");
    return fs::path(home && *home ? home : "/tmp") / ".local" / "share" / "Trash";
}

void MoveToTrash(const fs::path& path) {
    const fs::path absolute = fs::absolute(path);
    if (!fs::exists(fs::symlink_status(absolute))) RaiseStandardError(vberr::FileNotFound);
    const fs::path trash = TrashFolder();
    fs::create_directories(trash / "files");
    fs::create_directories(trash / "info");

    // A name not yet used in the trash: "name", "name.2", "name.3", ...
    const std::string base = absolute.filename().string();
    std::string name = base;
    for (int n = 2; fs::exists(trash / "info" / (name + ".trashinfo")) || fs::exists(fs::symlink_status(trash / "files" / name)); ++n)
        name = base + "." + std::to_string(n);

    const fs::path info = trash / "info" / (name + ".trashinfo");
    {
        std::ofstream out(info, std::ios::binary | std::ios::trunc);
        out << "[Trash Info]\nPath=" << EncodePath(absolute.string()) << "\nDeletionDate=" << FormatLocalTime("%Y-%m-%dT%H:%M:%S") << "\n";
        if (!out) RaiseStandardError(75);
    }
    std::error_code ec;
    fs::rename(absolute, trash / "files" / name, ec);
    if (ec) {
        fs::remove(info);
        throw VbError(75, StandardErrorText(75) + ": " + ec.message());
    }
}

}  // namespace flowloom
