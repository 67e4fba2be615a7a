#include "support/AtomicFile.h"

#include "support/VbError.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <string>

namespace flowloom {

namespace {

[[noreturn]] void RaiseForErrno(int error, const std::filesystem::path& path) {
    const std::int32_t number = error == ENOSPC || error == EDQUOT ? 61 : error == EACCES || error == EPERM || error == EROFS ? 70 : 75;
    throw VbError(number, StandardErrorText(number) + ": " + path.string() + " (" + std::strerror(error) + ")");
}

// Owns a descriptor and, until released, the temporary file's name.
class TempFile {
public:
    explicit TempFile(const std::filesystem::path& target) : name_(target.string() + ".tmp-XXXXXX") {
        fd_ = ::mkstemp(name_.data());
        if (fd_ < 0) RaiseForErrno(errno, target);
    }
    ~TempFile() {
        if (fd_ >= 0) ::close(fd_);
        if (!committed_) ::unlink(name_.c_str());
    }
    TempFile(const TempFile&) = delete;
    TempFile& operator=(const TempFile&) = delete;

    void Write(std::string_view data) {
        while (!data.empty()) {
            const ssize_t n = ::write(fd_, data.data(), data.size());
            if (n < 0) {
                if (errno == EINTR) continue;
                RaiseForErrno(errno, name_);
            }
            data.remove_prefix(static_cast<std::size_t>(n));
        }
    }
    void CopyModeFrom(const std::filesystem::path& target) {
        struct stat st {};
        if (::stat(target.c_str(), &st) == 0) ::fchmod(fd_, st.st_mode & 07777);
        else ::fchmod(fd_, 0644 & ~CurrentUmask());
    }
    void SyncAndClose() {
        if (::fsync(fd_) != 0) RaiseForErrno(errno, name_);
        const int fd = fd_;
        fd_ = -1;
        if (::close(fd) != 0) RaiseForErrno(errno, name_);
    }
    void RenameTo(const std::filesystem::path& target) {
        if (::rename(name_.c_str(), target.c_str()) != 0) RaiseForErrno(errno, target);
        committed_ = true;
    }

private:
    static mode_t CurrentUmask() {
        const mode_t mask = ::umask(0);
        ::umask(mask);
        return mask;
    }

    std::string name_;
    int fd_ = -1;
    bool committed_ = false;
};

void SyncFolder(const std::filesystem::path& folder) {
    const int fd = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY);
    if (fd < 0) return;
    ::fsync(fd);
    ::close(fd);
}

}  // namespace

void WriteFileAtomically(const std::filesystem::path& target, std::string_view contents) {
    // A read-only target stays read-only: renaming over it would bypass the
    // protection. Without write bits it counts as read-only even for root.
    struct stat st {};
    if (::stat(target.c_str(), &st) == 0 && (::access(target.c_str(), W_OK) != 0 || (st.st_mode & 0222) == 0))
        RaiseForErrno(EACCES, target);
    TempFile temp(target);
    temp.Write(contents);
    temp.CopyModeFrom(target);
    temp.SyncAndClose();
    temp.RenameTo(target);
    SyncFolder(target.parent_path());
}

}  // namespace flowloom
