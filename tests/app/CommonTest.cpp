// The small shared helpers whose rules other parts rely on.
#include "app/Common.h"
#include "support/VbError.h"
#include "support/AppPaths.h"

#include "testsupport/TempFolder.h"

#include <gtest/gtest.h>

#include <functional>

namespace flowloom {
namespace {

std::int32_t ErrorNumberOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const VbError& error) {
        return error.Number();
    }
    return 0;
}

TEST(SpacedName, SplitsWordsAndKeepsAcronyms) {
    EXPECT_EQ(SpacedName("OnErrorNotifyUser"), "On Error Notify User");
    EXPECT_EQ(SpacedName("SMTPServer"), "SMTP Server");
    EXPECT_EQ(SpacedName("UseSMTP"), "Use SMTP");
    EXPECT_EQ(SpacedName("Page2Count"), "Page 2 Count");  // digits count as upper case
    EXPECT_EQ(SpacedName("\xC3\x84nderung\xC3\x9C" "bernehmen"), "\xC3\x84nderung \xC3\x9C" "bernehmen");
    EXPECT_EQ(SpacedName("aB"), "aB");
    EXPECT_EQ(SpacedName(""), "");
}

TEST(TrimChars, ModesAndTheRuleForRepeatsOnly) {
    EXPECT_EQ(TrimChars(R"("a b")", "\"", 1), "a b");
    EXPECT_EQ(TrimChars(R"("a")", "\"", 0), R"(a")");
    EXPECT_EQ(TrimChars(R"("a")", "\"", 2), R"("a)");
    EXPECT_EQ(TrimChars("ababXab", "ab", 1), "X");
    // A text of repeats alone comes back unchanged in every mode.
    EXPECT_EQ(TrimChars(R"("")", "\"", 1), R"("")");
    EXPECT_EQ(TrimChars("xxx", "x", 2), "xxx");
    // The start goes only when another character lies before the last one.
    EXPECT_EQ(TrimChars(R"("a)", "\"", 0), R"("a)");
    EXPECT_EQ(TrimChars("abc", "", 1), "abc");
}

TEST(IsInsideQuotes, OddQuotesBeforeAndOneAfter) {
    EXPECT_TRUE(IsInsideQuotes(R"(a "b c" d)", 3));   // the opening quote is inside
    EXPECT_FALSE(IsInsideQuotes(R"(a "b c" d)", 7));  // the closing one is not
    EXPECT_TRUE(IsInsideQuotes("a 'b c' d", 5));
    EXPECT_FALSE(IsInsideQuotes(R"(a "b c)", 5));  // no closing quote
    EXPECT_FALSE(IsInsideQuotes(R"("x")", 0));
    EXPECT_FALSE(IsInsideQuotes(R"("a" ")", 9));  // beyond the end nothing follows
}

TEST(Helpers, CountsBackslashesHtmlAndConversions) {
    EXPECT_EQ(CountOccurrences("a;b;c", ";"), 2);
    EXPECT_EQ(AddBackslash(" C:\\Data "), "C:\\Data\\");
    EXPECT_EQ(AddBackslash("C:\\Data\\"), "C:\\Data\\");
    EXPECT_TRUE(IsHtmlText("<HTML><body>x</Html>"));
    EXPECT_FALSE(IsHtmlText("<html> without end"));
    EXPECT_TRUE(SafeBool("-1"));
    EXPECT_FALSE(SafeBool("maybe"));
}

TEST(Helpers, InvokedApplicationExtensionsMatchTheNameExactly) {
    EXPECT_EQ(InvokedApplicationExtension("Microsoft Excel"), ".xls");
    EXPECT_EQ(InvokedApplicationExtension("html"), "");
}

TEST(Helpers, FileTextRoundTripAndFailures) {
    test::TempFolder folder;
    const std::string path = (folder / "t.txt").string();
    WriteFileText(path, "body");
    WriteFileText(path, std::string("\xC3\xA4\0x", 4));  // replaces, keeps every byte
    EXPECT_EQ(ReadFileText(path), std::string("\xC3\xA4\0x\r\n", 6));
    EXPECT_EQ(ErrorNumberOf([&] { WriteFileText((folder / "missing" / "t.txt").string(), "x"); }), 76);
    EXPECT_EQ(ErrorNumberOf([&] { WriteFileText(folder.Path().string(), "x"); }), 75);
    EXPECT_EQ(ErrorNumberOf([&] { ReadFileText((folder / "none.txt").string()); }), 53);
    EXPECT_EQ(ErrorNumberOf([&] { ReadFileText(folder.Path().string()); }), 75);
}

TEST(Helpers, HelpFileLiesInTheProgramFolder) {
    test::TempFolder folder;
    SetProgramFolder(folder.Path());
    EXPECT_EQ(HelpFilePath(), (folder / HelpFileName()).string());
    SetProgramFolder({});
}

}  // namespace
}  // namespace flowloom
