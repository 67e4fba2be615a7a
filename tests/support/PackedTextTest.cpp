// The packed copy of a loaded text: whatever goes in comes out, across
// blocks and long runs, and damaged bytes are refused rather than misread.
#include "support/PackedText.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace flowloom::test {
namespace {

constexpr std::size_t kBlock = std::size_t{1} << 20;

std::string RandomBytes(std::size_t size, unsigned draw) {
    std::mt19937 generator(draw);
    std::string bytes(size, '\0');
    for (char& c : bytes) c = static_cast<char>(generator() & 0xFF);
    return bytes;
}

std::string XmlLike(std::size_t size) {
    std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?><Processes Version=\"1\">";
    for (int i = 0; text.size() < size; ++i)
        text += "<Process Name=\"Process " + std::to_string(i) + "\"><Activities><SaveAs Folder=\"C:\\Letters\\" +
                std::to_string(i % 97) + "\" File=\"[CustomerID].doc\"/></Activities></Process>";
    text.resize(size);
    return text;
}

void ExpectRoundTrip(const std::string& text) {
    const PackedText packed = PackedText::Pack(text);
    EXPECT_EQ(packed.TextSize(), text.size());
    const std::optional<std::string> unpacked = packed.Unpack();
    ASSERT_TRUE(unpacked.has_value());
    EXPECT_TRUE(*unpacked == text) << "size " << text.size();
}

TEST(PackedText, WhatGoesInComesOut) {
    ExpectRoundTrip("");
    ExpectRoundTrip("x");
    ExpectRoundTrip("abc");
    ExpectRoundTrip("abcd");
    ExpectRoundTrip("abcdabcd");
    // Overlapping matches (a run of one byte, a run of a short pattern).
    ExpectRoundTrip(std::string(100'000, 'a'));
    ExpectRoundTrip(std::string(3, 'q') + std::string(70'000, 'a') + "tail");
    std::string pattern;
    for (int i = 0; i < 5000; ++i) pattern += "ab\xC3\xA9";
    ExpectRoundTrip(pattern);
    // Literal runs and matches whose lengths need continuation bytes (15,
    // 15 + 255 and beyond), and no repetition at all.
    for (std::size_t length : {14u, 15u, 16u, 269u, 270u, 271u, 525u, 5000u}) {
        ExpectRoundTrip(RandomBytes(length, static_cast<unsigned>(length)));
        const std::string unit = RandomBytes(length, 7);
        ExpectRoundTrip("head" + unit + unit + "tail");
    }
    ExpectRoundTrip(RandomBytes(300'000, 1));
    ExpectRoundTrip(XmlLike(200'000));
}

TEST(PackedText, BlocksEndWhereTheyEndAndRepetitionsFarApartStillComeOut) {
    for (std::size_t size : {kBlock - 1, kBlock, kBlock + 1, 2 * kBlock + 3})
        ExpectRoundTrip(XmlLike(size));
    // A repetition further back than the window reaches is kept as literals.
    const std::string unit = RandomBytes(70'000, 3);
    ExpectRoundTrip(unit + unit + unit);
}

TEST(PackedText, AnXmlFileShrinksToASmallPart) {
    const std::string text = XmlLike(2 * kBlock);
    const PackedText packed = PackedText::Pack(text);
    EXPECT_LT(packed.PackedSize() * 5, text.size());
}

TEST(PackedText, ProgressIsPublishedBlockByBlockUpToTheWholeText) {
    const std::string text = XmlLike(2 * kBlock + 10);
    std::atomic<std::size_t> packed{0};
    PackedText::Pack(text, &packed);
    EXPECT_EQ(packed.load(), text.size());
    std::atomic<std::size_t> none{5};
    PackedText::Pack("", &none);
    EXPECT_EQ(none.load(), 0u);
}

TEST(PackedText, DamagedBytesAreRefusedNotMisread) {
    const std::string text = XmlLike(50'000) + RandomBytes(2000, 9);
    const PackedText packed = PackedText::Pack(text);
    std::mt19937 generator(11);
    int refused = 0;
    for (int round = 0; round < 300; ++round) {
        std::string bytes = packed.Bytes();
        if (round % 3 == 0) bytes.resize(generator() % bytes.size());
        else if (round % 3 == 1) bytes[generator() % bytes.size()] ^= static_cast<char>(1 + generator() % 255);
        else bytes += "\x01";
        const std::optional<std::string> unpacked = PackedText::FromBytes(bytes, text.size()).Unpack();
        // A flipped literal byte still unpacks, to a text of the same size.
        if (!unpacked) ++refused;
        else EXPECT_EQ(unpacked->size(), text.size());
    }
    EXPECT_GT(refused, 150);
    EXPECT_FALSE(PackedText::FromBytes(packed.Bytes(), text.size() + 1).Unpack());
}

}  // namespace
}  // namespace flowloom::test
