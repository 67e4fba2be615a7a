#include "designer/editor/HtmlEditor.h"

#include "app/Common.h"
#include "model/Database.h"
#include "model/Databases.h"
#include "model/Processes.h"
#include "support/AppPaths.h"
#include "support/ToolLauncher.h"
#include "testsupport/ScopedLocale.h"
#include "testsupport/ScriptedPrompts.h"
#include "testsupport/TempFolder.h"

#include <gtest/gtest.h>

#include <deque>
#include <filesystem>
#include <regex>

namespace flowloom::editor {
namespace {

namespace fs = std::filesystem;
using test::ReadAll;
using test::TempFolder;
using test::WriteAll;

// A tool that "shows" the windows it is told to, one title per wait.
class FakeLauncher : public ToolLauncher {
public:
    bool Start(const std::string& program, const std::string& arguments) override {
        starts.push_back({program, arguments});
        return startSucceeds;
    }
    std::optional<std::string> WaitForWindow(int milliseconds) override {
        waits.push_back(milliseconds);
        if (titles.empty()) return laterTitle;
        auto title = titles.front();
        titles.pop_front();
        return title;
    }
    bool BringToFront() override { return true; }
    bool Running() const override { return !starts.empty(); }

    struct Started {
        std::string program;
        std::string arguments;
    };
    bool startSucceeds = true;
    std::deque<std::optional<std::string>> titles;
    std::optional<std::string> laterTitle = "html editor";
    std::vector<Started> starts;
    std::vector<int> waits;
};

class FakeHost : public HtmlEditorHost {
public:
    std::shared_ptr<Processes> ToolProcesses() const override { return processes; }
    void SetEnabled(bool value) override { enabled = value; }
    void SetTimerInterval(int milliseconds) override { interval = milliseconds; }

    std::shared_ptr<Processes> processes;
    bool enabled = true;
    int interval = 0;
};

class HtmlEditorTest : public ::testing::Test {
protected:
    HtmlEditorTest() : previousLauncher_(SetCurrentToolLauncher(&launcher)) {
        SetProgramFolder(programFolder.Path());
    }
    ~HtmlEditorTest() override {
        SetCurrentToolLauncher(previousLauncher_);
        SetProgramFolder({});
    }

    std::string ToolBesideProgram() {
        const fs::path tool = programFolder / "markuploom";
        WriteAll(tool, "#!/bin/sh\n");
        return tool.string();
    }
    // A processes file whose first database lies in `folder`.
    static std::shared_ptr<Processes> ProcessesWithDatabaseIn(const fs::path& folder) {
        auto processes = Processes::Create();
        auto database = std::make_shared<Database>();
        database->name = "Northwind";
        database->Location = (folder / "nwind.mdb").string();
        processes->Databases()->Add(database);
        return processes;
    }
    ToolWindow Open(std::string& text, bool plainText = false, const std::string& arguments = {},
                    bool noConvert = false) {
        return OpenHtmlEditor(host, text, file, plainText, arguments, noConvert);
    }

