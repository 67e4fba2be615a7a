// Loading and saving whole processes files: failures, the version step, backups.
#include "ModelFixture.h"

#include "model/Process.h"

#include <filesystem>
#include <vector>

namespace flowloom::test {
namespace {

namespace fs = std::filesystem;

class ProcessesFile : public ModelFixture {};

TEST_F(ProcessesFile, MissingFileOrAnotherRootIsReportedAndNothingIsWritten) {
    auto processes = Processes::Create();
    const auto path = (folder / "nope.xml").string();
    processes->Load(path);
    ASSERT_EQ(prompts.errors.size(), 1u);
    EXPECT_EQ(prompts.errors[0].number, 30051);
    EXPECT_EQ(prompts.errors[0].description, "'" + path + "' is not a valid path.");
    EXPECT_FALSE(fs::exists(path));
    EXPECT_EQ(processes->Complete(), Processes::NotLoaded);
    // Another root is error 91 and leaves Complete as it was.
    processes = LoadText("<Other><Process Name=\"a\"/></Other>");
    ASSERT_EQ(prompts.errors.size(), 2u);
    EXPECT_EQ(prompts.errors[1].number, 91);
    EXPECT_EQ(processes->Complete(), Processes::NotLoaded);
    EXPECT_EQ(processes->Count(), 0);
}

TEST_F(ProcessesFile, UnparsableFileFailsWithLineAndWithoutAMessage) {
    auto processes = LoadText("<?xml version=\"1.0\"?>\n<Processes>\n<Process Name=\"a\">\n</Processes>");
    EXPECT_EQ(processes->Complete(), Processes::Failed);
    EXPECT_EQ(processes->ErrorString().rfind("Error: Line 4\r\n", 0), 0u) << processes->ErrorString();
    EXPECT_NE(processes->ErrorString().find("\r\n</Processes>"), std::string::npos);
    EXPECT_TRUE(prompts.errors.empty());  // no message of its own
}

TEST_F(ProcessesFile, EmptyNameWithoutDefaultFileCreatesItWithVersionOne) {
    auto processes = Processes::Create();
    processes->Load("");
    const auto path = folder / "velorinprocesses.xml";
    EXPECT_EQ(processes->ProcessesFile(), path.string());
    EXPECT_EQ(ReadAll(path), R"(<?xml version="1.0" encoding="UTF-8"?><Processes Version="1"/>)");
    EXPECT_EQ(processes->Version(), 1);
}

TEST_F(ProcessesFile, OtherVersionsPassUnchangedButAreSavedAtOnce) {
    auto processes = LoadText("<Processes Version=\"2\">\n  <Process Name=\"a\"/>\n</Processes>");
    EXPECT_EQ(processes->Version(), 2);
    EXPECT_EQ(ReadAll(folder / "processes.xml"),
              R"(<?xml version="1.0" encoding="UTF-8"?><Processes Version="2"><Process Name="a" ProcessRecords="Current"/></Processes>)");
}

TEST_F(ProcessesFile, VersionIsTheRoundedLeadingNumber) {
    EXPECT_EQ(LoadText("<Processes VERSION=\"1abc\"/>")->Version(), 1);
    EXPECT_EQ(LoadText("<Processes Version=\"0.6\"/>", "b.xml")->Version(), 1);  // rounds to 1, no update
}

TEST_F(ProcessesFile, AShorterSaveKeepsABackupNamedWithNineDigits) {
    auto processes = LoadText(Document(R"(<Process Name="a" ProcessRecords="Current"/>)"));
    processes->Remove(CollectionPosition{1});
    ASSERT_TRUE(processes->Save({}));
    std::vector<std::string> backups;
    for (const auto& entry : fs::directory_iterator(folder.Path()))
        if (entry.path().extension() == ".bak") backups.push_back(entry.path().filename().string());
    ASSERT_EQ(backups.size(), 1u);
    ASSERT_EQ(backups[0].size(), std::string("processes.xml.123456789.bak").size()) << backups[0];
    EXPECT_EQ(backups[0].rfind("processes.xml.", 0), 0u);
    EXPECT_EQ(backups[0].find_first_not_of("0123456789", 14), 23u);
}

TEST_F(ProcessesFile, MissingFolderGivesTheMessageAndFalse) {
    auto processes = Processes::Create();
    const auto missing = folder / "no such folder";
    EXPECT_FALSE(processes->Save((missing / "x.xml").string()));
    ASSERT_EQ(prompts.boxes.size(), 1u);
    EXPECT_EQ(prompts.boxes[0].prompt, "The folder '" + missing.string() + "' does not exist.");
    EXPECT_EQ(prompts.boxes[0].style, msgbox::Exclamation);
}

TEST_F(ProcessesFile, ReadOnlyTargetStaysIntactAndTheErrorIsReported) {
    auto processes = LoadText(Document(R"(<Process Name="a" ProcessRecords="Current"/>)"));
    const auto path = folder / "processes.xml";
    const std::string before = ReadAll(path);
    fs::permissions(path, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
    processes->Remove(CollectionPosition{1});
    EXPECT_FALSE(processes->Save({}));
    ASSERT_EQ(prompts.errors.size(), 1u);
    EXPECT_EQ(prompts.errors[0].number, 70);
    EXPECT_EQ(ReadAll(path), before);
}

TEST_F(ProcessesFile, EmptyModelWritesOnlyTheVersion) {
    auto processes = Processes::Create();
    processes->SetVersion(1);
    EXPECT_EQ(processes->XML(), R"(<?xml version="1.0" encoding="UTF-8"?><Processes Version="1"/>)");
    processes->SetVersion(0);
    EXPECT_EQ(processes->XML(), R"(<?xml version="1.0" encoding="UTF-8"?><Processes/>)");
}

}  // namespace
}  // namespace flowloom::test
