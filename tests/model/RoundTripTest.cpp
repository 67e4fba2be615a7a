// A file that uses every element and attribute comes back byte for byte.
#include "ModelFixture.h"
#include "testsupport/ScopedLocale.h"

#include "model/Database.h"
#include "model/Databases.h"
#include "model/Groups.h"
#include "model/Process.h"

#include <string>
#include <vector>

namespace flowloom::test {
namespace {

class RoundTrip : public ModelFixture {};

TEST_F(RoundTrip, EveryElementAndAttributeSurvivesLoadXmlAndSavingTwice) {
    const std::string original = ReadAll(SourceDir() / "tests/data/every_element.xml");
    ASSERT_FALSE(original.empty());
    auto processes = LoadText(original);
    ASSERT_EQ(processes->Complete(), Processes::Loaded);
    EXPECT_TRUE(prompts.errors.empty());
    EXPECT_TRUE(prompts.boxes.empty());
    EXPECT_EQ(processes->XML(), original);
    EXPECT_EQ(processes->SourceXML(), original);
    const auto out = folder / "out.xml";
    ASSERT_TRUE(processes->Save(out.string()));
    ASSERT_TRUE(processes->Save(out.string()));
    EXPECT_EQ(ReadAll(out), original);
}

TEST_F(RoundTrip, WrittenInPiecesTheTextIsTheSameAndAStopEndsIt) {
    const std::string original = ReadAll(SourceDir() / "tests/data/every_element.xml");
    auto processes = LoadText(original);
    std::string pieces;
    int calls = 0;
    EXPECT_TRUE(processes->WriteXml([&](std::string_view piece) {
        pieces += piece;
        ++calls;
        return true;
    }));
    EXPECT_EQ(pieces, original);
    calls = 0;
    EXPECT_FALSE(processes->WriteXml([&](std::string_view) { return ++calls > 1; }));
    EXPECT_EQ(calls, 1);
}

TEST_F(RoundTrip, TheBundledExampleIsInTheFormTheWriterProduces) {
    const std::string example = ReadAll(SourceDir() / "examples/letters.xml");
    auto processes = LoadText(example);
    EXPECT_EQ(processes->Count(), 3);
    EXPECT_EQ(processes->XML(), example);
}

TEST_F(RoundTrip, ValuesWithEveryEscapedCharacterSurvive) {
    auto processes = Processes::Create();
    auto process = Process::Create();
    const std::string tricky = "a&b <c> \"d\" 'e'\r\nline\ttab ü €";
    process->SetName(tricky);
    process->SetMainDataSourceName(tricky);
    processes->Add(process);
    processes->SetVersion(1);
    const std::string xml = processes->XML();
    EXPECT_EQ(xml.find('\n'), std::string::npos);
    EXPECT_NE(xml.find("a&amp;b &lt;c&gt; &quot;d&quot; 'e'&#13;&#10;line&#9;tab ü €"), std::string::npos) << xml;
    auto reloaded = LoadText(xml);
    ASSERT_EQ(reloaded->Count(), 1);
    EXPECT_EQ(reloaded->Item(CollectionPosition{1})->name(), tricky);
    EXPECT_EQ(reloaded->XML(), xml);
}

TEST_F(RoundTrip, UnknownAttributesAndElementsAreDropped) {
    auto processes = LoadText(Document(R"(<Process Name="p" Colour="red"><Extra/></Process><Unknown/>)"));
    EXPECT_EQ(processes->XML(), Document(R"(<Process Name="p" ProcessRecords="Current"/>)"));
}

TEST_F(RoundTrip, NumbersKeepTheCNotationUnderACommaLocale) {
    ScopedLocale locale(kCommaLocale);
    if (!locale.Active()) GTEST_SKIP() << kCommaLocale << " is not installed";
    const std::string original = ReadAll(SourceDir() / "tests/data/every_element.xml");
    EXPECT_EQ(LoadText(original)->XML(), original);
    // "0.6" is read as 0.6 and rounds to version 1, so the file is not converted.
    auto processes = LoadText(R"(<?xml version="1.0" encoding="UTF-8"?><Processes Version="0.6"/>)");
    EXPECT_EQ(processes->Version(), 1);
}

}  // namespace
}  // namespace flowloom::test

