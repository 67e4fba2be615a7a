// Comparing and finding names without regard to case, in any script.
#include "support/TextCompare.h"
#include "support/VbStrings.h"

#include <gtest/gtest.h>

namespace flowloom {
namespace {

TEST(TextCompare, FoldsAsciiAndUnicode) {
    EXPECT_TRUE(EqualsNoCase("MailMerge", "mailmerge"));
    EXPECT_TRUE(EqualsNoCase("ÄRGER", "ärger"));
    EXPECT_TRUE(EqualsNoCase("STRASSE", "straße"));
    EXPECT_FALSE(EqualsNoCase("Arger", "Ärger"));
    EXPECT_EQ(ToUpper("köln"), "KÖLN");
    EXPECT_EQ(ToLower("KÖLN"), "köln");
}

TEST(TextCompare, FindReturnsPositionsInTheOriginalText) {
    EXPECT_EQ(FindNoCase("a -XMLFILE b", "-xmlfile"), 2u);
    EXPECT_EQ(FindNoCase("Köln -Process x", "-process"), 6u);
    const auto [pos, length] = FindNoCaseSpan("Die Straße", "STRASSE");
    EXPECT_EQ(pos, 4u);
    EXPECT_EQ(length, std::string("Straße").size());
    EXPECT_EQ(FindNoCase("Ärger", "rg", 3), std::string_view::npos);
    EXPECT_EQ(FindNoCase("\xff\xfe-process", "-PROCESS"), 2u);  // invalid bytes are kept, not rejected
}

TEST(VbStrings, NumbersAndTruthAsTheFileReadsThem) {
    EXPECT_EQ(vb::ToNumber(" 12 ").value_or(-1), 12);
    EXPECT_EQ(vb::ToNumber("&HFF").value_or(-1), 255);
    EXPECT_FALSE(vb::IsNumeric("12abc"));
    EXPECT_EQ(vb::Val("2abc"), 2);
    EXPECT_EQ(vb::Val("abc"), 0);
    EXPECT_EQ(vb::CLng(2.5), 2);  // half to even
    EXPECT_EQ(vb::CLng(3.5), 4);
    EXPECT_TRUE(vb::ReadBool("True"));
    EXPECT_TRUE(vb::ReadBool("-1"));
    EXPECT_TRUE(vb::ReadBool("7"));
    EXPECT_FALSE(vb::ReadBool("0"));
    EXPECT_FALSE(vb::ReadBool("yes"));
    EXPECT_EQ(vb::Split("", ";").size(), 1u);
    EXPECT_EQ(vb::Trim("  a b  "), "a b");
    EXPECT_EQ(vb::SerialNowText().size(), std::string("46349.1234567890").size());
}

}  // namespace
}  // namespace flowloom
