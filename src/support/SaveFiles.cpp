// The new file and the backup of a save.
#include "support/SaveParts.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <random>

namespace flowloom::save {

namespace {

constexpr int kMostNameAttempts = 100;

std::string RandomTag() {
    static constexpr std::string_view alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789";
    thread_local std::mt19937 random{std::random_device{}()};
    std::uniform_int_distribution<std::size_t> pick(0, alphabet.size() - 1);
    std::string tag(6, ' ');
    for (char& c : tag) c = alphabet[pick(random)];
    return tag;
}

mode_t CurrentUmask() {
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return mask;
}

// Errors of a file system that cannot give a file a second name.
bool NoHardLinks(int error) { return error == EPERM || error == EOPNOTSUPP || error == EMLINK || error == ENOSYS; }

// Errors of a kernel or file system without files that have no name.
bool NoUnnamedFiles(int error) { return error == EOPNOTSUPP || error == EISDIR || error == EINVAL; }

bool SameFile(const fs::path& name, int fd) {
    struct stat byName {};
    struct stat byFd {};
    return ::stat(name.c_str(), &byName) == 0 && ::fstat(fd, &byFd) == 0 && byName.st_ino == byFd.st_ino &&
           byName.st_dev == byFd.st_dev;
}

}  // namespace

NewFile::NewFile(const fs::path& folder, const fs::path& fileName, Purpose purpose)
    : folder_(folder.empty() ? fs::path(".") : folder), fileName_(fileName), purpose_(purpose) {
    if (purpose_ == Purpose::BackupCopy || !OpenUnnamed()) OpenNamed();
}

NewFile::~NewFile() {
    if (!committed_ && !name_.empty()) ::unlink(name_.c_str());
}

SaveStep NewFile::StepFor(SaveStep step) const {
    if (purpose_ == Purpose::Contents) return step;
    return step == SaveStep::Rename ? SaveStep::RenameBackup : SaveStep::CopyBackup;
}

std::string NewFile::Action() const { return purpose_ == Purpose::Contents ? "cannot write" : "cannot back up to"; }

fs::path NewFile::TemporaryName() const { return folder_ / (fileName_.string() + ".flowloom-" + RandomTag() + ".tmp"); }

bool NewFile::OpenUnnamed() {
    const int fd = Injected(SaveStep::OpenUnnamed) ? -1 : ::open(folder_.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, 0600);
    if (fd < 0) {
        if (NoUnnamedFiles(errno)) return false;
        Fail(folder_ / fileName_, Action());
    }
    fd_ = UniqueFd(fd);
    // Held until the save is done: a save that clears leftovers passes by a
    // temporary name whose file is locked.
    ::flock(fd, LOCK_EX);
    return true;
}

void NewFile::OpenNamed() {
    for (int attempt = 0; attempt < kMostNameAttempts; ++attempt) {
        fs::path name = TemporaryName();
        const bool injected = Injected(StepFor(SaveStep::OpenNamed));
        UniqueFd fd(injected ? -1 : ::open(name.c_str(), O_CREAT | O_EXCL | O_RDWR | O_NOFOLLOW | O_CLOEXEC, 0600));
        if (!fd) {
            if (errno == EEXIST) continue;
            Fail(folder_ / fileName_, Action());
        }
        ::flock(fd.Get(), LOCK_EX);
        // A save that cleared leftovers between the creation and the lock has
        // removed the name: take another.
        if (!SameFile(name, fd.Get())) continue;
        fd_ = std::move(fd);
        name_ = std::move(name);
        return;
    }
    Fail(folder_ / fileName_, Action(), EEXIST);
}

void NewFile::Write(std::string_view data) {
    while (!data.empty()) {
        if (Injected(StepFor(SaveStep::Write))) Fail(folder_ / fileName_, Action());
        const ssize_t n = ::write(fd_.Get(), data.data(), std::min(data.size(), kSaveBlockSize));
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) Fail(folder_ / fileName_, Action());
        data.remove_prefix(static_cast<std::size_t>(n));
    }
}

void NewFile::Adopt(const std::optional<struct stat>& old) {
    if (!old) {
        ::fchmod(fd_.Get(), 0644 & ~CurrentUmask());
        return;
    }
    // Whatever of the owner the process may set; a change of owner clears the
    // set-user-ID and set-group-ID bits, so the mode comes after it.
    if (::fchown(fd_.Get(), old->st_uid, old->st_gid) != 0) (void)::fchown(fd_.Get(), static_cast<uid_t>(-1), old->st_gid);
    ::fchmod(fd_.Get(), old->st_mode & 07777);
}

void NewFile::Sync() {
    if (Injected(StepFor(SaveStep::Sync)) || ::fsync(fd_.Get()) != 0) Fail(folder_ / fileName_, Action());
}

void NewFile::GiveName() {
    const std::string self = "/proc/self/fd/" + std::to_string(fd_.Get());
    for (int attempt = 0; attempt < kMostNameAttempts; ++attempt) {
        fs::path name = TemporaryName();
        if (Injected(SaveStep::LinkNew)) Fail(folder_ / fileName_, Action());
        int result = ::linkat(AT_FDCWD, self.c_str(), AT_FDCWD, name.c_str(), AT_SYMLINK_FOLLOW);
        // Without /proc: the same by the descriptor, which needs a capability.
        if (result != 0 && errno == ENOENT) result = ::linkat(fd_.Get(), "", AT_FDCWD, name.c_str(), AT_EMPTY_PATH);
        if (result == 0) {
            name_ = std::move(name);
            return;
        }
        if (errno != EEXIST) Fail(folder_ / fileName_, Action());
    }
    Fail(folder_ / fileName_, Action(), EEXIST);
}

void NewFile::CommitAs(const fs::path& target) {
    // Linux cannot link a file without a name over another one: it gets a
    // temporary name for the moment between the link and the rename.
    if (name_.empty()) GiveName();
    if (Injected(StepFor(SaveStep::Rename)) || ::rename(name_.c_str(), target.c_str()) != 0)
        Fail(target, purpose_ == Purpose::Contents ? "cannot replace" : Action());
    committed_ = true;
}

Backup::Backup(const fs::path& file, const fs::path& backup) : path_(backup) {
    auto link = [&] { return Injected(SaveStep::LinkBackup) || ::link(file.c_str(), backup.c_str()) != 0 ? errno : 0; };
    int error = link();
    if (error == EEXIST) {
        // Two saves within one tick of the name's clock share the name: the
        // later backup wins.
        if (::unlink(backup.c_str()) != 0 && errno != ENOENT) Fail(backup, "cannot back up to");
        error = link();
    }
    if (error == 0) return;
    if (!NoHardLinks(error)) Fail(backup, "cannot back up to", error);
    Copy(file);
}

Backup::~Backup() {
    if (!kept_) ::unlink(path_.c_str());
}

void Backup::Copy(const fs::path& file) {
    const UniqueFd source(::open(file.c_str(), O_RDONLY | O_CLOEXEC));
    struct stat st {};
    if (!source || ::fstat(source.Get(), &st) != 0) Fail(file, "cannot read");
    NewFile copy(path_.parent_path(), path_.filename(), NewFile::Purpose::BackupCopy);
    std::string block(kSaveBlockSize, '\0');
    for (;;) {
        const ssize_t n = ::read(source.Get(), block.data(), block.size());
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) Fail(file, "cannot read");
        if (n == 0) break;
        copy.Write(std::string_view(block.data(), static_cast<std::size_t>(n)));
    }
    copy.Adopt(st);
    copy.Sync();
    copy.CommitAs(path_);
}

}  // namespace flowloom::save
