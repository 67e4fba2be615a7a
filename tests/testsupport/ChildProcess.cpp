#include "ChildProcess.h"

#include <grp.h>
#include <pwd.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

#include <string>

namespace flowloom::test {

int RunInChild(const std::function<bool()>& body) {
    const pid_t child = ::fork();
    if (child == 0) {
        bool ok = false;
        try {
            ok = body();
        } catch (...) {
        }
        ::_exit(ok ? 0 : 1);
    }
    int status = -1;
    if (child > 0) ::waitpid(child, &status, 0);
    return status;
}

int RunAsUnprivileged(const std::function<bool()>& body) {
    return RunInChild([&] {
        if (RunsAsRoot() && (::setgroups(0, nullptr) != 0 || ::setgid(NogroupGid()) != 0 || ::setuid(NobodyUid()) != 0))
            return false;
        return body();
    });
}

bool RunsAsRoot() { return ::geteuid() == 0; }

uid_t NobodyUid() {
    const passwd* user = ::getpwnam("nobody");
    return user ? user->pw_uid : 65534;
}

gid_t NogroupGid() {
    const group* g = ::getgrnam("nogroup");
    return g ? g->gr_gid : 65534;
}

bool Succeeded(int status) { return WIFEXITED(status) && WEXITSTATUS(status) == 0; }

SmallFileSystem::SmallFileSystem(const std::filesystem::path& mountPoint, std::size_t bytes, bool readOnly)
    : path_(mountPoint) {
    std::error_code ec;
    std::filesystem::create_directories(path_, ec);
    const std::string options = "size=" + std::to_string(bytes) + ",mode=0777";
    mounted_ = ::mount("flowloom-test", path_.c_str(), "tmpfs", readOnly ? MS_RDONLY : 0, options.c_str()) == 0;
}

SmallFileSystem::~SmallFileSystem() {
    if (mounted_) ::umount2(path_.c_str(), MNT_DETACH);
}

}  // namespace flowloom::test
