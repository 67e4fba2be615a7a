// The small shared helpers whose rules other parts rely on.
#include "app/Common.h"
#include "app/VbError.h"

#include "testsupport/TempFolder.h"

#include <gtest/gtest.h>

namespace flowloom {
namespace {

TEST(SpacedName, SplitsWordsAndKeepsAcronyms) {
    EXPECT_EQ(SpacedName("OnErrorNotifyUser"), "On Error Notify User");
    EXPECT_EQ(SpacedName("SMTPServer"), "SMTP Server");
    EXPECT_EQ(SpacedName("MainDatasourceName"), "Main Datasource Name");
    EXPECT_EQ(SpacedName("PrintZoomColumn"), "Print Zoom Column");
    EXPECT_EQ(SpacedName("Copies"), "Copies");
    EXPECT_EQ(SpacedName("To"), "To");
}

TEST(TrimChars, ModesAndTheRuleForRepeatsOnly) {
    EXPECT_EQ(TrimChars(R"("a b")", "\"", 1), "a b");
    EXPECT_EQ(TrimChars(R"("a")", "\"", 0), R"(a")");
    EXPECT_EQ(TrimChars(R"("a")", "\"", 2), R"("a)");
    EXPECT_EQ(TrimChars(R"("")", "\"", 1), R"("")");
    EXPECT_EQ(TrimChars("xxabxx", "x", 1), "ab");
    // The start goes only when another character lies before the last one.
    EXPECT_EQ(TrimChars(R"("a)", "\"", 0), R"("a)");
}

TEST(IsInsideQuotes, OddQuotesBeforeAndOneAfter) {
    EXPECT_TRUE(IsInsideQuotes(R"(a "b c" d)", 5));
    EXPECT_FALSE(IsInsideQuotes(R"(a "b c" d)", 9));
    EXPECT_TRUE(IsInsideQuotes("a 'b c' d", 5));
    EXPECT_FALSE(IsInsideQuotes(R"(a "b c)", 5));  // no closing quote
    EXPECT_FALSE(IsInsideQuotes(R"("x")", 0));
}

TEST(Helpers, CountsBackslashesHtmlAndExtensions) {
    EXPECT_EQ(CountOccurrences("a;b;c", ";"), 2);
    EXPECT_EQ(CountOccurrences("", ";"), 0);
    EXPECT_EQ(AddBackslash(" C:\\Data "), "C:\\Data\\");
    EXPECT_EQ(AddBackslash("C:\\Data\\"), "C:\\Data\\");
    EXPECT_TRUE(IsHtmlText("<HTML><body>x</Html>"));
    EXPECT_FALSE(IsHtmlText("<html> without end"));
    EXPECT_EQ(InvokedApplicationExtension("HTML"), ".htm");
    EXPECT_EQ(InvokedApplicationExtension("html"), "");
    EXPECT_EQ(GetInvokedApplications().front(), "Microsoft Word");
    EXPECT_TRUE(SafeBool("-1"));
    EXPECT_FALSE(SafeBool("maybe"));
}

TEST(Helpers, FileTextRoundTripAddsTheLineEnd) {
    test::TempFolder folder;
    const std::string path = (folder / "t.txt").string();
    WriteFileText(path, "body");
    EXPECT_EQ(ReadFileText(path), "body\r\n");
    EXPECT_THROW(WriteFileText((folder / "missing" / "t.txt").string(), "x"), VbError);
    EXPECT_THROW(ReadFileText((folder / "none.txt").string()), VbError);
}

}  // namespace
}  // namespace flowloom
