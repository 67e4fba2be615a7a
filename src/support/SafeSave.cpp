#include "support/SafeSave.h"

#include "support/FileErrors.h"
#include "support/SaveParts.h"
#include "support/VbError.h"

#include <cstring>
#include <memory>

namespace flowloom {

namespace {

namespace fs = std::filesystem;

fs::path FolderOf(const fs::path& file) {
    const fs::path folder = file.parent_path();
    return folder.empty() ? fs::path(".") : folder;
}

// "Disk full: cannot write /data/processes.xml (No space left on device)".
void Describe(const save::SaveFailure& failure, SaveOutcome& outcome) {
    const std::error_code error(failure.error, std::generic_category());
    outcome.errorNumber = FileErrorNumber(error, false);
    if (outcome.errorNumber == vberr::FileNotFound) outcome.errorNumber = vberr::PathNotFound;
    const std::string reason = failure.reason.empty() ? std::strerror(failure.error) : failure.reason;
    outcome.cause = StandardErrorText(outcome.errorNumber) + ": " + failure.action + " " + failure.path.string() + " (" +
                    reason + ")";
}

// The old file, once replaced, lives on only as its backup; the rule decides
// whether that stays.
void ApplyRule(std::unique_ptr<save::Backup>& backup, BackupRule rule, bool shorter, SaveOutcome& outcome) {
    if (!backup) return;
    if (rule == BackupRule::Keep || shorter || save::Injected(SaveStep::RemoveBackup)) {
        backup->Keep();
        outcome.backup = backup->Path();
    }
    backup.reset();
}

}  // namespace

SaveOutcome SaveFileSafely(const fs::path& target, std::string_view contents, std::string_view backupSuffix,
                           BackupRule rule) {
    SaveOutcome outcome;
    try {
        const fs::path file = save::ResolveLinks(target);
        outcome.file = file;
        const fs::path folder = FolderOf(file);
        save::RemoveStaleTemporaries(folder);
        const std::optional<struct stat> old = save::ReplaceableFile(file);

        std::unique_ptr<save::Backup> backup;
        if (old) backup = std::make_unique<save::Backup>(file, fs::path(file.string() + std::string(backupSuffix)));
        {
            save::NewFile next(folder, file.filename(), save::NewFile::Purpose::Contents);
            next.Write(contents);
            next.Adopt(old);
            next.Sync();
            next.CommitAs(file);
        }
        outcome.written = true;
        // From here on nothing can undo the save: failures are ignored.
        save::SyncFolder(folder);
        ApplyRule(backup, rule, old && static_cast<std::uintmax_t>(old->st_size) > contents.size(), outcome);
        save::Injected(SaveStep::Done);
    } catch (const save::SaveFailure& failure) {
        Describe(failure, outcome);
    }
    return outcome;
}

}  // namespace flowloom
