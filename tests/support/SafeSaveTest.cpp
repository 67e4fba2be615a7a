// Saving a file: backups by link or copy, full disks, links, owners and what
// a save refuses, always with the old file intact when it fails.
#include "support/SafeSave.h"

#include "testsupport/ChildProcess.h"
#include "testsupport/TempFolder.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <set>
#include <vector>

namespace flowloom::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* kSuffix = ".123456789.bak";

struct StepFault {
    SaveStep step;
    int error;
    int skip = 0;  // calls of the step that pass before it fails
};

class SafeSave : public ::testing::Test {
protected:
    ~SafeSave() override { SetSaveFaultHook({}); }

    // The hook fails each listed step with its error.
    void Fail(std::vector<StepFault> faults) {
        SetSaveFaultHook([faults](SaveStep step) mutable {
            for (StepFault& f : faults)
                if (f.step == step && f.skip-- <= 0) return f.error;
            return 0;
        });
    }
    SaveOutcome Save(const fs::path& target, const std::string& text, BackupRule rule = BackupRule::KeepWhenShorter) {
        return SaveFileSafely(target, text, kSuffix, rule);
    }
    // The names in a folder, sorted.
    static std::set<std::string> Names(const fs::path& where) {
        std::set<std::string> names;
        for (const auto& entry : fs::directory_iterator(where)) names.insert(entry.path().filename().string());
        return names;
    }
    static ino_t Inode(const fs::path& path) {
        struct stat st {};
        ::stat(path.c_str(), &st);
        return st.st_ino;
    }

    TempFolder folder;
    const fs::path file = folder / "p.xml";
    const std::string old = std::string(150 * 1024, 'o');
    const std::string longer = std::string(200 * 1024, 'n');
    const std::string shorter = "short";
};

TEST_F(SafeSave, ANewFileHasNoBackupAndTheNextSaveLinksTheOldBytesAsOne) {
    const SaveOutcome created = Save(file, old);
    EXPECT_TRUE(created.written);
    EXPECT_EQ(created.errorNumber, 0);
    EXPECT_TRUE(created.backup.empty());
    const ino_t before = Inode(file);
    const SaveOutcome outcome = Save(file, shorter);
    ASSERT_TRUE(outcome.written) << outcome.cause;
    EXPECT_EQ(outcome.backup, folder / ("p.xml" + std::string(kSuffix)));
    EXPECT_EQ(Inode(outcome.backup), before);  // no copy: the old bytes stay where they were
    EXPECT_EQ(ReadAll(outcome.backup), old);
    EXPECT_EQ(ReadAll(file), shorter);
    EXPECT_EQ(Names(folder.Path()), (std::set<std::string>{"p.xml", "p.xml.123456789.bak"}));
}

TEST_F(SafeSave, TheRuleDecidesWhetherTheBackupStays) {
    WriteAll(file, old);
    EXPECT_TRUE(Save(file, longer).backup.empty());
    EXPECT_TRUE(Save(file, longer).backup.empty());  // equal length
    EXPECT_EQ(Names(folder.Path()), std::set<std::string>{"p.xml"});
    const SaveOutcome kept = Save(file, old + "more", BackupRule::Keep);
    EXPECT_EQ(ReadAll(kept.backup), longer);
}

TEST_F(SafeSave, WithoutHardLinksTheBackupIsACompleteCopy) {
    WriteAll(file, old);
    ::chmod(file.c_str(), 0640);
    Fail({{SaveStep::LinkBackup, EPERM}});
    const SaveOutcome outcome = Save(file, shorter);
    ASSERT_TRUE(outcome.written) << outcome.cause;
    EXPECT_EQ(ReadAll(outcome.backup), old);
    EXPECT_EQ(fs::status(outcome.backup).permissions(), fs::perms(0640));
    EXPECT_EQ(Names(folder.Path()), (std::set<std::string>{"p.xml", "p.xml.123456789.bak"}));
}

TEST_F(SafeSave, AFailedBackupStopsTheSaveAndLeavesNothingPartial) {
    WriteAll(file, old);
    const std::vector<std::vector<StepFault>> failures = {
        {{SaveStep::LinkBackup, ENOSPC}},
        {{SaveStep::LinkBackup, EPERM}, {SaveStep::CopyBackup, ENOSPC, 1}},  // in the middle of the copy
        {{SaveStep::LinkBackup, EPERM}, {SaveStep::RenameBackup, EIO}},
    };
    for (const auto& faults : failures) {
        Fail(faults);
        const SaveOutcome outcome = Save(file, shorter);
        EXPECT_FALSE(outcome.written);
        EXPECT_EQ(ReadAll(file), old);
        EXPECT_EQ(Names(folder.Path()), std::set<std::string>{"p.xml"});
        EXPECT_NE(outcome.cause.find("cannot back up to " + file.string() + kSuffix), std::string::npos) << outcome.cause;
    }
    Fail(failures[1]);
    const SaveOutcome full = Save(file, shorter);
    EXPECT_EQ(full.errorNumber, 61);
    EXPECT_EQ(full.cause.rfind("Disk full: ", 0), 0u) << full.cause;
}