namespace flowloom::test {
namespace {

// Loading reads the root's children one at a time: what stands between them
// and children the reader does not know change nothing, and of Groups,
// Databases and Options the first one counts, wherever it stands.
TEST_F(RoundTrip, TheRootsChildrenAreReadAsAWholeTreeWouldBeRead) {
    const std::string text = Document(
        "\r\n<!-- a comment --><Databases><Database Name=\"D1\"/></Databases>"
        "<Other><Process Name=\"not read\"/></Other>"
        "<Process Name=\"A &amp; B\" ProcessRecords=\"All\"><Groups><Group Name=\"G\"/><Group Name=\"H\"/></Groups></Process>"
        "<?pi between?><Groups><Group Name=\"G\"/></Groups><Groups><Group Name=\"H\"/></Groups>"
        "<Process Name=\"Second\"/><Databases><Database Name=\"D2\"/></Databases>");
    auto processes = LoadText(text);
    ASSERT_EQ(processes->Complete(), Processes::Loaded);
    ASSERT_EQ(processes->Count(), 2);
    EXPECT_EQ(processes->Item(CollectionPosition{1})->name(), "A & B");
    EXPECT_EQ(processes->Item(CollectionPosition{2})->name(), "Second");
    ASSERT_EQ(processes->Groups()->Count(), 1);
    // Only the group the file defines stays with the process.
    EXPECT_EQ(processes->Item(CollectionPosition{1})->Groups()->Count(), 1);
    ASSERT_EQ(processes->Databases()->Count(), 1);
    EXPECT_EQ((*processes->Databases()->begin())->name, "D1");
}

// A file large enough that its text is given back behind the reader while
// it loads: the parts read after the processes (databases, options) must
// survive wherever they stand, and the text as loaded stays at hand.
TEST_F(RoundTrip, ALargeFileReadsTheSameWhereverItsOtherPartsStand) {
    const std::string original = ReadAll(SourceDir() / "tests/data/every_element.xml");
    // Its root holds processes, then Databases, Groups and Options.
    const auto between = [&](std::string_view from, std::string_view to) {
        const std::size_t start = original.find(from);
        return original.substr(start, original.find(to, start) - start);
    };
    const std::string head = original.substr(0, original.find("<Process "));
    const std::string processes = between("<Process ", "<Databases>");
    const std::string databases = between("<Databases>", "<Groups>");
    const std::string groups = between("</Databases>", "<Options>").substr(12);
    const std::string options = between("<Options>", "</Processes>");
    std::vector<std::string> copies;
    for (int i = 0; i < 250; ++i) {
        std::string copy = processes;
        for (std::size_t at = 0; (at = copy.find("<Process Name=\"", at)) != std::string::npos; at += 15)
            copy.insert(at + 15, std::to_string(i) + " ");
        copies.push_back(copy);
    }
    const auto join = [&](std::size_t from, std::size_t to) {
        std::string text;
        for (std::size_t i = from; i < to; ++i) text += copies[i];
        return text;
    };
    const std::string canonical = head + join(0, 250) + databases + groups + options + "</Processes>";
    ASSERT_GT(canonical.size(), std::size_t{1} << 20);  // more than a block of the packed copy
    const std::vector<std::string> variants = {
        canonical,
        head + databases + options + join(0, 250) + groups + "</Processes>",
        head + join(0, 100) + options + join(100, 200) + databases + join(200, 250) + groups + "</Processes>",
    };
    for (const std::string& text : variants) {
        auto loaded = LoadText(text);
        ASSERT_EQ(loaded->Complete(), Processes::Loaded);
        EXPECT_EQ(loaded->Count(), 750);
        EXPECT_TRUE(loaded->XML() == canonical);
        EXPECT_TRUE(loaded->SourceXML() == text);
    }
    EXPECT_TRUE(prompts.errors.empty());
}

}  // namespace
}  // namespace flowloom::test
