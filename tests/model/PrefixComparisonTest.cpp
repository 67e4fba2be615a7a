// The streamed comparison compares eight ASCII bytes at a time without regard
// to case: a difference is found at any offset, in any piece, and one that
// involves a byte beyond ASCII is left to the full comparison.
#include "model/xml/PrefixComparison.h"

#include <gtest/gtest.h>

#include <string>

namespace flowloom::test {
namespace {

// The pieces are cut at every `step` bytes.
PrefixComparison::Result Compare(const std::string& streamed, const std::string& whole, std::size_t step) {
    PrefixComparison comparison(whole);
    for (std::size_t at = 0; at < streamed.size(); at += step)
        if (!comparison.Next(std::string_view(streamed).substr(at, step))) break;
    return comparison.Finish();
}

// Markup and letters of both cases, 600 bytes long.
std::string Text() {
    std::string text;
    while (text.size() < 600) text += "<Process Name=\"A Quick Brown Fox Jumps Over The Lazy Dog 42\" Records=\"All\"/>";
    return text.substr(0, 600);
}

std::string Swapped(std::string text) {
    for (char& c : text)
        if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z')) c = static_cast<char>(c ^ 0x20);
    return text;
}

TEST(PrefixComparison, FindsEveryDifferenceWhereverItStands) {
    const std::string text = Text();
    const std::string swapped = Swapped(text);
    for (const std::size_t step : {1u, 7u, 64u, 1000u}) {
        SCOPED_TRACE(testing::Message() << "pieces of " << step);
        EXPECT_EQ(Compare(text, swapped, step), PrefixComparison::Equal);
        EXPECT_EQ(Compare(text + "x", swapped, step), PrefixComparison::Different);
        EXPECT_EQ(Compare(text, swapped + "x", step), PrefixComparison::Different);
        for (std::size_t at = 0; at < text.size(); at += step == 1 ? 1 : 13) {
            SCOPED_TRACE(testing::Message() << "at " << at);
            std::string other = swapped;
            other[at] = other[at] == '#' ? '%' : '#';  // ASCII: final
            EXPECT_EQ(Compare(text, other, step), PrefixComparison::Different);
            other.replace(at, 1, "\xC3\xA9");  // beyond ASCII: undecided
            EXPECT_EQ(Compare(text, other, step), PrefixComparison::Undecided);
            EXPECT_EQ(Compare(other, text, step), PrefixComparison::Undecided);
        }
    }
}

TEST(PrefixComparison, BytesBeyondAsciiInAWordAreComparedOneByOne) {
    // A long ASCII run, the bytes under test, and more words behind them.
    const auto compare = [](const std::string& streamed, const std::string& whole) {
        return Compare(std::string(300, 'a') + streamed + "tail of the text",
                       std::string(300, 'A') + whole + "TAIL OF THE TEXT", 1000);
    };
    // Equal bytes beyond ASCII beside letters of another case.
    EXPECT_EQ(compare("x\xC3\xA9yZ", "X\xC3\xA9Yz"), PrefixComparison::Equal);
    // An ASCII difference before the bytes beyond ASCII in the same word is final...
    EXPECT_EQ(compare("ab\xC3\xA9", "AC\xC3\x89"), PrefixComparison::Different);
    // ...and one after equal ones too.
    EXPECT_EQ(compare("\xC3\xA9xb", "\xC3\xA9XC"), PrefixComparison::Different);
    // Characters of another case beyond ASCII: the full comparison decides.
    EXPECT_EQ(compare("\xC3\xA9", "\xC3\x89"), PrefixComparison::Undecided);
    // Bytes 0x20 apart that are no ASCII letters have no other case, nor
    // does a byte beyond ASCII change how the one behind it compares.
    EXPECT_EQ(compare("\xC1", "\xE1"), PrefixComparison::Undecided);
    EXPECT_EQ(compare("\xE1@", "\xE1`"), PrefixComparison::Different);
    for (const auto& [x, y] : {std::pair{"@", "`"}, std::pair{"[", "{"}, std::pair{"Z", "{"}, std::pair{"A", "`"}})
        EXPECT_EQ(compare(x, y), PrefixComparison::Different) << x << y;
}

}  // namespace
}  // namespace flowloom::test
