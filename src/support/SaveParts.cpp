#include "support/SaveParts.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cctype>
#include <cerrno>

namespace flowloom::save {

namespace {

SaveFaultHook& Hook() {
    static SaveFaultHook hook;
    return hook;
}

// The kernel's own limit of links followed in one lookup.
constexpr int kMostLinks = 40;

}  // namespace

bool Injected(SaveStep step) {
    if (!Hook()) return false;
    const int error = Hook()(step);
    if (error == 0) return false;
    errno = error;
    return true;
}

void Fail(const fs::path& path, std::string action, int error) { throw SaveFailure{error, path, std::move(action), {}}; }

fs::path ResolveLinks(const fs::path& target) {
    fs::path path = target;
    for (int followed = 0;; ++followed) {
        struct stat st {};
        if (::lstat(path.c_str(), &st) != 0) {
            if (errno == ENOENT) return path;
            Fail(path, "cannot follow the links of");
        }
        if (!S_ISLNK(st.st_mode)) return path;
        if (followed == kMostLinks) Fail(target, "cannot follow the links of", ELOOP);
        std::error_code ec;
        const fs::path next = fs::read_symlink(path, ec);
        if (ec) Fail(path, "cannot follow the links of", ec.value());
        path = next.is_absolute() ? next : path.parent_path() / next;
    }
}

std::optional<struct stat> ReplaceableFile(const fs::path& file) {
    struct stat st {};
    if (::stat(file.c_str(), &st) != 0) {
        if (errno == ENOENT) return std::nullopt;
        Fail(file, "cannot replace");
    }
    if (S_ISDIR(st.st_mode)) Fail(file, "cannot replace", EISDIR);
    if (!S_ISREG(st.st_mode)) throw SaveFailure{EINVAL, file, "cannot replace", "not a regular file"};
    // A read-only file stays read-only: renaming over it would bypass the
    // protection. Without write bits it counts as read-only even for root.
    if (::faccessat(AT_FDCWD, file.c_str(), W_OK, AT_EACCESS) != 0 || (st.st_mode & 0222) == 0)
        Fail(file, "cannot replace", EACCES);
    return st;
}

bool IsTemporaryName(std::string_view name) {
    constexpr std::string_view tag = ".flowloom-";
    constexpr std::string_view suffix = ".tmp";
    constexpr std::size_t random = 6;
    if (name.size() <= tag.size() + random + suffix.size()) return false;
    const std::size_t tagAt = name.size() - suffix.size() - random - tag.size();
    if (name.substr(name.size() - suffix.size()) != suffix || name.substr(tagAt, tag.size()) != tag) return false;
    for (std::size_t i = tagAt + tag.size(); i < name.size() - suffix.size(); ++i)
        if (!std::isalnum(static_cast<unsigned char>(name[i]))) return false;
    return true;
}

void RemoveStaleTemporaries(const fs::path& folder) {
    const UniqueFd dirFd(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!dirFd) return;
    DIR* dir = ::fdopendir(::dup(dirFd.Get()));
    if (!dir) return;
    while (const dirent* entry = ::readdir(dir)) {
        if (!IsTemporaryName(entry->d_name)) continue;
        const UniqueFd fd(::openat(dirFd.Get(), entry->d_name, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
        struct stat st {};
        if (!fd || ::fstat(fd.Get(), &st) != 0 || !S_ISREG(st.st_mode)) continue;
        // The lock is free only when the save that made the file is gone.
        if (::flock(fd.Get(), LOCK_EX | LOCK_NB) == 0) ::unlinkat(dirFd.Get(), entry->d_name, 0);
    }
    ::closedir(dir);
}

void SyncFolder(const fs::path& folder) {
    const UniqueFd fd(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (fd) ::fsync(fd.Get());
}

}  // namespace flowloom::save

namespace flowloom {

void SetSaveFaultHook(SaveFaultHook hook) { save::Hook() = std::move(hook); }

}  // namespace flowloom
