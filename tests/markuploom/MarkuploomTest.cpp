// The editor tool as the designer runs it: started through the Qt launcher
// on its offscreen platform, told to close on its input, its file read back.
#include "designer/editor/HtmlEditor.h"
#include "designer/window/QtToolLauncher.h"

#include "support/AppPaths.h"
#include "testsupport/ScriptedPrompts.h"
#include "testsupport/TempFolder.h"

#include <QCoreApplication>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <filesystem>

namespace flowloom {
namespace {

namespace fs = std::filesystem;
using designer::window::QtToolLauncher;
using test::ReadAll;
using test::TempFolder;
using test::WriteAll;

constexpr int kShowMilliseconds = 20000;  // a sanitised Qt program starts slowly

const std::string kTool = MARKUPLOOM_PROGRAM;

class MarkuploomTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        // The tool inherits the platform: no display is needed.
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
        if (!QCoreApplication::instance()) app_ = std::make_unique<QCoreApplication>(argc_, argv_);
    }
    // Before the static objects of the toolkit go.
    static void TearDownTestSuite() { app_.reset(); }

    // The file in a folder whose name has a blank, as "Documents and Settings" has.
    std::string FileWith(const std::string& bytes) {
        fs::create_directory(folder / "my mails");
        const fs::path file = folder / "my mails" / "vlk123456789.htm";
        WriteAll(file, bytes);
        return file.string();
    }
    static std::string Switches(const std::string& file, bool plainText, bool noConvert = false) {
        return editor::ToolSwitches(file, plainText, "", noConvert);
    }
    // Closes the tool through its input and waits until it has ended.
    static void CloseAndWait(QtToolLauncher& launcher) {
        QSignalSpy ended(&launcher, &QtToolLauncher::finished);
        ASSERT_TRUE(launcher.Close());
        ASSERT_TRUE(ended.wait(kShowMilliseconds));
        EXPECT_FALSE(launcher.Running());
    }
    // Starts the tool on `bytes`, closes it unchanged and gives the file.
    std::string RoundTrip(const std::string& bytes, bool plainText, bool noConvert, const char* title) {
        const std::string file = FileWith(bytes);
        QtToolLauncher launcher;
        EXPECT_TRUE(launcher.Start(kTool, Switches(file, plainText, noConvert)));
        EXPECT_EQ(launcher.WaitForWindow(kShowMilliseconds), std::optional<std::string>(title));
        CloseAndWait(launcher);
        return ReadAll(file);
    }

    TempFolder folder;

private:
    static inline int argc_ = 1;
    static inline char name_[] = "markuploom_tests";
    static inline char* argv_[] = {name_, nullptr};
    static inline std::unique_ptr<QCoreApplication> app_;
};

TEST_F(MarkuploomTest, AnHtmlBodyComesBackByteForByte) {
    const std::string html = "<html><body><p>Dear <b>[Field:Name]</b> &amp; co,</p>\r\n<p>caf\xC3\xA9</p></body></html>\r\n";
    EXPECT_EQ(RoundTrip(html, false, true, "html editor"), html);
    EXPECT_EQ(RoundTrip(html, false, false, "html editor"), html);  // untouched, nothing converted
}

TEST_F(MarkuploomTest, APlainBodyLosesItsMarksAndGetsCrLf) {
    const std::string marked = "Dear Sir,\r<P>\n<P><P>thanks\n<P>for <P>all\r<P>Bye\r\n";
    EXPECT_EQ(RoundTrip(marked, true, false, "text editor"), "Dear Sir,\r\nthanks\r\nfor <P>all\r\nBye\r\n");
}

TEST_F(MarkuploomTest, TheLauncherFollowsOneToolAtATime) {
    const std::string file = FileWith("x\r\n");
    QtToolLauncher launcher;
    EXPECT_FALSE(launcher.Running());
    EXPECT_FALSE(launcher.BringToFront());
    EXPECT_EQ(launcher.WaitForWindow(10), std::nullopt);

    ASSERT_TRUE(launcher.Start(kTool, Switches(file, true)));
    ASSERT_EQ(launcher.WaitForWindow(kShowMilliseconds), "text editor");
    // Once shown, the window stays known; the tool follows "raise".
    EXPECT_EQ(launcher.WaitForWindow(10), "text editor");
    EXPECT_TRUE(launcher.BringToFront());
    EXPECT_FALSE(launcher.Start(kTool, Switches(file, false)));
    CloseAndWait(launcher);
    EXPECT_FALSE(launcher.BringToFront());
    EXPECT_EQ(launcher.WaitForWindow(10), std::nullopt);
}

TEST_F(MarkuploomTest, AToolThatShowsNoWindowIsNoWindow) {
    QtToolLauncher launcher;
    EXPECT_FALSE(launcher.Start((folder / "no-such-tool").string(), " /p"));
    // A bad command line ends the tool before it shows a window.
    ASSERT_TRUE(launcher.Start(kTool, " /bogus"));
    EXPECT_EQ(launcher.WaitForWindow(kShowMilliseconds), std::nullopt);
    EXPECT_FALSE(launcher.Running());
}

TEST_F(MarkuploomTest, ALauncherThatGoesAwayLetsTheToolSave) {
    const std::string file = FileWith("a\r<P>\n<P><P>b\r\n");
    {
        QtToolLauncher launcher;
        ASSERT_TRUE(launcher.Start(kTool, Switches(file, true)));
        ASSERT_EQ(launcher.WaitForWindow(kShowMilliseconds), "text editor");
    }
    EXPECT_EQ(ReadAll(file), "a\r\nb\r\n");
}

// The designer's side and the tool together: the body goes out, the tool
// shows its window, the designer is disabled, and the body comes back as it was.
class DesignerHost : public editor::HtmlEditorHost {
public:
    std::shared_ptr<Processes> ToolProcesses() const override { return nullptr; }
    void SetEnabled(bool value) override { enabled = value; }
    void SetTimerInterval(int milliseconds) override { interval = milliseconds; }
    bool enabled = true;
    int interval = 0;
};

TEST_F(MarkuploomTest, AMailBodyMakesTheRoundTripThroughTheTool) {
    TempFolder programFolder;
    fs::create_symlink(kTool, programFolder / "markuploom");
    SetProgramFolder(programFolder.Path());
    QtToolLauncher launcher;
    ToolLauncher* previous = SetCurrentToolLauncher(&launcher);
    test::ScriptedPrompts prompts;

    DesignerHost host;
    const std::string body = "Dear [Field:Name],\r\n\r\nyour order has shipped.";
    std::string text = body;
    std::string file = (folder / "body.htm").string();
    const editor::ToolWindow window = editor::OpenHtmlEditor(host, text, file, true, "", false);

    EXPECT_NE(window, 0);
    EXPECT_FALSE(host.enabled);
    EXPECT_EQ(host.interval, 100);
    EXPECT_TRUE(prompts.errors.empty());
    if (launcher.Running()) CloseAndWait(launcher);
    EXPECT_EQ(editor::ReadToolResult(file), body);

    SetCurrentToolLauncher(previous);
    SetProgramFolder({});
}

}  // namespace
}  // namespace flowloom
