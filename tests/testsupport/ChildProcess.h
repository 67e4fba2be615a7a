#pragma once

#include <sys/types.h>

#include <filesystem>
#include <functional>
#include <string>

namespace flowloom::test {

// Runs `body` in a forked child and returns the child's wait status; the
// child ends with exit status 0 when `body` returns true, 1 when false, and
// never runs the parent's clean-up.
int RunInChild(const std::function<bool()>& body);

// As RunInChild, with the child as the user nobody (group nogroup) when the
// tests run as root, so that permissions apply to it.
int RunAsUnprivileged(const std::function<bool()>& body);

bool RunsAsRoot();
uid_t NobodyUid();
gid_t NogroupGid();

// Whether a wait status is a normal exit with status 0.
bool Succeeded(int status);

// A tmpfs of a given size mounted on a fresh folder for the scope, for a disk
// that really fills up. Mounted() is false where mounting is not allowed.
class SmallFileSystem {
public:
    SmallFileSystem(const std::filesystem::path& mountPoint, std::size_t bytes, bool readOnly = false);
    ~SmallFileSystem();
    SmallFileSystem(const SmallFileSystem&) = delete;
    SmallFileSystem& operator=(const SmallFileSystem&) = delete;

    bool Mounted() const noexcept { return mounted_; }
    const std::filesystem::path& Path() const noexcept { return path_; }

private:
    std::filesystem::path path_;
    bool mounted_ = false;
};

}  // namespace flowloom::test
