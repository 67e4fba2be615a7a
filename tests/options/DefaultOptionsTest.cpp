// The default options document, kind digits, placeholders, and options as a
// processes file holds them.
#include "options/DefaultOptions.h"
#include "options/OptionKinds.h"
#include "model/OptionPlaceholders.h"
#include "model/xml/CProcessesXMLDoc.h"
#include "app/XmlDocument.h"

#include "model/ModelFixture.h"

#include <gmock/gmock.h>

namespace flowloom::test {
namespace {

using ::testing::ElementsAre;

// Options read generically and written back as a processes file holds them.
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

std::string Detail(const Options& options, const char* group, const char* attribute, const char* detail) {
    const auto details = options.Find(group)->Properties->Find(attribute);
    if (!details) return "<none>";
    const auto entry = details->Find(detail);
    return entry ? entry->value.Text() : "<none>";
}

TEST(DefaultOptions, GroupsInOrderWithKindsAndDefaults) {
    const auto options = LoadDefaultOptions();
    std::vector<std::string> groups;
    for (const auto& item : *options) groups.push_back(item->name);
    EXPECT_THAT(groups, ElementsAre("Email", "FileLocations", "Contact", "ConvertingPostscriptToPDF"));
    EXPECT_EQ(OptionValue(options.get(), "Email", "DefaultStyle"), "5");
    EXPECT_EQ(OptionValue(options.get(), "FileLocations", "TemplateFolder"), "7");
    EXPECT_EQ(Detail(*options, "Email", "DefaultStyle", "List"), "HTML;Plain text");
    EXPECT_EQ(Detail(*options, "Contact", "SupportContactEmail", "Default"), kSupportEmail);
    // A value element without details has none, not an empty one.
    EXPECT_EQ(options->Find("ConvertingPostscriptToPDF")->Properties->Find("PostscriptPrinter")->Count(), 0);
    EXPECT_EQ(Detail(*options, "Email", "DefaultEmailTemplateHTML", "Default"), "<none>");
}

TEST(Options, UnknownGroupsSurviveAndPrefixesGoOnlyWhenANameRemains) {
    EXPECT_EQ(RoundTrip(R"(<Options><Custom A="1" B=""/><Empty/></Options>)"), R"(<Options><Custom A="1" B=""/><Empty/></Options>)");
    EXPECT_EQ(RoundTrip(R"(<Options xmlns:x="u"><x:Mail A="1"/></Options>)"), R"(<Options><Mail A="1"/></Options>)");
}

TEST(OptionKinds, DigitsGiveEditorsAndLockingAndOthersNothing) {
    EXPECT_EQ(KindOfDigit("5"), (OptionKind{OptionEditor::List, true}));
    for (const char* other : {"9", "-1", "", "abc", "1e9"}) EXPECT_EQ(KindOfDigit(other), OptionKind{}) << other;
}

class OptionPlaceholders : public ModelFixture {};

TEST_F(OptionPlaceholders, WithADatabaseTheFoldersFollowItsLocation) {
    const auto processes = LoadText(Document(R"(<Databases><Database Name="A" Location="C:\Data\sales.mdb"/>)"
                                             R"(<Database Name="B" Location="D:\Other\b.mdb"/></Databases>)"));
    EXPECT_EQ(DatabaseFolder(*processes), "C:\\Data\\");
    EXPECT_EQ(ReplaceOptionPlaceholders("{DatabaseFolder}x", *processes), "C:\\Data\\x");
    EXPECT_EQ(ReplaceOptionPlaceholders("{templates}\\labels.dot", *processes), "C:\\Data\\templates\\labels.dot");
    EXPECT_EQ(ReplaceOptionPlaceholders("{Tools}\\flowloom.exe|{TOOLS}", *processes),
              "C:\\Data\\tools\\flowloom.exe|C:\\Data\\tools");
    // The run-time's own placeholders stay.
    EXPECT_EQ(ReplaceOptionPlaceholders("-sOutputFile={OutputPdfFile} {InputPostscriptFile}", *processes),
              "-sOutputFile={OutputPdfFile} {InputPostscriptFile}");
}

TEST_F(OptionPlaceholders, FileLocationsWinOverTheDatabaseFolder) {
    const auto processes = LoadText(Document(
        R"(<Databases><Database Name="A" Location="/srv/data/sales.mdb"/></Databases>)"
        R"(<Options><FileLocations TemplateFolder="/srv/tpl" DocumentFolder=""/></Options>)"));
    EXPECT_EQ(ReplaceOptionPlaceholders("{Templates}/a.dot", *processes), "/srv/tpl/a.dot");
    EXPECT_EQ(ReplaceOptionPlaceholders("{Documents}", *processes), "/srv/data/documents");
}

TEST_F(OptionPlaceholders, WithoutADatabaseOrOptionsTheyAreEmpty) {
    const auto processes = LoadText(Document(R"(<Process Name="P"/>)"));
    EXPECT_EQ(processes->Options()->Count(), 0);
    EXPECT_EQ(OptionValue(processes->Options().get(), "ConvertingPostscriptToPDF", "PostscriptPrinter"), "");
    EXPECT_THAT(processes->XML(), ::testing::Not(::testing::HasSubstr("<Options")));
    EXPECT_EQ(DatabaseFolder(*processes), "");
    EXPECT_EQ(ReplaceOptionPlaceholders("{Templates}\\labels.dot", *processes), "\\labels.dot");
    EXPECT_EQ(ReplaceOptionPlaceholders("{Tools}{Documents}{DatabaseFolder}", *processes), "");
}

TEST_F(OptionPlaceholders, GroupsUnknownToTheDefaultsSurviveASave) {
    const std::string text = Document(R"(<Process Name="P"/><Options><Email DefaultStyle="Plain text"/>)"
                                      R"(<Extra Colour="blue" Size="3"><Colour List="red;blue"/></Extra></Options>)");
    const auto processes = LoadText(text);
    EXPECT_EQ(OptionValue(processes->Options().get(), "extra", "colour"), "blue");
    const auto saved = folder / "saved.xml";
    ASSERT_TRUE(processes->Save(saved.string()));
    EXPECT_THAT(ReadAll(saved), ::testing::HasSubstr(R"(<Extra Colour="blue" Size="3"/>)"));
}

}  // namespace
}  // namespace flowloom::test
