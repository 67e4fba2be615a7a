#pragma once

// The pieces SaveFileSafely is made of. Each raises SaveFailure, which the
// save turns into its outcome.
#include "support/SafeSave.h"
#include "support/UniqueFd.h"

#include <sys/stat.h>

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace flowloom::save {

namespace fs = std::filesystem;

// A step that failed: the system's error, the file concerned and what was
// being done to it ("cannot write").
struct SaveFailure {
    int error;
    fs::path path;
    std::string action;
    std::string reason;  // instead of the system's text, where there is none
};

// Whether the test hook makes this step fail; it then sets errno.
bool Injected(SaveStep step);
[[noreturn]] void Fail(const fs::path& path, std::string action, int error = errno);

// The file a path leads to: symbolic links followed (relative ones from their
// own folder); the path itself when it is no link or does not exist.
fs::path ResolveLinks(const fs::path& target);

// The status of an existing file that may be replaced; nothing when there is
// none. Refuses folders, anything else that is no regular file, and read-only files.
std::optional<struct stat> ReplaceableFile(const fs::path& file);

// "FILE.flowloom-XXXXXX.tmp": the temporary names of saves in a folder.
bool IsTemporaryName(std::string_view name);
// Removes the files of temporary names in the folder that no save holds
// (each save holds a lock on its temporary file until it is done).
void RemoveStaleTemporaries(const fs::path& folder);

// A new file in a folder that becomes another file by a rename: without a
// name where the file system allows (a kill leaves nothing), else under a
// temporary name that it removes again unless it was committed. It holds a
// lock on the file until it is gone.
class NewFile {
public:
    // The new contents of a file, or the copy that becomes a backup (always
    // named; its steps are CopyBackup and RenameBackup).
    enum class Purpose { Contents, BackupCopy };

    NewFile(const fs::path& folder, const fs::path& fileName, Purpose purpose);
    ~NewFile();
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    void Write(std::string_view data);
    // Owner, group and mode of the file it replaces; a new file's mode otherwise.
    void Adopt(const std::optional<struct stat>& old);
    void Sync();
    // Renames it over `target`; from then on it is the target.
    void CommitAs(const fs::path& target);

private:
    SaveStep StepFor(SaveStep step) const;
    std::string Action() const;  // what failed, for the cause
    fs::path TemporaryName() const;
    bool OpenUnnamed();
    void OpenNamed();
    void GiveName();

    fs::path folder_;
    fs::path fileName_;
    Purpose purpose_;
    fs::path name_;  // empty while it has none
    UniqueFd fd_;
    bool committed_ = false;
};

// The backup of a file about to be replaced: a hard link, or a copy where the
// file system has none. Removed again unless Keep is called.
class Backup {
public:
    Backup(const fs::path& file, const fs::path& backup);
    ~Backup();
    Backup(const Backup&) = delete;
    Backup& operator=(const Backup&) = delete;

    void Keep() noexcept { kept_ = true; }
    const fs::path& Path() const noexcept { return path_; }

private:
    void Copy(const fs::path& file);

    fs::path path_;
    bool kept_ = false;
};

void SyncFolder(const fs::path& folder);

}  // namespace flowloom::save