    TempFolder programFolder;
    TempFolder work;
    std::string file = (work / "body.htm").string();
    FakeLauncher launcher;
    FakeHost host;
    test::ScriptedPrompts prompts;

private:
    ToolLauncher* previousLauncher_;
};

TEST_F(HtmlEditorTest, SwitchesComeInTheirOrderAndOnlyWhenAsked) {
    EXPECT_EQ(ToolSwitches("/tmp/a.htm", false, "", false), " /file \"/tmp/a.htm\"");
    EXPECT_EQ(ToolSwitches("C:\\T\\a b.htm", true, "x=1 y=2", true),
              " /p /file \"C:\\T\\a b.htm\" /args \"x=1 y=2\" /noconvert");
    EXPECT_EQ(ToolSwitches("f", false, "", true), " /file \"f\" /noconvert");
}

TEST_F(HtmlEditorTest, TempFileIsANumberedHtmFileInTheTemporaryFolder) {
    const std::regex shape(R"(vlk[0-9.]{9}\.htm)");
    for (const char* locale : {"C", test::kCommaLocale}) {
        test::ScopedLocale scoped(locale);
        const fs::path name = HtmlEditorTempFile();
        EXPECT_EQ(name.parent_path(), fs::path(GetTemporaryFolder())) << locale;
        EXPECT_TRUE(std::regex_match(name.filename().string(), shape)) << name << " under " << locale;
    }
}

TEST_F(HtmlEditorTest, StartsTheToolOnTheWrittenFileAndWatchesIt) {
    const std::string tool = ToolBesideProgram();
    WriteAll(file, std::string(5000, 'x'));  // a longer file before is replaced
    std::string text = "<html><body>Hi</body></html>";
    const ToolWindow window = Open(text, false, "mode=1", true);

    EXPECT_NE(window, 0);
    ASSERT_EQ(launcher.starts.size(), 1u);
    EXPECT_EQ(launcher.starts[0].program, tool);
    EXPECT_EQ(launcher.starts[0].arguments, " /file \"" + file + "\" /args \"mode=1\" /noconvert");
    EXPECT_EQ(ReadAll(file), "<html><body>Hi</body></html>\r\n");
    EXPECT_EQ(text, "<html><body>Hi</body></html>");  // HTML is written unmarked
    EXPECT_FALSE(host.enabled);
    EXPECT_EQ(host.interval, 100);
    EXPECT_TRUE(prompts.boxes.empty());
}

TEST_F(HtmlEditorTest, AnEmptyFileNameIsReplacedByATemporaryFile) {
    ToolBesideProgram();
    std::string text = "Body";
    file.clear();
    ASSERT_NE(Open(text), 0);
    ASSERT_FALSE(file.empty());
    EXPECT_EQ(fs::path(file).parent_path(), fs::path(GetTemporaryFolder()));
    EXPECT_EQ(ReadAll(file), "Body\r\n");
    EXPECT_EQ(launcher.starts.at(0).arguments, " /file \"" + file + "\"");
    fs::remove(file);
}

TEST_F(HtmlEditorTest, PlainTextGetsItsLineEndsMarked) {
    ToolBesideProgram();
    std::string text = "Dear Sir,\r\nthanks\nbye\rX";
    ASSERT_NE(Open(text, true), 0);
    // CR LF carries three marks; a lone LF or CR carries one.
    const std::string marked = "Dear Sir,\r<P>\n<P><P>thanks\n<P>bye\r<P>X";
    EXPECT_EQ(text, marked);
    EXPECT_EQ(ReadAll(file), marked + "\r\n");
    EXPECT_EQ(launcher.starts.at(0).arguments, " /p /file \"" + file + "\"");
    EXPECT_EQ(MarkLineEnds("no line ends"), "no line ends");
}

TEST_F(HtmlEditorTest, AFileThatCannotBeWrittenIsReportedAndNothingStarts) {
    ToolBesideProgram();
    file = (work / "missing" / "body.htm").string();
    std::string text = "Body";
    EXPECT_EQ(Open(text), 0);
    EXPECT_TRUE(launcher.starts.empty());
    ASSERT_EQ(prompts.errors.size(), 1u);
    EXPECT_EQ(prompts.errors[0].number, 76);
    EXPECT_EQ(prompts.errors[0].module, "mHTMLEditor");
    EXPECT_EQ(prompts.errors[0].procedure, "OpenHtmlEditor");
    EXPECT_TRUE(host.enabled);
}

TEST_F(HtmlEditorTest, AMissingToolGivesAnExclamationBox) {
    std::string text = "Body";
    EXPECT_EQ(Open(text), 0);
    ASSERT_EQ(prompts.boxes.size(), 1u);
    EXPECT_EQ(prompts.boxes[0].prompt, "Markuploom.exe not found!");
    EXPECT_EQ(prompts.boxes[0].style, 48);
    EXPECT_TRUE(prompts.errors.empty());
    EXPECT_TRUE(launcher.starts.empty());
    EXPECT_TRUE(host.enabled);
    EXPECT_EQ(host.interval, 0);
    EXPECT_TRUE(fs::exists(file));  // the file stays behind
}

TEST_F(HtmlEditorTest, TheToolIsFoundInTheToolsFolderBesideTheFirstDatabase) {
    TempFolder data;
    WriteAll(data / "nwind.mdb", "db");
    fs::create_directory(data / "tools");
    WriteAll(data / "tools" / "markuploom", "#!/bin/sh\n");
    host.processes = ProcessesWithDatabaseIn(data.Path());

    EXPECT_EQ(fs::path(GetToolsFolder(host.processes.get())), data / "tools");
    std::string text = "Body";
    ASSERT_NE(Open(text), 0);
    EXPECT_EQ(fs::path(launcher.starts.at(0).program), data / "tools" / "markuploom");

    // The one beside the program comes first.
    const std::string besideProgram = ToolBesideProgram();
    ASSERT_NE(OpenHtmlEditorOnTop(" /file \"x\"", host), 0);
    EXPECT_EQ(launcher.starts.at(1).program, besideProgram);
}

TEST_F(HtmlEditorTest, NoToolsFolderWithoutAnExistingFirstDatabase) {
    TempFolder data;
    EXPECT_EQ(GetToolsFolder(nullptr), "");
    EXPECT_EQ(GetToolsFolder(Processes::Create().get()), "");  // no database
    EXPECT_EQ(GetToolsFolder(ProcessesWithDatabaseIn(data.Path()).get()), "");  // its file is missing
    EXPECT_EQ(GetToolsFolder(ProcessesWithDatabaseIn("C:\\Northwind").get()), "");

    // The tools folder without the tool is no better than none.
    WriteAll(data / "nwind.mdb", "db");
    host.processes = ProcessesWithDatabaseIn(data.Path());
    std::string text = "Body";
    EXPECT_EQ(Open(text), 0);
    ASSERT_EQ(prompts.boxes.size(), 1u);
    EXPECT_EQ(prompts.boxes[0].prompt, "Markuploom.exe not found!");
}

TEST_F(HtmlEditorTest, OnlyAnEditorTitleEndsTheWaitWhichTimesOut) {
    ToolBesideProgram();
    launcher.laterTitle = "Untitled - Notepad";
    std::string text = "Body";
    EXPECT_EQ(Open(text), 0);
    EXPECT_EQ(launcher.waits, std::vector<int>(201, 50));
    ASSERT_EQ(prompts.errors.size(), 1u);
    EXPECT_EQ(prompts.errors[0].number, 30065);
    EXPECT_EQ(prompts.errors[0].description, "Timeout error occurred while trying to start HTML Editor");
    EXPECT_EQ(prompts.errors[0].procedure, "OpenHtmlEditorOnTop");
    EXPECT_TRUE(host.enabled);
    EXPECT_EQ(host.interval, 0);
    EXPECT_TRUE(fs::exists(file));

    // A title that comes late, in any case, is the tool's.
    launcher.waits.clear();
    launcher.titles = {std::nullopt, "html editor - draft", "Text Editor"};
    EXPECT_NE(OpenHtmlEditorOnTop(" /p", host), 0);
    EXPECT_EQ(launcher.waits.size(), 3u);
    EXPECT_FALSE(host.enabled);
}

TEST_F(HtmlEditorTest, EachStartGivesItsOwnWindow) {
    ToolBesideProgram();
    const ToolWindow first = OpenHtmlEditorOnTop(" /file \"a\"", host);
    const ToolWindow second = OpenHtmlEditorOnTop(" /file \"b\"", host);
    EXPECT_NE(first, 0);
    EXPECT_NE(second, 0);
    EXPECT_NE(first, second);
}

TEST_F(HtmlEditorTest, AToolThatDoesNotStartIsReported) {
    ToolBesideProgram();
    launcher.startSucceeds = false;
    EXPECT_EQ(OpenHtmlEditorOnTop(" /file \"a\"", host), 0);
    EXPECT_TRUE(launcher.waits.empty());
    ASSERT_EQ(prompts.errors.size(), 1u);
    EXPECT_EQ(prompts.errors[0].procedure, "OpenHtmlEditorOnTop");
    EXPECT_TRUE(host.enabled);
}

TEST_F(HtmlEditorTest, TheResultLosesOuterLineEndsAndBlanks) {
    WriteFileText(file, "Line 1\r\n\r\nLine 2");
    EXPECT_EQ(ReadToolResult(file), "Line 1\r\n\r\nLine 2");
    WriteAll(file, "\r\n\r\n  <b>Hi</b> \r\n\r\n");
    EXPECT_EQ(ReadToolResult(file), "<b>Hi</b>");
    WriteAll(file, "\r\n");  // only line ends: left as it is
    EXPECT_EQ(ReadToolResult(file), "\r\n");
    EXPECT_EQ(ReadToolResult((work / "gone.htm").string()), "");
}

}  // namespace
}  // namespace flowloom::editor
