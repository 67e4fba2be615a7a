// The text sink scans attribute values eight bytes at a time and writes into
// room it makes ahead: every byte that needs escaping is found wherever it
// stands in a word, and the text is the serialiser's however it is handed over.
#include "app/XmlDocument.h"
#include "app/XmlSink.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace flowloom::test {
namespace {

// Plain bytes, among them those next to the ones that need escaping.
constexpr std::string_view kFiller = " !#$%'()=?;@AZaz~\x7F";

std::string Filler(std::size_t size, std::size_t shift) {
    std::string text;
    for (std::size_t i = 0; i < size; ++i) text += kFiller[(i + shift) % kFiller.size()];
    return text;
}

std::string OneAttribute(std::string_view value) {
    TextXmlSink sink;
    sink.Start("e");
    sink.Attribute("a", value);
    sink.End();
    return sink.Finish();
}

std::string SerializedAttribute(std::string_view value) {
    pugi::xml_document document;
    PugiXmlSink sink(document);
    sink.Start("e");
    sink.Attribute("a", value);
    sink.End();
    return SerializeNode(document);
}

TEST(TextXmlSink, EscapesWhatNeedsItAtEveryPositionOfAValue) {
    struct Escape {
        std::string_view raw, written;
    };
    const std::vector<Escape> escapes = {
        {"\"", "&quot;"}, {"&", "&amp;"}, {"<", "&lt;"}, {">", "&gt;"}, {"\t", "&#9;"}, {"\n", "&#10;"},
        {"\r", "&#13;"}, {"\x01", "\xEF\xBF\xBD"}, {"\x1F", "\xEF\xBF\xBD"},
        {"\xC3\xA9", "\xC3\xA9"}, {"\xE2\x82\xAC", "\xE2\x82\xAC"},  // characters beyond ASCII stay
        {"\x80", "\xEF\xBF\xBD"}, {"\xEF\xBF\xBE", "\xEF\xBF\xBD"},  // no UTF-8; no XML character
    };
    for (std::size_t size = 1; size <= 26; ++size) {
        for (std::size_t at = 0; at < size; ++at) {
            for (const Escape& escape : escapes) {
                const std::string before = Filler(at, size), after = Filler(size - at - 1, at);
                const std::string value = before + std::string(escape.raw) + after;
                SCOPED_TRACE(testing::Message() << "size " << size << " at " << at << ": " << value);
                const std::string expected =
                    "<e a=\"" + before + std::string(escape.written) + after + "\"/>";
                ASSERT_EQ(OneAttribute(value), expected);
                ASSERT_EQ(SerializedAttribute(value), expected);
            }
        }
        ASSERT_EQ(OneAttribute(Filler(size, 3)), "<e a=\"" + Filler(size, 3) + "\"/>");
        // Every byte escaped, to the longest escape.
        std::string quotes;
        for (std::size_t i = 0; i < size; ++i) quotes += "&quot;";
        ASSERT_EQ(OneAttribute(std::string(size, '"')), "<e a=\"" + quotes + "\"/>");
    }
    EXPECT_EQ(OneAttribute(""), "<e a=\"\"/>");
}

// A document with values larger than the room the sink makes at a time.
template <typename Sink>
void WriteLarge(Sink& out) {
    XmlElement root(out, "Root");
    for (int i = 0; i < 40; ++i) {
        XmlElement item(out, "Item");
        std::string value = Filler(5000 + 997 * static_cast<std::size_t>(i), static_cast<std::size_t>(i));
        value[static_cast<std::size_t>(i) * 7] = '&';
        value[value.size() - 1 - static_cast<std::size_t>(i)] = '"';
        out.Attribute("Value", value);
        out.Attribute("Empty", "");
        XmlElement child(out, "Child");
    }
}

TEST(TextXmlSink, LargeDocumentsAreTheSameTextInOnePieceOrInChunks) {
    pugi::xml_document document;
    PugiXmlSink tree(document);
    WriteLarge(tree);
    const std::string serialized = SerializeNode(document);

    TextXmlSink whole;
    WriteLarge(whole);
    EXPECT_EQ(whole.Finish(), serialized);

    std::string joined;
    std::size_t pieces = 0;
    TextXmlSink chunked(0, [&](std::string_view piece) {
        joined += piece;
        ++pieces;
        return true;
    }, 1000);
    WriteLarge(chunked);
    EXPECT_EQ(chunked.Finish(), "");
    EXPECT_EQ(joined, serialized);
    EXPECT_GT(pieces, 40u);

    // A consumer that wants no more stops the sink: nothing more is handed over.
    pieces = 0;
    TextXmlSink stopped(0, [&](std::string_view) { return ++pieces < 3; }, 1000);
    WriteLarge(stopped);
    EXPECT_TRUE(stopped.Stopped());
    EXPECT_EQ(stopped.Finish(), "");
    EXPECT_EQ(pieces, 3u);
}

}  // namespace
}  // namespace flowloom::test
