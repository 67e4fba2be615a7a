#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

namespace flowloom {

// What becomes of the backup once the new file is in place.
enum class BackupRule {
    KeepWhenShorter,  // removed unless the new file is shorter than the old one
    Keep,             // kept whatever the lengths
};

// The outcome of a save: whether the new contents reached the file, the
// backup left beside it, and for a save that failed the cause as a numbered
// error (57 device I/O error, 61 disk full, 70 permission denied, 75 path or
// file access error, 76 path not found) with a text that names the file and
// the system's reason.
struct SaveOutcome {
    bool written = false;
    std::filesystem::path file;    // the file written: the target, or the file its links lead to
    std::filesystem::path backup;  // the backup kept, empty when there is none
    std::int32_t errorNumber = 0;
    std::string cause;
};

// Replaces `target` with `contents` so that no moment loses a byte:
// - A symbolic link is followed to the file it names, which is replaced
//   beside it; the link stays. A loop of links is an error.
// - An existing file first gets the backup `file + backupSuffix`, a hard link
//   to it (no copy, no space, nothing partial); where the file system has no
//   hard links, a copy under a temporary name renamed to the backup name. A
//   backup that fails stops the save.
// - The new contents go to a file without a name (O_TMPFILE), or where that
//   is not supported to a temporary name "FILE.flowloom-XXXXXX.tmp"; it gets
//   the old file's owner and group (where the process may set them) and mode,
//   is flushed to the disk, and is renamed over the file. A kill at any moment
//   leaves the old file or the new one, a complete backup or none.
// - Temporary files of that pattern that no running save holds are removed
//   from the folder first: they are what a killed save left behind.
// - An existing file that is read-only (no write permission, or no write bits
//   at all, also for root) is refused, and so is anything but a regular file.
// A failed save removes what it made and leaves the old file as it was.
SaveOutcome SaveFileSafely(const std::filesystem::path& target, std::string_view contents,
                           std::string_view backupSuffix, BackupRule rule);

// The points of a save where tests stop it or make it fail.
enum class SaveStep {
    LinkBackup,      // before the hard link of the backup
    CopyBackup,      // before each block of a backup copy
    RenameBackup,    // before the copy gets the backup name
    OpenUnnamed,     // before creating the file without a name
    OpenNamed,       // before creating a temporary name
    Write,           // before each block of the new contents
    Sync,            // before the flush to the disk
    LinkNew,         // before the unnamed file gets a temporary name
    Rename,          // before the rename over the file
    RemoveBackup,    // before removing a backup the rule does not keep
    Done,            // after the whole save
};

// For tests: called at each step; a result other than 0 makes that step fail
// with this errno (EOPNOTSUPP at OpenUnnamed, EPERM at LinkBackup choose the
// fallbacks). An empty hook removes it.
using SaveFaultHook = std::function<int(SaveStep)>;
void SetSaveFaultHook(SaveFaultHook hook);

// The size of the blocks written and copied, between which a save can stop.
inline constexpr std::size_t kSaveBlockSize = 64 * 1024;

}  // namespace flowloom
