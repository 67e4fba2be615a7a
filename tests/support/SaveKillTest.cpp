// A save killed at any moment: the file is the old one or the new one, the
// backup is complete or absent, and a temporary file left behind goes at the
// next save to the folder.
#include "support/SafeSave.h"

#include "support/FileBytes.h"

#include "testsupport/ChildProcess.h"
#include "testsupport/TempFolder.h"

#include <gtest/gtest.h>

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <random>
#include <vector>

namespace flowloom::test {
namespace {

namespace fs = std::filesystem;

// The whole file in one read: the test reads many large files.
std::string Bytes(const fs::path& path) { return ReadFileBytes(path).value_or("<unreadable>"); }

bool IsBackup(const fs::path& path) { return path.extension() == ".bak"; }
bool IsTemporary(const fs::path& path) {
    const std::string name = path.filename().string();
    return name.find(".flowloom-") != std::string::npos && path.extension() == ".tmp";
}

std::vector<fs::path> Matching(const fs::path& folder, bool (*test)(const fs::path&)) {
    std::vector<fs::path> found;
    for (const auto& entry : fs::directory_iterator(folder))
        if (test(entry.path())) found.push_back(entry.path());
    return found;
}

struct Mode {
    const char* name;
    bool unnamed;     // the new file without a name, or under a temporary one
    bool linkBackup;  // the backup by a hard link, or by a copy
};

// How often a kill left the old file and how often the new one.
struct Tally {
    int old = 0;
    int fresh = 0;
};

class KilledSave : public ::testing::Test {
protected:
    ~KilledSave() override { SetSaveFaultHook({}); }

    static SaveFaultHook ModeHook(const Mode& mode, std::vector<SaveStep>* steps, int killAt) {
        auto calls = std::make_shared<int>(0);
        return [=](SaveStep step) {
            if (steps) steps->push_back(step);
            if (++*calls == killAt) ::raise(SIGKILL);
            if (!mode.unnamed && step == SaveStep::OpenUnnamed) return EOPNOTSUPP;
            if (!mode.linkBackup && step == SaveStep::LinkBackup) return EPERM;
            return 0;
        };
    }

    // The steps a whole save takes in this mode.
    std::vector<SaveStep> StepsOfASave(const Mode& mode, const std::string& next) {
        TempFolder scratch;
        WriteAll(scratch / "p.xml", old);
        std::vector<SaveStep> steps;
        SetSaveFaultHook(ModeHook(mode, &steps, 0));
        EXPECT_TRUE(SaveFileSafely(scratch / "p.xml", next, ".1.bak", BackupRule::KeepWhenShorter).written);
        SetSaveFaultHook({});
        return steps;
    }

    // Kills a save at its step `killAt` (1-based) and checks what it left.
    void KillAt(const Mode& mode, int killAt, SaveStep step, const std::string& next, Tally& tally) {
        TempFolder scratch;
        const fs::path file = scratch / "p.xml";
        WriteAll(file, old);
        const int status = RunInChild([&] {
            SetSaveFaultHook(ModeHook(mode, nullptr, killAt));
            return SaveFileSafely(file, next, ".1.bak", BackupRule::KeepWhenShorter).written;
        });
        ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) << "status " << status;
        const std::string now = Bytes(file);
        ASSERT_TRUE(now == old || now == next) << "a mix of both, " << now.size() << " bytes";
        ++(now == old ? tally.old : tally.fresh);
        const std::vector<fs::path> backups = Matching(scratch.Path(), IsBackup);
        ASSERT_LE(backups.size(), 1u);
        for (const fs::path& backup : backups) EXPECT_EQ(Bytes(backup), old) << "an incomplete backup";
        const std::vector<fs::path> leftovers = Matching(scratch.Path(), IsTemporary);
        // Without hard links or unnamed files a kill leaves the file being
        // written; else only the moment between naming the new file and its
        // rename does, and then it is the whole new file.
        if (mode.unnamed && mode.linkBackup) {
            EXPECT_EQ(leftovers.size(), step == SaveStep::Rename ? 1u : 0u);
            for (const fs::path& leftover : leftovers) EXPECT_EQ(Bytes(leftover), next);
        }
        // The next save clears it away.
        ASSERT_TRUE(SaveFileSafely(file, next, ".2.bak", BackupRule::KeepWhenShorter).written);
        EXPECT_TRUE(Matching(scratch.Path(), IsTemporary).empty());
        EXPECT_EQ(Bytes(file), next);
    }

    const std::string old = std::string(150 * 1024, 'o');
};

TEST_F(KilledSave, AtEveryStepLeavesTheOldOrTheNewFileAndACompleteBackupOrNone) {
    const Mode modes[] = {{"unnamed file, linked backup", true, true},
                          {"unnamed file, copied backup", true, false},
                          {"temporary name, linked backup", false, true},
                          {"temporary name, copied backup", false, false}};
    const std::string nexts[] = {std::string(200 * 1024, 'n'), std::string(70 * 1024, 's')};
    Tally tally;
    for (const Mode& mode : modes) {
        for (const std::string& next : nexts) {
            SCOPED_TRACE(std::string(mode.name) + (next.size() > old.size() ? ", longer" : ", shorter"));
            const std::vector<SaveStep> steps = StepsOfASave(mode, next);
            ASSERT_GT(steps.size(), 5u);
            for (std::size_t k = 1; k <= steps.size(); ++k) KillAt(mode, static_cast<int>(k), steps[k - 1], next, tally);
        }
    }
    EXPECT_GT(tally.old, 0);
    EXPECT_GT(tally.fresh, 0);
}

TEST_F(KilledSave, AtRandomMomentsOfSavesThatFollowEachOther) {
    TempFolder scratch;
    const fs::path file = scratch / "p.xml";
    const std::string a(300 * 1024, 'a');
    const std::string b(200 * 1024, 'b');
    WriteAll(file, a);
    std::mt19937 random(4242);
    std::uniform_int_distribution<int> delay(0, 15000);
    for (int round = 0; round < 120; ++round) {
        const pid_t child = ::fork();
        if (child == 0) {
            for (long i = 0;; ++i)
                SaveFileSafely(file, i % 2 ? a : b, "." + std::to_string(i) + ".bak", BackupRule::KeepWhenShorter);
        }
        ASSERT_GT(child, 0);
        ::usleep(static_cast<useconds_t>(delay(random)));
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        const std::string now = Bytes(file);
        ASSERT_TRUE(now == a || now == b) << "a mix, " << now.size() << " bytes";
        for (const fs::path& backup : Matching(scratch.Path(), IsBackup)) {
            const std::string kept = Bytes(backup);
            EXPECT_TRUE(kept == a || kept == b) << "an incomplete backup of " << kept.size() << " bytes";
            fs::remove(backup);
        }
        ASSERT_TRUE(SaveFileSafely(file, a, ".x.bak", BackupRule::KeepWhenShorter).written);
        EXPECT_TRUE(Matching(scratch.Path(), IsTemporary).empty());
    }
}

}  // namespace
}  // namespace flowloom::test