TEST_F(SafeSave, AFullDiskWhileWritingLeavesTheOldFileAndNoBackup) {
    for (const bool unnamed : {true, false}) {
        SCOPED_TRACE(unnamed ? "file without a name" : "temporary name");
        WriteAll(file, old);
        std::vector<StepFault> faults = {{SaveStep::Write, ENOSPC, 1}};
        if (!unnamed) faults.push_back({SaveStep::OpenUnnamed, EOPNOTSUPP});
        Fail(faults);
        const SaveOutcome outcome = Save(file, longer);
        EXPECT_FALSE(outcome.written);
        EXPECT_EQ(outcome.errorNumber, 61);
        // The reason is the system's, in the user's language.
        EXPECT_EQ(outcome.cause, "Disk full: cannot write " + file.string() + " (" + std::strerror(ENOSPC) + ")");
        EXPECT_EQ(ReadAll(file), old);
        EXPECT_EQ(Names(folder.Path()), std::set<std::string>{"p.xml"});
    }
}

TEST_F(SafeSave, SavingThroughALinkReplacesTheFileItNamesAndKeepsTheLink) {
    fs::create_directory(folder / "real");
    const fs::path real = folder / "real" / "p.xml";
    WriteAll(real, old);
    fs::create_symlink("real/p.xml", folder / "middle.xml");
    fs::create_symlink("middle.xml", folder / "link.xml");
    const SaveOutcome outcome = Save(folder / "link.xml", shorter);
    ASSERT_TRUE(outcome.written) << outcome.cause;
    EXPECT_EQ(outcome.file, real);
    EXPECT_TRUE(fs::is_symlink(folder / "link.xml"));
    EXPECT_EQ(fs::read_symlink(folder / "link.xml"), "middle.xml");
    EXPECT_EQ(ReadAll(real), shorter);
    EXPECT_EQ(ReadAll(folder / "real" / ("p.xml" + std::string(kSuffix))), old);
    EXPECT_EQ(Names(folder.Path()), (std::set<std::string>{"link.xml", "middle.xml", "real"}));

    fs::create_symlink("real/new.xml", folder / "dangling.xml");
    ASSERT_TRUE(Save(folder / "dangling.xml", "made").written);
    EXPECT_EQ(ReadAll(folder / "real" / "new.xml"), "made");
}

TEST_F(SafeSave, OwnerGroupAndModeOfTheOldFileStay) {
    if (!RunsAsRoot()) GTEST_SKIP() << "only root can give a file to another owner";
    WriteAll(file, old);
    ASSERT_EQ(::chown(file.c_str(), NobodyUid(), NogroupGid()), 0);
    ASSERT_EQ(::chmod(file.c_str(), 0640), 0);
    ASSERT_TRUE(Save(file, shorter).written);
    struct stat st {};
    ASSERT_EQ(::stat(file.c_str(), &st), 0);
    EXPECT_EQ(st.st_uid, NobodyUid());
    EXPECT_EQ(st.st_gid, NogroupGid());
    EXPECT_EQ(st.st_mode & 07777, 0640u);
}

TEST_F(SafeSave, WhatCannotBeReplacedIsRefusedAndLeftAlone) {
    WriteAll(file, old);
    ::chmod(file.c_str(), 0444);
    EXPECT_EQ(Save(file, shorter).errorNumber, 70);
    EXPECT_EQ(ReadAll(file), old);
    fs::create_directory(folder / "dir.xml");
    const SaveOutcome directory = Save(folder / "dir.xml", shorter);
    EXPECT_EQ(directory.errorNumber, 75);
    EXPECT_NE(directory.cause.find(std::strerror(EISDIR)), std::string::npos);
    ASSERT_EQ(::mkfifo((folder / "fifo.xml").c_str(), 0644), 0);
    EXPECT_NE(Save(folder / "fifo.xml", shorter).cause.find("not a regular file"), std::string::npos);
    EXPECT_EQ(Save(folder / "missing" / "p.xml", shorter).errorNumber, 76);
    fs::create_symlink("b.xml", folder / "a.xml");
    fs::create_symlink("a.xml", folder / "b.xml");
    const SaveOutcome loop = Save(folder / "a.xml", "x");
    EXPECT_EQ(loop.errorNumber, 75);
    EXPECT_NE(loop.cause.find(std::strerror(ELOOP)), std::string::npos) << loop.cause;
    EXPECT_EQ(Names(folder.Path()), (std::set<std::string>{"a.xml", "b.xml", "dir.xml", "fifo.xml", "p.xml"}));
}

TEST_F(SafeSave, LeftoversOfKilledSavesGoButNotWhatARunningSaveHolds) {
    WriteAll(folder / "p.xml.flowloom-Ab12Cd.tmp", "killed");
    WriteAll(folder / "q.xml.flowloom-Zz99zz.tmp", "running");
    WriteAll(folder / "p.xml.tmp-Ab12Cd", "not ours");
    const int held = ::open((folder / "q.xml.flowloom-Zz99zz.tmp").c_str(), O_RDONLY);
    ASSERT_EQ(::flock(held, LOCK_EX), 0);
    ASSERT_TRUE(Save(file, "x").written);
    ::close(held);
    EXPECT_EQ(Names(folder.Path()), (std::set<std::string>{"p.xml", "p.xml.tmp-Ab12Cd", "q.xml.flowloom-Zz99zz.tmp"}));
}

}  // namespace
}  // namespace flowloom::test
