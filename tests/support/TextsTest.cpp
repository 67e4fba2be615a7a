// Texts as the file holds them: numbers keep the C notation under a locale
// whose decimal separator is a comma, names compare without regard to case.
#include "testsupport/ScopedLocale.h"

#include "support/TextCompare.h"
#include "support/VbStrings.h"

#include <gtest/gtest.h>

namespace flowloom::test {
namespace {

TEST(Numbers, ReadAndWrittenWithAPointUnderACommaLocale) {
    ScopedLocale locale(kCommaLocale);
    if (!locale.Active()) GTEST_SKIP() << kCommaLocale << " is not installed (tools/setup installs it)";
    EXPECT_EQ(vb::ToNumber("1.5"), 1.5);
    EXPECT_EQ(vb::ToNumber(" -0.25 "), -0.25);
    EXPECT_EQ(vb::ToNumber("1,5"), std::nullopt);
    EXPECT_EQ(vb::Val("2.5 kg"), 2.5);
    EXPECT_EQ(vb::Val("+ 3 . 5"), 3.5);
    EXPECT_EQ(vb::NumberText(1.5), "1.5");
    EXPECT_EQ(vb::NumberText(-1234567.125), "-1234567.125");
    EXPECT_EQ(vb::FixedText(2.0 / 3.0, 4), "0.6667");
    EXPECT_NE(vb::SerialNowText().find('.'), std::string::npos);
    EXPECT_EQ(vb::CLng(vb::Val("2.5")), 2);  // half to even, not a cut at the comma
}

TEST(Numbers, OutOfRangeOverflowsOrVanishesAsTheHostsConversion) {
    EXPECT_EQ(vb::ToNumber("1e400"), std::nullopt);
    EXPECT_EQ(vb::ToNumber("-123456789e305"), std::nullopt);
    EXPECT_EQ(vb::ToNumber("1e-400"), 0.0);
    EXPECT_EQ(vb::ToNumber("1D3"), 1000.0);
    EXPECT_EQ(vb::ToNumber(".5"), 0.5);
    EXPECT_EQ(vb::Val("-.5"), -0.5);
    EXPECT_EQ(vb::NumberText(1e20), "1e+20");
    EXPECT_EQ(vb::NumberText(0.1 + 0.2), "0.3");
}

TEST(Numbers, NumbersAndTruthAsTheFileReadsThem) {
    EXPECT_EQ(vb::ToNumber("&HFF").value_or(-1), 255);
    EXPECT_FALSE(vb::IsNumeric("12abc"));
    EXPECT_EQ(vb::Val("2abc"), 2);
    EXPECT_EQ(vb::Val("abc"), 0);
    EXPECT_EQ(vb::CLng(3.5), 4);  // half to even
    for (const char* truth : {"True", "-1", "7"}) EXPECT_TRUE(vb::ReadBool(truth)) << truth;
    for (const char* untruth : {"0", "yes"}) EXPECT_FALSE(vb::ReadBool(untruth)) << untruth;
    EXPECT_EQ(vb::Split("", ";").size(), 1u);
    EXPECT_EQ(vb::SerialNowText().size(), std::string("46349.1234567890").size());
}

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

}  // namespace
}  // namespace flowloom::test
