// The XML layer reads only what a conformant parser reads, and writes only
// what it reads; libxml2 is the referee of both.
#include "app/XmlCheck.h"
#include "app/XmlDocument.h"
#include "support/TextCompare.h"
#include "testsupport/XmlReferee.h"

#include <gtest/gtest.h>

#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace flowloom::test {
namespace {

struct Case {
    const char* what;
    std::string text;
};

std::string Serialized(const pugi::xml_node& node) { return SerializeNode(node); }

// Many attributes are checked for duplicates by sorting them.
std::string ManyAttributes(const std::string& last) {
    std::string tag = "<a";
    for (int i = 0; i < 40; ++i) tag += " a" + std::to_string(i) + "=\"1\"";
    return tag + " " + last + "=\"2\"/>";
}

TEST(XmlReader, RefusesWhatAConformantParserRefuses) {
    const std::string manyWithDuplicate = ManyAttributes("a17");
    const std::vector<Case> cases = {
        {"a duplicate among many attributes", manyWithDuplicate},
        {"a default namespace of xml", "<a xmlns=\"http://www.w3.org/XML/1998/namespace\"/>"},
        {"a byte that is no UTF-8", "<a v=\"\xFF\"/>"},
        {"an overlong form", "<a v=\"\xC0\xBC\"/>"},
        {"a surrogate in UTF-8", "<a>\xED\xA0\x80</a>"},
        {"a control character", "<a>\x01</a>"},
        {"a reference to a control character", "<a v=\"&#26;\"/>"},
        {"a reference to a surrogate", "<a v=\"&#xD800;\"/>"},
        {"a reference beyond Unicode", "<a>&#x110000;</a>"},
        {"a name ending in a colon", "<Processes><Fiprintout259:/></Processes>"},
        {"a name of two colons", "<a:b:c xmlns:a=\"u\"/>"},
        {"an undeclared prefix", "<a><p:b/></a>"},
        {"a name starting with a digit", "<1a/>"},
        {"a duplicate attribute", "<a x=\"1\" x=\"2\"/>"},
        {"one attribute by two prefixes", "<a xmlns:p=\"u\" xmlns:q=\"u\" p:x=\"1\" q:x=\"2\"/>"},
        {"an empty prefix declaration", "<a xmlns:p=\"\"/>"},
        {"the xml prefix rebound", "<a xmlns:xml=\"u\"/>"},
        {"the xmlns prefix declared", "<a xmlns:xmlns=\"u\"/>"},
        {"two roots", "<a/><b/>"},
        {"text after the root", "<a/>x"},
        {"no root", "<?xml version=\"1.0\"?><!-- only a comment -->"},
        {"an undefined entity", "<a>&nbsp;</a>"},
        {"a bare ampersand", "<a v=\"a & b\"/>"},
        {"'<' in an attribute value", "<a v=\"<\"/>"},
        {"two hyphens in a comment", "<a><!-- a -- b --></a>"},
        {"']]>' in text", "<a>]]></a>"},
        {"a declaration not at the start", " <?xml version=\"1.0\"?><a/>"},
        {"a processing instruction named XML", "<a><?XmL x?></a>"},
        {"no white space between attributes", "<a x=\"1\"y=\"2\"/>"},
        {"version 2.0", "<?xml version=\"2.0\"?><a/>"},
        {"an unclosed element", "<a><b></a>"},
        {"UTF-16 declared over UTF-8 bytes", "<?xml version=\"1.0\" encoding=\"UTF-16\"?><a/>"},
        {"US-ASCII declared over other bytes", "<?xml version=\"1.0\" encoding=\"US-ASCII\"?><a v=\"\xC3\xA9\"/>"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_TRUE(ConformantParserFault(c.text).has_value()) << "the referee takes it";
        XmlDocument document;
        EXPECT_FALSE(document.LoadXml(c.text));
        EXPECT_FALSE(document.DocumentElement());
        EXPECT_GE(document.ParseError().line, 1);
        EXPECT_FALSE(document.ParseError().reason.empty());
    }
}

TEST(XmlReader, TakesEveryWellFormedDocumentOfTheKindsItMeets) {
    const std::vector<Case> cases = {
        {"the usual declaration", "<?xml version=\"1.0\" encoding=\"UTF-8\"?><Processes Version=\"1\"/>"},
        {"a byte order mark", "\xEF\xBB\xBF<?xml version=\"1.0\"?><a/>"},
        {"standalone and single quotes", "<?xml version='1.0' encoding='utf-8' standalone='yes'?><a/>"},
        {"comments, instructions and CDATA", "<!-- c --><?pi data?><a><![CDATA[<&]]><!----><?x?></a><!-- end -->"},
        {"references", "<a v=\"&lt;&gt;&amp;&apos;&quot;&#9;&#x10FFFF;\">&#xE9;</a>"},
        {"characters of every plane", "<a v=\"\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80\"/>"},
        {"declared and used prefixes", "<p:a xmlns:p=\"urn:p\" xmlns=\"urn:d\" p:x=\"1\" x=\"2\"><p:b xml:lang=\"de\"/></p:a>"},
        {"one local name in two namespaces", "<a xmlns:p=\"urn:p\" xmlns:q=\"urn:q\" p:x=\"1\" q:x=\"2\"/>"},
        {"a document type without a subset", "<!DOCTYPE Processes SYSTEM \"processes.dtd\"><Processes/>"},
        {"non-ASCII names", "<\xC3\xA9l\xC3\xA9ment attribut\xC2\xB7x=\"1\"/>"},
        {"white space in tags", "<a\n  x = \"1\"\t></a >"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(ConformantParserFault(c.text), std::nullopt);
        XmlDocument document;
        EXPECT_TRUE(document.LoadXml(c.text)) << document.ParseError().reason;
    }
}

TEST(XmlReader, AViolationIsAParseErrorWithItsLineAndText) {
    XmlDocument document;
    ASSERT_FALSE(document.LoadXml("<?xml version=\"1.0\"?>\r\n<a>\r\n<b v=\"&#26;\"/></a>"));
    EXPECT_EQ(document.ParseError().line, 3);
    EXPECT_EQ(document.ParseError().srcText, "<b v=\"&#26;\"/></a>");
    EXPECT_EQ(document.ParseError().reason, "The character reference names a character XML does not allow.");
}

TEST(XmlReader, OtherEncodingsAreReadIntoUtf8) {
    XmlDocument latin1;
    ASSERT_TRUE(latin1.LoadXml("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><a v=\"caf\xE9\"/>"));
    EXPECT_STREQ(latin1.DocumentElement().attribute("v").value(), "caf\xC3\xA9");

    const std::string utf16 = std::string("\xFF\xFE", 2) + std::string("<\0a\0 \0v\0=\0\"\0\xE9\0\"\0/\0>\0", 20);
    XmlDocument wide;
    ASSERT_TRUE(wide.LoadXml(utf16)) << wide.ParseError().reason;
    EXPECT_STREQ(wide.DocumentElement().attribute("v").value(), "\xC3\xA9");
    // What is written is UTF-8 and says so, whatever was read.
    EXPECT_EQ(latin1.XML(), "<?xml version=\"1.0\" encoding=\"UTF-8\"?><a v=\"caf\xC3\xA9\"/>");

    XmlDocument lone;
    EXPECT_FALSE(lone.LoadXml(std::string("\xFF\xFE<\0\x00\xD8", 6)));
}

TEST(XmlWriter, NeverWritesACharacterXmlForbids) {
    XmlDocument document;
    document.AppendDeclaration();
    pugi::xml_node root = document.Native().append_child("Processes");
    const std::string bad = "a\x01" "b\x1A" "c\xFF" "d\xC0\x80" "e\xED\xA0\x80" "f\xEF\xBF\xBE" "g";
    root.append_attribute("Name").set_value(bad.c_str());
    root.append_child(pugi::node_pcdata).set_value(bad.c_str());
    root.append_child(pugi::node_comment).set_value("a--b-");
    root.append_child(pugi::node_cdata).set_value("x]]>y");
    root.append_child(pugi::node_pi).set_name("tool");
    root.last_child().set_value("a?>b");
    const std::string xml = document.XML();
    EXPECT_EQ(ConformantParserFault(xml), std::nullopt) << xml;
    const std::string replaced = "a\uFFFDb\uFFFDc\uFFFDd\uFFFD\uFFFDe\uFFFD\uFFFD\uFFFDf\uFFFDg";
    EXPECT_NE(xml.find("Name=\"" + replaced + "\""), std::string::npos) << xml;
    XmlDocument again;
    ASSERT_TRUE(again.LoadXml(xml)) << again.ParseError().reason;
    EXPECT_EQ(again.DocumentElement().attribute("Name").value(), replaced);
}

TEST(XmlWriter, LeavesOutNamesThatCannotStand) {
    pugi::xml_document document;
    pugi::xml_node root = document.append_child("Options");
    root.append_child("Fiprintout259:").append_attribute("Kept").set_value("no");
    pugi::xml_node group = root.append_child("Group");
    group.append_attribute("1x").set_value("1");
    group.append_attribute("p:x").set_value("2");
    group.append_attribute("a").set_value("3");
    group.append_attribute("a").set_value("4");
    group.append_attribute("xmlns:e").set_value("");
    group.append_attribute("e:y").set_value("5");
    pugi::xml_node prefixed = root.append_child("q:Group");
    prefixed.append_attribute("xmlns:q").set_value("urn:q");
    prefixed.append_attribute("q:x").set_value("6");
    root.append_child("").append_attribute("x").set_value("7");
    const std::string xml = Serialized(document);
    EXPECT_EQ(xml, "<Options><Group a=\"3\"/><q:Group xmlns:q=\"urn:q\" q:x=\"6\"/></Options>");
    EXPECT_EQ(ConformantParserFault(xml), std::nullopt);
}

TEST(XmlLayer, DeepNestingCostsNoMachineStack) {
    constexpr int depth = 200000;
    pugi::xml_document document;
    pugi::xml_node node = document;
    for (int i = 0; i < depth; ++i) node = node.append_child("e");
    const std::string xml = Serialized(document);
    ASSERT_EQ(xml.size(), depth * std::string("<e></e>").size() - std::string("></e").size() + 1);
    XmlDocument again;
    EXPECT_TRUE(again.LoadXml(xml)) << again.ParseError().reason;
    XmlDocument unclosed;
    EXPECT_FALSE(unclosed.LoadXml(xml.substr(0, xml.size() - 4)));
}

TEST(XmlLayer, AnyAttributeValueComesBackOrIsMadeWellFormed) {
    std::mt19937 random(20240611);
    std::uniform_int_distribution<int> length(0, 12);
    std::uniform_int_distribution<int> byte(1, 255);
    for (int round = 0; round < 3000; ++round) {
        std::string value;
        for (int n = length(random); n > 0; --n) value += static_cast<char>(byte(random));
        XmlDocument document;
        document.Native().append_child("a").append_attribute("v").set_value(value.c_str());
        const std::string xml = document.XML();
        ASSERT_EQ(ConformantParserFault(xml), std::nullopt) << xml;
        XmlDocument again;
        ASSERT_TRUE(again.LoadXml(xml)) << again.ParseError().reason << ": " << xml;
        const std::string back = again.DocumentElement().attribute("v").value();
        // A value made only of characters XML allows comes back unchanged.
        const bool allowed = value.find("]]>") == std::string::npos &&
                             !ConformantParserFault("<a><![CDATA[" + value + "]]></a>");
        if (allowed) {
            EXPECT_EQ(back, value);
        }
    }
}

}  // namespace
}  // namespace flowloom::test

namespace flowloom {
namespace {

// The readers' name test: without regard to case, also beyond ASCII.
TEST(XmlNames, NameIsComparesWithoutRegardToCaseAndStopsAtTheFirstDifference) {
    pugi::xml_document document;
    ASSERT_TRUE(document.load_string("<r Name='1' NAMES='2' nam='3' \xE2\x84\xAA" "ey='4' N\xC3\xA4me='5' a_='6'/>"));
    std::vector<pugi::xml_attribute> a(document.first_child().attributes_begin(), document.first_child().attributes_end());
    ASSERT_EQ(a.size(), 6u);
    EXPECT_TRUE(NameIs(a[0], "name"));
    EXPECT_TRUE(NameIs(a[0], "NAME"));
    EXPECT_FALSE(NameIs(a[1], "Name"));   // longer
    EXPECT_FALSE(NameIs(a[2], "Name"));   // shorter
    EXPECT_TRUE(NameIs(a[3], "KEY"));     // the Kelvin sign folds to k
    EXPECT_TRUE(NameIs(a[4], "n\xC3\xA4me"));
    EXPECT_FALSE(NameIs(a[4], "Name"));
    EXPECT_FALSE(NameIs(a[5], "a\x7F"));  // no letters: _ and DEL are no case pair
    EXPECT_TRUE(NameIs(document.first_child(), "R"));
    // Texts that are no node names give what EqualsNoCase gives.
    using namespace std::string_view_literals;
    for (const auto& [text, name] : std::vector<std::pair<std::string_view, std::string_view>>{
             {"ab"sv, "AB"sv}, {"ab"sv, "ab\0"sv}, {"ab\0"sv, "ab"sv}, {"a\0b"sv, "a\0B"sv}, {"Stra\xC3\x9F" "e"sv, "STRASSE"sv},
             {""sv, ""sv}, {""sv, "a"sv}, {"abc"sv, "ab"sv}, {"\xFF"sv, "\xFF"sv}, {"ab\xC3\x84"sv, "AB\xC3\xA4"sv}})
        EXPECT_EQ(NameIs(text, name), EqualsNoCase(text, name)) << text << " / " << name;
}

}  // namespace
}  // namespace flowloom

namespace flowloom {
namespace {

// The outline hands a reader the root's start tag and each child of the root
// exactly as it stands, whatever comes between them.
TEST(XmlOutline, TheRootsChildrenComeAsTheirOwnTextWithTheirNames) {
    const std::string text =
        "<?xml version=\"1.0\"?><!-- before --><R a=\"x&gt;y\" b='>'>\r\n text <A/><!-- c --><?pi x?>"
        "<B k=\"1\"><B><A/></B>&amp;</B><![CDATA[<C/>]]><p:C xmlns:p=\"urn:p\">t</p:C>\n<A\r\n/></R><!-- after -->";
    XmlOutline outline;
    ASSERT_FALSE(CheckXmlDocument(text, outline));
    EXPECT_EQ(outline.rootName, "R");
    EXPECT_EQ(outline.rootStartTag, "<R a=\"x&gt;y\" b='>'>");
    std::vector<std::pair<std::string, std::string>> children;
    for (const auto& child : outline.children) children.emplace_back(child.name, child.text);
    const std::vector<std::pair<std::string, std::string>> expected = {
        {"A", "<A/>"}, {"B", "<B k=\"1\"><B><A/></B>&amp;</B>"}, {"p:C", "<p:C xmlns:p=\"urn:p\">t</p:C>"}, {"A", "<A\r\n/>"}};
    EXPECT_EQ(children, expected);

    // An empty root has no children; a broken document no outline.
    ASSERT_FALSE(CheckXmlDocument("<R/>", outline));
    EXPECT_EQ(outline.rootStartTag, "<R/>");
    EXPECT_TRUE(outline.children.empty());
    EXPECT_TRUE(CheckXmlDocument("<R><A></R>", outline));
    EXPECT_TRUE(outline.children.empty());
}

TEST(XmlOutline, LoadOutlineKeepsTheRootsAttributesAndChildrenParseAlone) {
    XmlDocument document;
    XmlOutline outline;
    std::string storage;
    // UTF-16 text is converted first; the outline points into the conversion.
    static const char raw[] = "\xFF\xFE<\0R\0 \0v\0=\0\"\0""1\0\"\0>\0<\0A\0 \0n\0=\0\"\0\xE4\0\"\0/\0>\0<\0/\0R\0>\0";
    const std::string utf16(raw, sizeof raw - 1);
    ASSERT_TRUE(document.LoadOutline(utf16, storage, outline));
    EXPECT_STREQ(document.DocumentElement().attribute("v").value(), "1");
    EXPECT_FALSE(document.DocumentElement().first_child());
    ASSERT_EQ(outline.children.size(), 1u);
    pugi::xml_document fragment;
    const pugi::xml_node child = ParseChild(outline.children[0], fragment);
    EXPECT_STREQ(child.attribute("n").value(), "\xC3\xA4");
    EXPECT_FALSE(document.LoadOutline("<R><A></R>", storage, outline));
    EXPECT_EQ(document.ParseError().line, 1);
}

}  // namespace
}  // namespace flowloom

namespace flowloom {
namespace {

// Where and why the checker refuses a text; nothing when it is a document.
std::optional<std::pair<std::size_t, std::string>> Refusal(std::string_view text) {
    const std::optional<XmlSyntaxError> error = CheckXmlDocument(text);
    if (!error) return std::nullopt;
    return std::make_pair(error->offset, error->reason);
}

// Names, attribute values and text are read many bytes at a time; the byte
// that ends them counts wherever it stands in such a block.
TEST(XmlCheck, RunsEndAtTheirFirstByteWhereverItStands) {
    constexpr const char* kInvalid = "An invalid character was found in text content.";
    const std::string run(40, 'a');
    for (std::size_t at = 0; at <= run.size(); ++at) {
        SCOPED_TRACE(at);
        const auto with = [&](std::string_view inserted) { return std::string(run).insert(at, inserted); };
        using Expected = std::optional<std::pair<std::size_t, std::string>>;
        // A name goes on over a character beyond ASCII and stops at one that is no name character.
        EXPECT_EQ(Refusal("<x" + with("\xC3\xA9") + "/>"), std::nullopt);
        EXPECT_EQ(Refusal("<x" + with("\xC3\x97") + "/>"),
                  Expected({2 + at, "White space is required between attributes."}));
        EXPECT_EQ(Refusal("<x" + with("\xFF") + "/>"), Expected({2 + at, "The bytes are not UTF-8."}));
        // A colon anywhere makes a prefix that must be declared, or no qualified name at all.
        EXPECT_EQ(Refusal("<x" + with(":") + "/>").value().first, 1u);
        EXPECT_EQ(Refusal("<R x" + with(":") + "=\"1\"/>").value().first, 3u);
        // Values and text take line ends, tabs, the other quote and characters beyond ASCII.
        for (const char* taken : {"\t", "\r\n", "'", "\xC3\xA9", "&amp;", "]"}) {
            EXPECT_EQ(Refusal("<R v=\"" + with(taken) + "\"/>"), std::nullopt) << taken;
            EXPECT_EQ(Refusal("<R>" + with(taken) + "</R>"), std::nullopt) << taken;
        }
        EXPECT_EQ(Refusal("<R v=\"" + with("\x01") + "\"/>"), Expected({6 + at, kInvalid}));
        EXPECT_EQ(Refusal("<R v=\"" + with("<") + "\"/>"),
                  Expected({6 + at, "The character '<' cannot be used in an attribute value."}));
        EXPECT_EQ(Refusal("<R v=\"" + with("\xED\xA0\x80") + "\"/>"), Expected({6 + at, "The bytes are not UTF-8."}));
        EXPECT_EQ(Refusal("<R>" + with("\x1F") + "</R>"), Expected({3 + at, kInvalid}));
        EXPECT_EQ(Refusal("<R>" + with("]]>") + "</R>"),
                  Expected({3 + at, "The literal string ']]>' is not allowed in element content."}));
    }
}

TEST(XmlCheck, ADuplicateAttributeIsRefusedAtItsSecondNameHoweverManyStandBeforeIt) {
    for (const int count : {1, 2, 7, 31, 32, 33, 40}) {
        for (const std::string element : {"R", "p:R xmlns:p=\"u\""}) {
            SCOPED_TRACE(std::to_string(count) + " " + element);
            std::string tag = "<" + element;
            for (int i = 0; i < count; ++i) tag += " a" + std::to_string(i) + "=\"1\"";
            const std::size_t second = tag.size() + 1;
            tag += " a" + std::to_string(count / 2) + "=\"2\" b=\"3\"/>";
            EXPECT_EQ(Refusal(tag), std::make_optional(std::make_pair(second, std::string("Duplicate attribute."))));
        }
    }
    // Names of one length with the same ends are still different names.
    EXPECT_EQ(Refusal("<R axb=\"1\" ayb=\"2\" azb=\"3\"><A axb=\"1\" axxb=\"2\"/></R>"), std::nullopt);
}

TEST(XmlCheck, TagsCutShortAndEndTagsAreJudgedByTheirWholeName) {
    const std::string longName(40, 'n');
    EXPECT_EQ(Refusal("<" + longName), std::make_optional(std::make_pair(longName.size() + 1, std::string("The start tag is not closed."))));
    EXPECT_EQ(Refusal("<R a").value().second, "Missing equals sign between attribute and attribute value.");
    EXPECT_EQ(Refusal("<R></R"), std::make_optional(std::make_pair(std::size_t{6}, std::string("The end tag is not well-formed."))));
    EXPECT_EQ(Refusal("<Rabc></Rab>").value().first, 6u);
    EXPECT_EQ(Refusal("<Rab></Rabc>").value().first, 5u);
    EXPECT_EQ(Refusal("<R></R >"), std::nullopt);
    // A declaration holds for its element only, with plain elements around it.
    EXPECT_EQ(Refusal("<R xmlns:p=\"u\"><A><p:B/></A><p:C></p:C></R>"), std::nullopt);
    EXPECT_EQ(Refusal("<R><A xmlns:q=\"v\"><B/></A><q:D/></R>"),
              std::make_optional(std::make_pair(std::size_t{27}, std::string("Reference to undeclared namespace prefix."))));
    EXPECT_EQ(Refusal("<R><A xmlns:q=\"v\"/><q:D/></R>").value().first, 20u);
}

}  // namespace
}  // namespace flowloom
