// File services: names, copies, renames, deletes, the trash and folder trees.
#include "support/CFSO.h"

#include "support/PathText.h"
#include "support/Trash.h"
#include "testsupport/ScriptedPrompts.h"
#include "testsupport/TempFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

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
    EXPECT_EQ(fso.GetParentFolderName("/home/a/b.xml"), "/home/a");
    EXPECT_EQ(fso.BuildPath("C:\\data", "x.doc"), "C:\\data\\x.doc");
    EXPECT_EQ(fso.BuildPath("/tmp/", "x"), "/tmp/x");
    EXPECT_EQ(fso.GetBaseName("C:\\a\\report.final.doc"), "report.final");
    EXPECT_EQ(fso.GetExtensionName("/a/b.TXT"), "TXT");
    EXPECT_EQ(fso.GetDriveName("\\\\server\\share\\a"), "\\\\server\\share");
    EXPECT_EQ(fso.GetDriveName("D:\\x"), "D:");
    EXPECT_EQ(fso.FilePath("C:\\a\\b.doc", true), "C:\\a\\");
    EXPECT_EQ(fso.FileName("/x/y/z.txt"), "z.txt");
}

TEST_F(FileServices, CopyIntoItsOwnFolderNumbersTheCopies) {
    const std::string source = Make("x.txt");
    std::string name;
    ASSERT_TRUE(fso.CopyFile(source, folder.Path().string(), name));
    EXPECT_EQ(name, "Copy of x.txt");
    name.clear();
    ASSERT_TRUE(fso.CopyFile(source, {}, name));
    EXPECT_EQ(name, "Copy (2) of x.txt");
    EXPECT_TRUE(fs::exists(folder / "Copy (2) of x.txt"));
}

TEST_F(FileServices, MoveRefusesExistingTargetsWithTheirMessages) {
    const std::string source = Make("a.txt");
    Make("b.txt");
    fs::create_directory(folder / "dir");
    std::string name = "b.txt";
    EXPECT_FALSE(fso.MoveFile(source, folder.Path().string(), name));
    name = "dir";
    EXPECT_FALSE(fso.MoveFile(source, folder.Path().string(), name));
    ASSERT_EQ(prompts.boxes.size(), 2u);
    EXPECT_EQ(prompts.boxes[0].prompt, "The destination is an existing file.");
    EXPECT_EQ(prompts.boxes[1].prompt, "The destination is an existing folder.");
    EXPECT_EQ(prompts.boxes[0].style, 48);
    name.clear();
    ASSERT_TRUE(fso.MoveFile(source, (folder / "dir").string(), name));
    EXPECT_TRUE(fs::exists(folder / "dir" / "a.txt"));
}

TEST_F(FileServices, FolderCannotMoveIntoItself) {
    fs::create_directories(folder / "outer" / "inner");
    std::string name;
    EXPECT_FALSE(fso.MoveFolder((folder / "outer").string(), (folder / "outer" / "inner").string(), name));
    ASSERT_EQ(prompts.boxes.size(), 1u);
    EXPECT_EQ(prompts.boxes[0].prompt, "It is impssible.");
}

TEST_F(FileServices, RenamingOntoAFolderNameIsRefusedLikeAFile) {
    const std::string source = Make("a.txt");
    fs::create_directory(folder / "taken");
    EXPECT_FALSE(fso.RenameFile(source, "taken"));
    ASSERT_EQ(prompts.boxes.size(), 1u);
    EXPECT_EQ(prompts.boxes[0].prompt,
              "Cannot rename 'a.txt': A file or folder with the name you specified already exists. Specify a different name.");
    EXPECT_TRUE(fso.RenameFile(source, "c.txt"));
    EXPECT_TRUE(fs::exists(folder / "c.txt"));
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

TEST_F(FileServices, RecycleBinIsTheDesktopTrash) {
    TempFolder data;
    const char* old = std::getenv("XDG_DATA_HOME");
    const std::string saved = old ? old : "";
    setenv("XDG_DATA_HOME", data.Path().c_str(), 1);
    const std::string file = Make("old letter.txt");
    EXPECT_TRUE(fso.DeleteFile(file, true, false, false));
    EXPECT_FALSE(fs::exists(file));
    EXPECT_TRUE(fs::exists(data / "Trash" / "files" / "old letter.txt"));
    const std::string info = ReadAll(data / "Trash" / "info" / "old letter.txt.trashinfo");
    EXPECT_NE(info.find("Path=" + folder.Path().string() + "/old%20letter.txt"), std::string::npos) << info;
    if (old) setenv("XDG_DATA_HOME", saved.c_str(), 1);
    else unsetenv("XDG_DATA_HOME");
}

TEST_F(FileServices, CreateFoldersMakesEveryLevelAndStopsAtAFile) {
    EXPECT_TRUE(fso.CreateFolders((folder / "a" / "b" / "c").string()));
    EXPECT_TRUE(fs::is_directory(folder / "a" / "b" / "c"));
    Make("file");
    EXPECT_FALSE(fso.CreateFolders((folder / "file" / "x" / "y").string()));
    EXPECT_FALSE(fs::exists(folder / "file" / "x"));
}

TEST_F(FileServices, NewFolderNamesCountUpFromTwo) {
    std::string name;
    ASSERT_TRUE(fso.CreateNewFolder(folder.Path().string(), name));
    EXPECT_EQ(name, "New folder");
    ASSERT_TRUE(fso.CreateNewFolder(folder.Path().string(), name));
    EXPECT_EQ(name, "New folder (2)");
    EXPECT_TRUE(fso.FolderIsEmpty((folder / "New folder").string()));
}

}  // namespace
}  // namespace flowloom::test
