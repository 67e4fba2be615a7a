#include "support/Trash.h"

#include "support/VbError.h"
#include "support/FileErrors.h"
#include "support/LocalTime.h"

#include <cctype>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

namespace flowloom {

namespace fs = std::filesystem;

namespace {

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using UniqueFile = std::unique_ptr<std::FILE, FileCloser>;

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

bool Exists(const fs::path& path) {
    std::error_code ec;
    return fs::exists(fs::symlink_status(path, ec));
}

// Claims a name in the trash by creating its .trashinfo exclusively, so that
// two programs trashing the same name at once cannot take the same slot:
// "name", "name.2", "name.3", ... Returns the name claimed.
std::string ClaimTrashName(const fs::path& trash, const fs::path& original) {
    const std::string base = original.filename().string();
    const std::string record =
        "[Trash Info]\nPath=" + EncodePath(original.string()) + "\nDeletionDate=" + FormatLocalTime("%Y-%m-%dT%H:%M:%S") + "\n";
    for (int n = 1;; ++n) {
        const std::string name = n == 1 ? base : base + "." + std::to_string(n);
        if (Exists(trash / "files" / name)) continue;
        UniqueFile info(std::fopen((trash / "info" / (name + ".trashinfo")).c_str(), "wx"));
        if (!info) {
            if (errno == EEXIST) continue;
            RaiseFileError(std::error_code(errno, std::generic_category()), true);
        }
        const bool written = std::fwrite(record.data(), 1, record.size(), info.get()) == record.size();
        if (std::fflush(info.get()) != 0 || !written) RaiseStandardError(61);
        return name;
    }
}

}  // namespace

fs::path TrashFolder() {
    if (const char* data = std::getenv("XDG_DATA_HOME"); data && *data) return fs::path(data) / "Trash";
    const char* home = std::getenv("HOME");
    return fs::path(home && *home ? home : "/tmp") / ".local" / "share" / "Trash";
}

void MoveToTrash(const fs::path& path) {
    fs::path original = fs::absolute(path).lexically_normal();
    if (original.filename().empty()) original = original.parent_path();  // "folder/" names the folder
    if (!Exists(original)) RaiseStandardError(vberr::FileNotFound);
    const fs::path trash = TrashFolder();
    std::error_code ec;
    fs::create_directories(trash / "files", ec);
    if (!ec) fs::create_directories(trash / "info", ec);
    if (ec) RaiseFileError(ec, true);

    const std::string name = ClaimTrashName(trash, original);
    try {
        MovePath(original, trash / "files" / name);
    } catch (...) {
        fs::remove(trash / "info" / (name + ".trashinfo"), ec);
        throw;
    }
}

}  // namespace flowloom
