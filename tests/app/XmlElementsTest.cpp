// The element reader of the loader against pugixml as the referee: the same
// elements, names and attribute values as a parser's tree of the same text.
#include "app/XmlCheck.h"
#include "app/XmlElements.h"

#include <gtest/gtest.h>
#include <pugixml.hpp>

#include <string>
#include <vector>

namespace flowloom {
namespace {

// The element tree as lines: one per element (depth, name) and per attribute.
std::vector<std::string> Lines(const XmlElementView& element, int depth = 0) {
    std::vector<std::string> lines{std::string(static_cast<std::size_t>(depth), ' ') + std::string(element.name())};
    for (const XmlElementAttribute a : element.attributes())
        lines.push_back(std::string(static_cast<std::size_t>(depth), ' ') + "@" + std::string(a.name()) + "=" +
                        std::string(a.value()));
    for (const XmlElementView child : element.children())
        for (std::string& line : Lines(child, depth + 1)) lines.push_back(std::move(line));
    return lines;
}

std::vector<std::string> Lines(const pugi::xml_node& element, int depth = 0) {
    std::vector<std::string> lines{std::string(static_cast<std::size_t>(depth), ' ') + element.name()};
    for (const pugi::xml_attribute& a : element.attributes())
        lines.push_back(std::string(static_cast<std::size_t>(depth), ' ') + "@" + a.name() + "=" + a.value());
    for (const pugi::xml_node& child : element.children())
        if (child.type() == pugi::node_element)
            for (std::string& line : Lines(child, depth + 1)) lines.push_back(std::move(line));
    return lines;
}

// Reads the text as the loader does (a checked document's root) and as pugixml does.
void ExpectAsParser(const std::string& text) {
    SCOPED_TRACE(text);
    XmlOutline outline;
    ASSERT_FALSE(CheckXmlDocument(text, outline));
    pugi::xml_document document;
    ASSERT_TRUE(document.load_string(text.c_str(), pugi::parse_default | pugi::parse_declaration));
    // The root's text from its start tag on, as an outline child would be.
    const std::string_view element = std::string_view(text).substr(text.find(outline.rootStartTag));
    const std::size_t end = element.rfind('>') + 1;
    XmlElements elements;
    ASSERT_TRUE(elements.Read(element.substr(0, end)));
    EXPECT_EQ(Lines(elements.Root()), Lines(document.document_element()));
}

TEST(XmlElements, GiveTheTreeAParserGives) {
    ExpectAsParser("<A/>");
    ExpectAsParser("<A x='1' y=\"2\" z = '3' ></A>");
    // Values with every reference, quotes of the other kind, markup characters.
    ExpectAsParser("<A v='&amp;&lt;&gt;&quot;&apos;&#65;&#x42;&#xe9;&#x1F600;' q='say \"hi\"' m=\"a>b/c\"/>");
    // White space characters in values become spaces, a CR LF one space;
    // references to them stay what they stand for.
    ExpectAsParser("<A v='a\tb\nc\r\nd\re' r='&#9;&#10;&#13;&#13;&#10;'/>");
    // Children among text, comments, CDATA and processing instructions.
    ExpectAsParser("<P n='1'>text &amp; more<!-- <B/> --><C/><![CDATA[<D/>]]><?pi <E/>?><F a='x'><C/></F>tail</P>");
    // Prefixed names as written; the same name nested.
    ExpectAsParser("<p:A xmlns:p='urn:p' p:b='1'><p:A><p:A/></p:A><A/></p:A>");
    // Line ends and blanks inside tags.
    ExpectAsParser("<A\r\n  a='1'\n\tb='2'\n/>");
    // Long values are scanned in blocks: a reference, a line end or the
    // other quote at every place of the first blocks, and UTF-8 around them.
    for (std::size_t at = 0; at < 40; ++at)
        for (const char* marker : {"&amp;", "\t", "\r\n", "\"", "\xc3\xa9"}) {
            const std::string value = std::string(at, 'v') + marker + std::string(40 - at, 'w');
            ExpectAsParser("<A v='" + value + "' next='n'/>");
        }
}

TEST(XmlElements, ChildLookUpsMatchNamesExactly) {
    XmlElements elements;
    ASSERT_TRUE(elements.Read("<R><a i='1'/><A i='2'/><B/><A i='3'/></R>"));
    const XmlElementView root = elements.Root();
    EXPECT_EQ(root.child("A").first_attribute().value(), "2");
    EXPECT_FALSE(root.child("b"));
    std::vector<std::string_view> values;
    for (const XmlElementView a : root.children("A")) values.push_back(a.first_attribute().value());
    EXPECT_EQ(values, (std::vector<std::string_view>{"2", "3"}));
    EXPECT_FALSE(root.child("B").first_attribute());
    EXPECT_FALSE(root.child("B").child("A"));
    const auto none = root.child("B").children();
    EXPECT_FALSE(none.begin() != none.end());
}

TEST(XmlElements, RefuseWhatIsNoSingleElement) {
    XmlElements elements;
    for (const char* text : {"", "text", "<A>", "<A/><B/>", "<A></A><B/>", "<A x=1/>", "<A x='1/>", "<A x='&bogus;'/>",
                             "<A x='&#xZZ;'/>", "<A x='&#x110000;'/>", "<A><!-- open</A>", "<A/>trailing", "<A",
                             "<A x/>", "<A/ >"}) {
        SCOPED_TRACE(text);
        EXPECT_FALSE(elements.Read(text));
        EXPECT_FALSE(elements.Root());
    }
    // A tree read before is gone after a refusal, and reading again works.
    ASSERT_TRUE(elements.Read("<A a='&amp;'/>"));
    EXPECT_FALSE(elements.Read("<A>"));
    EXPECT_FALSE(elements.Root());
    ASSERT_TRUE(elements.Read("<B b='&lt;'/>"));
    EXPECT_EQ(elements.Root().first_attribute().value(), "<");
}

}  // namespace
}  // namespace flowloom
