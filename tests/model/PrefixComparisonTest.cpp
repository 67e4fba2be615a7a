// The streamed comparison compares eight ASCII bytes at a time without regard
// to case, folds characters beyond ASCII one at a time where they differ,
// and answers as EqualsNoCase does wherever the texts differ and however the
// streamed one is cut.
#include "model/xml/PrefixComparison.h"
#include "support/TextCompare.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

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
            other[at] = other[at] == '#' ? '%' : '#';
            EXPECT_EQ(Compare(text, other, step), PrefixComparison::Different);
            // A letter beyond ASCII in another case compares equal, and the
            // bytes behind it are compared again...
            std::string streamed = text;
            streamed.insert(at, "\xC3\xA9");
            other = swapped;
            other.insert(at, "\xC3\x89");
            EXPECT_EQ(Compare(streamed, other, step), PrefixComparison::Equal);
            other.back() = '#';
            EXPECT_EQ(Compare(streamed, other, step), PrefixComparison::Different);
            // ...and another letter differs.
            other.replace(at, 2, "\xC3\x8A");
            EXPECT_EQ(Compare(streamed, other, step), PrefixComparison::Different);
        }
    }
}

TEST(PrefixComparison, BytesBeyondAsciiInAWordAreComparedOneByOne) {
    // A long ASCII run, the bytes under test, and more words behind them.
    const auto compare = [](const std::string& streamed, const std::string& whole) {
        return Compare(std::string(300, 'a') + streamed + "tail of the text",
                       std::string(300, 'A') + whole + "TAIL OF THE TEXT", 1000);
    };
    EXPECT_EQ(compare("x\xC3\xA9yZ", "X\xC3\xA9Yz"), PrefixComparison::Equal);
    EXPECT_EQ(compare("ab\xC3\xA9", "AC\xC3\x89"), PrefixComparison::Different);
    EXPECT_EQ(compare("\xC3\xA9xb", "\xC3\xA9XC"), PrefixComparison::Different);
    // Bytes 0x20 apart that are no ASCII letters have no other case, nor
    // does a byte beyond ASCII change how the one behind it compares.
    EXPECT_EQ(compare("\xE1@", "\xE1`"), PrefixComparison::Different);
    for (const auto& [x, y] : {std::pair{"@", "`"}, std::pair{"[", "{"}, std::pair{"Z", "{"}, std::pair{"A", "`"}})
        EXPECT_EQ(compare(x, y), PrefixComparison::Different) << x << y;
    // Texts that are no UTF-8 leave a difference beyond ASCII to the full comparison.
    EXPECT_EQ(compare("\xC1", "\xE1"), PrefixComparison::Undecided);
    EXPECT_EQ(Compare("a\xC3\xA9", "A\xC3\x89\xFF", 1), PrefixComparison::Undecided);
    // So does a streamed text that ends inside a character while they are folded.
    EXPECT_EQ(Compare("s\xC3", "\xC3\x9F", 1), PrefixComparison::Undecided);
}

TEST(PrefixComparison, AnswersAsEqualsNoCaseWhereFoldingChangesLengths) {
    // Spellings that fold alike; the first of each group is the streamed one's.
    const std::vector<std::vector<std::string>> groups = {
        {"\xC3\x9F", "ss", "SS", "sS", "\xE1\xBA\x9E"},      // sharp s, capital sharp s
        {"\xC3\xA9", "\xC3\x89"},                            // é É
        {"\xEF\xAC\x83", "ffi", "FFI"},                      // the ligature ffi
        {"\xCF\x83", "\xCE\xA3", "\xCF\x82"},                // sigma, capital, final
        {"k", "K", "\xE2\x84\xAA"},                          // Kelvin sign
        {"\xC4\xB0", "i\xCC\x87", "I\xCC\x87"},              // capital I with dot
        {"\xE2\x82\xAC"},                                    // euro sign
        {"<Name=\"", "<NAME=\""}, {"x", "X"}, {" ", " "},
    };
    // One side ends inside what a character of the other folds to.
    for (const std::size_t step : {1u, 4096u}) {
        EXPECT_EQ(Compare("\xC3\x9F", "s", step), PrefixComparison::Different);
        EXPECT_EQ(Compare("\xC3\x9Fx", "s", step), PrefixComparison::Different);
        EXPECT_EQ(Compare("s", "\xC3\x9F", step), PrefixComparison::Different);
        EXPECT_EQ(Compare("SS", "\xC3\x9F", step), PrefixComparison::Equal);
    }
    std::mt19937 random(7);
    const auto pick = [&](std::size_t n) { return std::uniform_int_distribution<std::size_t>(0, n - 1)(random); };
    for (int round = 0; round < 300; ++round) {
        std::string streamed, whole;
        for (int token = 0; token < 40; ++token) {
            const auto& group = groups[pick(groups.size())];
            streamed += group.front();
            whole += pick(20) == 0 ? groups[pick(groups.size())].front() : group[pick(group.size())];
            if (pick(4) == 0) {  // an ASCII run, long enough for words and blocks
                const std::string run(pick(300), 'q');
                streamed += run;
                whole += Swapped(run);
            }
        }
        if (pick(3) == 0) {  // cut short, at the start of a character
            std::size_t cut = pick(whole.size() + 1);
            while (cut < whole.size() && (whole[cut] & 0xC0) == 0x80) ++cut;
            whole.resize(cut);
        }
        const bool expected = EqualsNoCase(streamed, whole);
        for (const std::size_t step : {1u, 5u, 4096u}) {
            const PrefixComparison::Result result = Compare(streamed, whole, step);
            ASSERT_NE(result, PrefixComparison::Undecided) << streamed << " | " << whole;
            ASSERT_EQ(result == PrefixComparison::Equal, expected) << step << ": " << streamed << " | " << whole;
        }
    }
}

}  // namespace
}  // namespace flowloom::test
