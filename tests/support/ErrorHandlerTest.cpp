// How a trapped error becomes a box, a log record and a report.
#include "support/ErrorHandler.h"

#include "support/ReportError.h"
#include "support/AppPaths.h"
#include "testsupport/ScriptedPrompts.h"
#include "testsupport/TempFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>

namespace flowloom::test {
namespace {

class Handler : public ::testing::Test {
protected:
    Handler() { SetProgramFolder(folder.Path()); }
    ~Handler() override { SetProgramFolder({}); }

    int Show(std::int32_t number, const std::string& description, bool handled = false, bool pickLines = false) {
        return handler.ErrorMessage(number, 0, description, "", "frmDesigner", "OpenPropList", true, handled,
                                    pickLines, "", 0);
    }
    std::string Log() const { return ReadAll(folder / "errorlog.txt"); }

    TempFolder folder;
    ScriptedPrompts prompts;
    ErrorHandler handler;
};

TEST_F(Handler, ExpectedFailureShowsAPlainBoxAndLogsNothing) {
    Show(53, "File not found");
    ASSERT_EQ(prompts.errors.size(), 1u);
    EXPECT_EQ(prompts.errors[0].style, msgbox::Critical);
    EXPECT_EQ(prompts.errors[0].title, "Velorin");
    EXPECT_EQ(prompts.errors[0].text, "Error 53: File not found ");
    EXPECT_EQ(Log(), "");
}

TEST_F(Handler, UnexpectedErrorIsLoggedAndOffersAReport) {
    prompts.answers = {msgbox::No, msgbox::No};
    Show(30021, "MailMerge failed");
    ASSERT_EQ(prompts.errors.size(), 1u);
    EXPECT_EQ(prompts.errors[0].style, 292);
    EXPECT_EQ(prompts.errors[0].title, "Velorin: Error");
    EXPECT_EQ(prompts.errors[0].text, "Error 30021: MailMerge failed \r\n\r\nDo you want to report the problem?");
    EXPECT_NE(Log().find(" Error 30021: MailMerge failed\r\n in frmDesigner.OpenPropList line 0 \r\n"), std::string::npos)
        << Log();
    EXPECT_TRUE(prompts.urls.empty());
    // Mail addresses are cut from the box but not from the log.
    Show(30021, "Cannot reach ann@example.com now");
    EXPECT_EQ(prompts.errors[1].text, "Error 30021: Cannot reach ann\r\n\r\nDo you want to report the problem?");
    EXPECT_NE(Log().find("ann@example.com"), std::string::npos);
}

TEST_F(Handler, ALogThatNoFolderTakesIsToldOnceOnStderr) {
    // A program folder that is a file, and a state folder beneath that file.
    WriteAll(folder / "program", "");
    SetProgramFolder(folder / "program");
    const char* saved = std::getenv("XDG_STATE_HOME");
    const std::string before = saved ? saved : "";
    ::setenv("XDG_STATE_HOME", (folder / "program" / "state").c_str(), 1);
    ::testing::internal::CaptureStderr();
    Show(30021, "first", true);
    Show(30021, "second", true);
    const std::string said = ::testing::internal::GetCapturedStderr();
    if (saved) ::setenv("XDG_STATE_HOME", before.c_str(), 1);
    else ::unsetenv("XDG_STATE_HOME");
    EXPECT_EQ(said, "Flowloom: cannot write the error log " + (folder / "program/state/flowloom/errorlog.txt").string() +
                        " (" + std::strerror(ENOTDIR) + "); errors are not recorded\n");
}

TEST_F(Handler, HandledByTheCallerLogsWithoutABoxAndTheLogIsAppended) {
    Show(53, "first", true);
    ReportError(VbError(91, "second"), "Processes", "Load", {.handledByCallingProcedure = true});
    EXPECT_TRUE(prompts.errors.empty());
    const std::string log = Log();
    EXPECT_LT(log.find("Error 53: first"), log.find("Error 91: second\r\n in Processes.Load"));
    EXPECT_EQ(std::count(log.begin(), log.end(), '\n'), 4);  // two records of two lines each
}

TEST_F(Handler, YesOpensAMailLinkWithoutAmpersands) {
    prompts.answers = {msgbox::Yes};
    Show(30021, "A & B");
    ASSERT_EQ(prompts.urls.size(), 1u);
    const std::string& url = prompts.urls[0];
    EXPECT_EQ(url.rfind("mailto:support@flowloom.example?Subject=Runtime%20error%20in%20", 0), 0u) << url;
    EXPECT_EQ(url.find("A%20&%20B"), std::string::npos);
    EXPECT_NE(url.find("A%20%20B"), std::string::npos);
}

TEST_F(Handler, LastLogLinesGoIntoTheReport) {
    for (int i = 0; i < 14; ++i) Show(53, "quiet " + std::to_string(i), true);
    prompts.answers = {msgbox::Yes};
    prompts.openUrlSucceeds = false;
    Show(30021, "loud", false, true);
    ASSERT_EQ(prompts.texts.size(), 1u);
    const std::string& report = prompts.texts[0];
    EXPECT_NE(report.find("errorlog.txt:\r\n" + std::string(30, '=') + "\r\n"), std::string::npos) << report;
    // Twelve lines: the report's own record and the five before it, two lines each.
    EXPECT_EQ(report.find("quiet 8\r\n"), std::string::npos);
    EXPECT_NE(report.find("quiet 9\r\n"), std::string::npos);
    EXPECT_NE(report.find("quiet 13\r\n"), std::string::npos);
    EXPECT_EQ(prompts.errors.back().text.find("quiet"), std::string::npos);
}

TEST_F(Handler, ClipboardErrorsAskForARetryAndPassTheAnswerBack) {
    prompts.answers = {msgbox::Retry};
    EXPECT_EQ(Show(521, "whatever"), msgbox::Retry);
    ASSERT_EQ(prompts.errors.size(), 1u);
    EXPECT_EQ(prompts.errors[0].style, 37);
    EXPECT_EQ(prompts.errors[0].text.rfind("Another application is using the Clipboard", 0), 0u);
    EXPECT_EQ(Log(), "");
}

TEST_F(Handler, HelpButtonOnlyWithAHelpFileAndASmallContext) {
    const std::string help = (folder / "flowloom.chm").string();
    WriteAll(help, "help");
    handler.ErrorMessage(30063, -1, "Database does not exist", "", "", "", false, false, false, help, 30000);
    handler.ErrorMessage(30063, -1, "Database does not exist", "", "", "", false, false, false, help, 1000001);
    handler.ErrorMessage(30063, -1, "Database does not exist", "", "", "", false, false, false,
                         (folder / "none.chm").string(), 30000);
    ASSERT_EQ(prompts.errors.size(), 3u);
    EXPECT_EQ(prompts.errors[0].style, 16400);
    EXPECT_EQ(prompts.errors[0].helpFile, help);
    EXPECT_EQ(prompts.errors[0].helpContext, 30000);
    EXPECT_EQ(prompts.errors[1].style, 16);
    EXPECT_EQ(prompts.errors[2].style, 16);
}

TEST_F(Handler, TextsWithCommentLocationAndWithoutNumbers) {
    prompts.answers = {msgbox::No, msgbox::No};
    handler.ErrorMessage(91, 120, "Object required", "While saving", "Processes", "Save", true, false, false, "", 0);
    EXPECT_EQ(prompts.errors[0].text,
              "Error 91: Object required \r\n\r\nWhile saving\r\n\r\nDo you want to report the problem?");
    EXPECT_NE(Log().find(" Error 91: Object required\r\n in Processes.Save line 120 \r\n\r\nWhile saving\r\n"),
              std::string::npos)
        << Log();
    handler.ErrorMessage(-1, -1, "Plain words", "", "", "", true, false, false, "", 0);
    EXPECT_EQ(prompts.errors[1].text, "Plain words\r\n\r\nDo you want to report the problem?");
    EXPECT_EQ(prompts.errors[1].number, -1);
    EXPECT_EQ(prompts.errors[1].description, "Plain words");
}

TEST_F(Handler, WithoutAMailProgramTheReportIsShownAsTextAndItsFileRemoved) {
    handler.ShowSysInfo = true;
    handler.ShowLocaleInfo = true;
    prompts.answers = {msgbox::Yes};
    prompts.openUrlSucceeds = false;
    // A temporary folder of the test's own, since other tests use the shared one meanwhile.
    const auto temporary = folder / "tmp";
    std::filesystem::create_directory(temporary);
    const char* saved = std::getenv("TMPDIR");
    const std::string before = saved ? saved : "";
    ::setenv("TMPDIR", temporary.c_str(), 1);
    Show(30021, "boom");
    if (saved) ::setenv("TMPDIR", before.c_str(), 1);
    else ::unsetenv("TMPDIR");
    EXPECT_TRUE(std::filesystem::is_empty(temporary));
    ASSERT_EQ(prompts.texts.size(), 1u);
    const std::string& report = prompts.texts[0];
    EXPECT_EQ(report.rfind("Please send the following error to support@flowloom.example\r\n---\r\n\r\n", 0), 0u);
    // The information sections that are switched on, and no others.
    EXPECT_EQ(report.find("[Current Status Info]"), std::string::npos);
    EXPECT_NE(report.find("[System Information]\r\nOS: "), std::string::npos) << report;
    EXPECT_NE(report.find("[Locale information]\r\nLanguage: "), std::string::npos);
    EXPECT_NE(report.find("Please contact me about the following problem:\r\n\r\nError 30021: boom"),
              std::string::npos);
    EXPECT_NE(report.find("DESCRIBE WHAT YOU TRY TO DO: \r\n\r\nDESCRIBE WHAT HAPPENS: "), std::string::npos);
}

}  // namespace
}  // namespace flowloom::test
