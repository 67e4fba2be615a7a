// Options as the processes file holds them: generic groups of values.
#include "options/Options.h"

#include "model/xml/CProcessesXMLDoc.h"
#include "app/XmlDocument.h"

#include <gtest/gtest.h>

namespace flowloom {
namespace {

std::string RoundTrip(const char* xml) {
    pugi::xml_document in;
    EXPECT_TRUE(in.load_string(xml));
    Options options;
    options.LoadElement(in.document_element());
    pugi::xml_document out;
    pugi::xml_node root = out.append_child("Options");
    for (const auto& item : options) CProcessesXMLDoc().OptionFragment(*item, root);
    return SerializeNode(out);
}

TEST(Options, GroupsAndValuesLoadGenericallyWithDetails) {
    pugi::xml_document doc;
    ASSERT_TRUE(doc.load_string(R"(<Options><Email DefaultStyle="5"><DefaultStyle List="HTML;Plain text"/></Email><Empty/></Options>)"));
    Options options;
    options.LoadElement(doc.document_element());
    ASSERT_EQ(options.Count(), 2);
    auto email = options.Find("email");
    ASSERT_NE(email, nullptr);
    EXPECT_EQ(email->Attributes->Item("defaultstyle")->value.Text(), "5");
    EXPECT_EQ(email->Properties->Item("DefaultStyle")->Item("List")->value.Text(), "HTML;Plain text");
    auto empty = options.Find("Empty");
    EXPECT_EQ(empty->Attributes->Count(), 0);
    EXPECT_EQ(empty->Properties->Count(), 0);
}

TEST(Options, UnknownGroupsSurviveAndPrefixesGoOnlyWhenANameRemains) {
    EXPECT_EQ(RoundTrip(R"(<Options><Custom A="1" B=""/></Options>)"), R"(<Options><Custom A="1" B=""/></Options>)");
    EXPECT_EQ(RoundTrip(R"(<Options xmlns:x="u"><x:Mail A="1"/></Options>)"), R"(<Options><Mail A="1"/></Options>)");
}

}  // namespace
}  // namespace flowloom
