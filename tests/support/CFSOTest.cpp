// File services: names, copies, renames, deletes, the trash and folder trees.
#include "support/CFSO.h"

#include "support/FileHelpers.h"
#include "support/PathText.h"
#include "support/Trash.h"
#include "testsupport/ScriptedPrompts.h"
#include "testsupport/TempFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <optional>
#include <vector>

namespace flowloom::test {
namespace {

namespace fs = std::filesystem;

class FileServices : public ::testing::Test {
protected:
    std::string Make(const std::string& name, const std::string& text = "x") {
        WriteAll(folder / name, text);
        return (folder / name).string();
    }
    TempFolder folder;
    ScriptedPrompts prompts;
    CFSO fso;
};

TEST_F(FileServices, ValidBaseNameDropsIllegalCharacters) {
    EXPECT_EQ(fso.MakeValidBaseName("a:b*c"), "abc");
    EXPECT_EQ(fso.MakeValidBaseName("tab\there"), "tabhere");
    EXPECT_EQ(fso.MakeValidBaseName(R"(q"u<o>t|e?s/\)"), "quotes");
}

TEST_F(FileServices, PathTextOfBothPlatforms) {
    EXPECT_EQ(fso.GetParentFolderName("C:\\data\\db.mdb"), "C:\\data");
    EXPECT_EQ(fso.GetParentFolderName("C:\\db.mdb"), "C:\\");
    EXPECT_EQ(fso.BuildPath("C:\\data", "x.doc"), "C:\\data\\x.doc");
    EXPECT_EQ(fso.GetBaseName("C:\\a\\report.final.doc"), "report.final");
    EXPECT_EQ(fso.GetExtensionName("/a/b.TXT"), "TXT");
    EXPECT_EQ(fso.GetDriveName("\\\\server\\share\\a"), "\\\\server\\share");
    EXPECT_EQ(fso.FilePath("C:\\a\\b.doc", true), "C:\\a\\");
    EXPECT_EQ(fso.FilePath("C:\\a\\b.doc", false), "C:\\a");
    EXPECT_EQ(fso.FileName("/x/y/z.txt"), "z.txt");
    EXPECT_EQ(BuildPath("C:\\data/sub", "x.doc"), "C:\\data/sub\\x.doc");
    EXPECT_EQ(BuildPath("", "x.doc"), "x.doc");
    EXPECT_EQ(GetParentFolderName("\\\\server\\share\\a.mdb"), "\\\\server\\share");
    EXPECT_EQ(GetParentFolderName("/x.xml"), "/");
    EXPECT_EQ(GetParentFolderName("x.xml"), "");
    EXPECT_EQ(FilePath("a.txt", true), "");  // no folder, and not the root either
    EXPECT_EQ(FilePath("/a.txt", true), "/");
    EXPECT_FALSE(FileExists(""));
    EXPECT_FALSE(FolderExists(Make("a.txt")));
}

TEST(FolderLevels, RootsAreNeverAmongTheLevelsToCreate) {
    const struct {
        const char* path;
        const char* root;
        std::vector<std::string> levels;
    } cases[] = {{"\\\\server\\share\\a\\b", "\\\\server\\share", {"a", "b"}},
                 {"C:\\x\\\\y\\", "C:", {"x", "y"}},
                 {"/home/u/new", "/", {"home", "u", "new"}},
                 {"a/b", "", {"a", "b"}}};
    for (const auto& c : cases) {
        const auto split = pathtext::SplitFolderLevels(c.path);
        EXPECT_EQ(split.root, c.root) << c.path;
        EXPECT_EQ(split.levels, c.levels) << c.path;
    }
}

TEST_F(FileServices, CopiesIntoTheirOwnFolderAreNumbered) {
    const std::string source = Make("x.txt");
    std::string name;
    ASSERT_TRUE(fso.CopyFile(source, folder.Path().string(), name));
    EXPECT_EQ(name, "Copy of x.txt");
    name.clear();
    ASSERT_TRUE(fso.CopyFile(source, {}, name));
    EXPECT_EQ(name, "Copy (2) of x.txt");
    fs::create_directory(folder / "dir");
    WriteAll(folder / "dir" / "inner.txt", "inside");
    name.clear();
    ASSERT_TRUE(fso.CopyFolder((folder / "dir").string(), folder.Path().string(), name));
    EXPECT_EQ(name, "Copy of dir");
    EXPECT_EQ(ReadAll(folder / "Copy of dir" / "inner.txt"), "inside");
}

TEST_F(FileServices, FailuresAreReportedAsFileErrorsUnlessSilent) {
    std::string name;
    EXPECT_FALSE(fso.CopyFile((folder / "missing.txt").string(), (folder / "x").string(), name));
    ASSERT_EQ(prompts.errors.size(), 1u);
    EXPECT_EQ(prompts.errors[0].number, 53);
    EXPECT_EQ(prompts.errors[0].text, "Error 53: File not found ");
    fso.CreateFolder(folder.Path().string());
    ASSERT_EQ(prompts.errors.size(), 2u);
    EXPECT_EQ(prompts.errors[1].number, 58);
    EXPECT_FALSE(fso.DeleteFolder((folder / "missing").string(), false, false, true));
    EXPECT_EQ(prompts.errors.size(), 2u);
}

TEST_F(FileServices, MovesAndRenamesRefuseTakenNamesWithTheirMessages) {
    const std::string source = Make("a.txt");
    Make("b.txt");
    fs::create_directories(folder / "dir" / "inner");
    std::string name = "b.txt";
    EXPECT_FALSE(fso.MoveFile(source, folder.Path().string(), name));
    name = "dir";
    EXPECT_FALSE(fso.MoveFile(source, folder.Path().string(), name));
    name.clear();
    EXPECT_FALSE(fso.MoveFolder((folder / "dir").string(), (folder / "dir" / "inner").string(), name));
    EXPECT_FALSE(fso.RenameFile(source, "dir"));
    ASSERT_EQ(prompts.boxes.size(), 4u);
    EXPECT_EQ(prompts.boxes[0].prompt, "The destination is an existing file.");
    EXPECT_EQ(prompts.boxes[0].style, 48);
    EXPECT_EQ(prompts.boxes[1].prompt, "The destination is an existing folder.");
    EXPECT_EQ(prompts.boxes[2].prompt, "It is impssible.");
    EXPECT_EQ(prompts.boxes[3].prompt,
              "Cannot rename 'a.txt': A file or folder with the name you specified already exists. Specify a different name.");
    name.clear();
    ASSERT_TRUE(fso.MoveFile(source, (folder / "dir").string(), name));
    EXPECT_TRUE(fs::exists(folder / "dir" / "a.txt"));
    EXPECT_TRUE(fso.RenameFolder((folder / "dir").string(), "free"));
    EXPECT_TRUE(fs::exists(folder / "free" / "a.txt"));
}

TEST_F(FileServices, DeleteAsksFirstAndNoKeepsTheFile) {
    const std::string file = Make("a.txt");
    prompts.answers = {msgbox::No, msgbox::Yes};
    EXPECT_FALSE(fso.DeleteFile(file, false, true, false));
    EXPECT_EQ(prompts.boxes[0].prompt, "Are you sure you want to delete 'a.txt'?");
    EXPECT_TRUE(fs::exists(file));
    EXPECT_TRUE(fso.DeleteFile(file, false, true, false));
    EXPECT_FALSE(fs::exists(file));
    EXPECT_FALSE(fso.DeleteFile(file, false, false, true));  // silent: no report
    EXPECT_TRUE(prompts.errors.empty());
}

// Points the desktop's data folder at a temporary one for the test's scope.
class ScopedDataHome {
public:
    ScopedDataHome() { setenv("XDG_DATA_HOME", data_.Path().c_str(), 1); }
    ~ScopedDataHome() {
        if (saved_) setenv("XDG_DATA_HOME", saved_->c_str(), 1);
        else unsetenv("XDG_DATA_HOME");
    }
    fs::path Trash() const { return data_ / "Trash"; }

private:
    const std::optional<std::string> saved_ = []() -> std::optional<std::string> {
        const char* value = std::getenv("XDG_DATA_HOME");
        return value ? std::optional<std::string>(value) : std::nullopt;
    }();
    TempFolder data_;
};

TEST_F(FileServices, RecycleBinIsTheDesktopTrash) {
    ScopedDataHome home;
    const std::string file = Make("old letter.txt", "first");
    EXPECT_TRUE(fso.DeleteFile(file, true, false, false));
    EXPECT_FALSE(fs::exists(file));
    EXPECT_EQ(ReadAll(home.Trash() / "files" / "old letter.txt"), "first");
    const std::string info = ReadAll(home.Trash() / "info" / "old letter.txt.trashinfo");
    EXPECT_EQ(info.rfind("[Trash Info]\nPath=" + folder.Path().string() + "/old%20letter.txt\nDeletionDate=", 0), 0u)
        << info;

    // The same name again takes the next free slot and keeps the first.
    Make("old letter.txt", "second");
    EXPECT_TRUE(fso.RemoveToRecycleBin(file, false));
    EXPECT_EQ(ReadAll(home.Trash() / "files" / "old letter.txt.2"), "second");
    EXPECT_TRUE(fs::exists(home.Trash() / "info" / "old letter.txt.2.trashinfo"));

    fs::create_directories(folder / "dir" / "sub");
    EXPECT_TRUE(fso.DeleteFolder((folder / "dir").string() + "/", true, false, false));
    EXPECT_TRUE(fs::is_directory(home.Trash() / "files" / "dir" / "sub"));
}

TEST_F(FileServices, CreateFoldersMakesEveryLevelAndStopsAtAFile) {
    EXPECT_TRUE(fso.CreateFolders((folder / "a" / "b" / "c").string()));
    EXPECT_TRUE(fs::is_directory(folder / "a" / "b" / "c"));
    EXPECT_TRUE(fso.CreateFolders((folder / "a" / "b").string()));  // all there already
    Make("file");
    EXPECT_FALSE(fso.CreateFolders((folder / "file" / "x" / "y").string()));
    EXPECT_FALSE(fs::exists(folder / "file" / "x"));
    std::string name;
    ASSERT_TRUE(fso.CreateNewFolder(folder.Path().string(), name));
    ASSERT_TRUE(fso.CreateNewFolder(folder.Path().string(), name));
    EXPECT_EQ(name, "New folder (2)");
    EXPECT_TRUE(fso.FolderIsEmpty((folder / "New folder").string()));
}

}  // namespace
}  // namespace flowloom::test
