// How a trapped error becomes a box, a log record and a report.
#include "support/ErrorHandler.h"

#include "app/ReportError.h"
#include "support/AppPaths.h"
#include "support/CMailToProtocol.h"
#include "testsupport/ScriptedPrompts.h"
#include "testsupport/TempFolder.h"

#include <gtest/gtest.h>

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
    prompts.answers = {msgbox::No};
    Show(30021, "MailMerge failed");
    ASSERT_EQ(prompts.errors.size(), 1u);
    EXPECT_EQ(prompts.errors[0].style, 292);
    EXPECT_EQ(prompts.errors[0].title, "Velorin: Error");
    EXPECT_EQ(prompts.errors[0].text, "Error 30021: MailMerge failed \r\n\r\nDo you want to report the problem?");
    EXPECT_NE(Log().find(" Error 30021: MailMerge failed\r\n in frmDesigner.OpenPropList line 0 \r\n"), std::string::npos)
        << Log();
    EXPECT_TRUE(prompts.urls.empty());
}

TEST_F(Handler, TheLogIsAppendedNeverRewritten) {
    Show(91, "first");
    Show(91, "second");
    const std::string log = Log();
    EXPECT_LT(log.find("first"), log.find("second"));
    EXPECT_EQ(std::count(log.begin(), log.end(), '\n'), 4);  // two records of two lines each
}

TEST_F(Handler, HandledByTheCallerLogsWithoutABox) {
    Show(53, "File not found", true);
    EXPECT_TRUE(prompts.errors.empty());
    EXPECT_NE(Log().find("Error 53: File not found"), std::string::npos);
}

TEST_F(Handler, MailAddressesAreCutFromTheBoxButNotFromTheLog) {
    prompts.answers = {msgbox::No};
    Show(30021, "Cannot reach ann@example.com now");
    EXPECT_EQ(prompts.errors[0].text, "Error 30021: Cannot reach ann\r\n\r\nDo you want to report the problem?");
    EXPECT_NE(Log().find("ann@example.com"), std::string::npos);
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

TEST_F(Handler, WithoutAMailProgramTheReportIsShownAsText) {
    prompts.answers = {msgbox::Yes};
    prompts.openUrlSucceeds = false;
    Show(30021, "boom");
    ASSERT_EQ(prompts.texts.size(), 1u);
    EXPECT_EQ(prompts.texts[0].rfind("Please send the following error to support@flowloom.example\r\n---\r\n\r\n", 0), 0u);
}

TEST_F(Handler, LastLogLinesGoIntoTheReport) {
    Show(53, "quiet", true);
    prompts.answers = {msgbox::No};
    Show(30021, "loud", false, true);
    const std::string& text = prompts.errors.back().text;
    EXPECT_NE(text.find("errorlog.txt:\r\n" + std::string(30, '=') + "\r\n"), std::string::npos) << text;
    EXPECT_NE(text.find("quiet"), std::string::npos);
}

TEST_F(Handler, ClipboardErrorsAskForARetryAndPassTheAnswerBack) {
    prompts.answers = {msgbox::Retry};
    EXPECT_EQ(Show(521, "whatever"), msgbox::Retry);
    ASSERT_EQ(prompts.errors.size(), 1u);
    EXPECT_EQ(prompts.errors[0].style, 37);
    EXPECT_EQ(prompts.errors[0].text.rfind("Another application is using the Clipboard", 0), 0u);
    EXPECT_EQ(Log(), "");
}

TEST_F(Handler, ClassificationOfNumbers) {
    for (int n : {53, 76, 3024, 3575, 30001, 30047, 30084}) EXPECT_FALSE(IsReportableError(n)) << n;
    for (int n : {5, 91, 457, 30021, 30051, 30049}) EXPECT_TRUE(IsReportableError(n)) << n;
}

TEST_F(Handler, ReportErrorPassesModuleAndProcedure) {
    ReportError(VbError(53, "File not found"), "Processes", "Load", {true, false});
    EXPECT_NE(Log().find("in Processes.Load"), std::string::npos);
}

TEST(MailTo, LinkEncodesAndCutsAtTheLastLineEnd) {
    EXPECT_EQ(CMailToProtocol::BuildLink("a@b.c", "Hi there", "x\r\ny", "c@d.e", "", false),
              "mailto:a@b.c?CC=c@d.e&Subject=Hi%20there&Body=x%0d%0ay");
    std::string body;
    for (int i = 0; i < 300; ++i) body += "line " + std::to_string(i) + "\r\n";
    const std::string cut = CMailToProtocol::BuildLink("a@b.c", "s", body, "", "", true);
    EXPECT_LE(cut.size(), 2003u);
    EXPECT_EQ(cut.substr(cut.size() - 9), "%0d%0a...");
    const std::string plain = CMailToProtocol::BuildLink("a@b.c", "s", body, "", "", false);
    EXPECT_EQ(plain.size(), 2003u);
    EXPECT_EQ(CMailToProtocol::BuildLink("a", "s", std::string(3000, 'x'), "", "", true).size(), 2003u);
}

}  // namespace
}  // namespace flowloom::test
