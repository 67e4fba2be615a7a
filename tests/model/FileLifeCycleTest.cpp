// Loading never replaces what it could not read, keeps what it replaces, says
// when its rewrite failed, and whatever loads is written as a well-formed file.
#include "ModelFixture.h"

#include "model/Process.h"
#include "support/SafeSave.h"
#include "testsupport/ChildProcess.h"
#include "testsupport/XmlReferee.h"

#include <sys/stat.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <set>

namespace flowloom::test {
namespace {

namespace fs = std::filesystem;

class FileLifeCycle : public ModelFixture {
protected:
    ~FileLifeCycle() override { SetSaveFaultHook({}); }

    std::set<std::string> Names() const {
        std::set<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder.Path()))
            if (entry.path().filename() != "errorlog.txt") names.insert(entry.path().filename().string());
        return names;
    }
    std::string BackupName() const {
        for (const std::string& name : Names())
            if (fs::path(name).extension() == ".bak") return name;
        return {};
    }
};

TEST_F(FileLifeCycle, AFileThatCannotBeReadIsReportedAndNeverReplaced) {
    const fs::path path = folder / "processes.xml";
    const std::string old = "<Processes/>";  // version 0: the version step would rewrite it
    WriteAll(path, old);
    // Anyone may write the file and the folder, but not read the file.
    ::chmod(folder.Path().c_str(), 0777);
    ::chmod(path.c_str(), 0222);
    const int status = RunAsUnprivileged([&] {
        auto processes = Processes::Create();
        processes->Load(path.string());
        return prompts.errors.size() == 1 && prompts.errors[0].number == 70 &&
               prompts.errors[0].description == "Cannot read '" + path.string() + "': " + std::string(std::strerror(EACCES)) &&
               processes->Complete() == Processes::Failed && !processes->LastLoadRewrite().attempted;
    });
    EXPECT_TRUE(Succeeded(status));
    ::chmod(path.c_str(), 0644);
    EXPECT_EQ(ReadAll(path), old);
    EXPECT_EQ(Names(), std::set<std::string>{"processes.xml"});
}

TEST_F(FileLifeCycle, AnInputOutputErrorIsReportedAsSuch) {
    // Reading the memory of a process at address 0 fails with EIO.
    auto processes = Processes::Create();
    processes->Load("/proc/self/mem");
    ASSERT_EQ(prompts.errors.size(), 1u);
    EXPECT_EQ(prompts.errors[0].number, 57);
    EXPECT_EQ(prompts.errors[0].description, "Cannot read '/proc/self/mem': " + std::string(std::strerror(EIO)));
    EXPECT_FALSE(processes->LastLoadRewrite().attempted);
}

TEST_F(FileLifeCycle, AShortFileThatIsNoProcessesFileKeepsItsBackup) {
    const struct {
        const char* text;
        const char* reason;
    } cases[] = {{"<Other/>", "The top level node is not 'Processes'"},
                 {"xx", "Error: Line 1\r\nInvalid at the top level of the document.\r\nxx"},
                 {"<a>&#1;</a>", "Error: Line 1\r\nThe character reference names a character XML does not allow.\r\n<a>&#1;</a>"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        for (const std::string& name : Names()) fs::remove(folder / name);
        auto processes = LoadText(c.text);
        const Processes::LoadRewrite& rewrite = processes->LastLoadRewrite();
        EXPECT_TRUE(rewrite.written);
        EXPECT_EQ(rewrite.notLoadedReason, c.reason);
        EXPECT_EQ(ReadAll(folder / "processes.xml"), R"(<?xml version="1.0" encoding="UTF-8"?><Processes Version="1"/>)");
        // The old content is shorter than the empty document, and kept all the same.
        ASSERT_EQ(rewrite.backup, (folder / BackupName()).string());
        EXPECT_EQ(ReadAll(rewrite.backup), c.text);
    }
}

TEST_F(FileLifeCycle, ARewriteThatFailsIsReportedAndTold) {
    const std::string old = R"(<Processes><Process Name="a"/></Processes>)";
    SetSaveFaultHook([](SaveStep step) { return step == SaveStep::Write ? ENOSPC : 0; });
    auto processes = LoadText(old);
    EXPECT_TRUE(processes->LastLoadRewrite().attempted);
    EXPECT_FALSE(processes->LastLoadRewrite().written);
    ASSERT_EQ(prompts.errors.size(), 1u);
    EXPECT_EQ(prompts.errors[0].number, 61);
    EXPECT_EQ(prompts.errors[0].description,
              "Disk full: cannot write " + (folder / "processes.xml").string() + " (" + std::string(std::strerror(ENOSPC)) + ")");
    EXPECT_EQ(ReadAll(folder / "processes.xml"), old);
    EXPECT_EQ(Names(), std::set<std::string>{"processes.xml"});
}

TEST_F(FileLifeCycle, WhateverTheModelHoldsTheFileIsWellFormed) {
    auto processes = Processes::Create();
    auto process = Process::Create();
    process->SetName("tab\tbell\x07" "bad\xFF" "end");
    processes->Add(process);
    const std::string xml = processes->XML();
    EXPECT_EQ(ConformantParserFault(xml), std::nullopt) << xml;
    EXPECT_NE(xml.find("Name=\"tab&#9;bell\uFFFDbad\uFFFDend\""), std::string::npos) << xml;
}

TEST_F(FileLifeCycle, TheFuzzCorpusLoadsOnlyWhereWellFormedAndAlwaysWritesWellFormed) {
    int files = 0;
    for (const auto& entry : fs::directory_iterator(SourceDir() / "fuzz/corpus/load_processes")) {
        SCOPED_TRACE(entry.path().filename().string());
        const std::string bytes = ReadAll(entry.path());
        auto processes = LoadText(bytes, "corpus.xml");
        if (ConformantParserFault(bytes)) {
            EXPECT_NE(processes->Complete(), Processes::Loaded);
        }
        const std::string xml = processes->XML();
        EXPECT_EQ(ConformantParserFault(xml), std::nullopt) << xml.substr(0, 300);
        ++files;
    }
    EXPECT_GT(files, 5);
}

}  // namespace
}  // namespace flowloom::test
