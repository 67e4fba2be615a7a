// Comparing and finding names without regard to case, in any script.
#include "support/TextCompare.h"

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

}  // namespace
}  // namespace flowloom
