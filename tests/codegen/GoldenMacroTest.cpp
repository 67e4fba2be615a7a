// Whole macros of a process that uses every activity kind and every optional
// line, compared byte for byte with the files in data/. Set
// FLOWLOOM_UPDATE_GOLDEN=1 to write the files anew, then review the diff.
#include "CodegenFixture.h"

#include "codegen/GenerateCodeCommands.h"

#include <cstdlib>

namespace flowloom::test {
namespace {

std::filesystem::path DataDir() { return SourceDir() / "tests/codegen/data"; }

void ExpectGolden(const std::string& macro, const std::string& name) {
    const auto path = DataDir() / name;
    if (std::getenv("FLOWLOOM_UPDATE_GOLDEN")) WriteAll(path, macro);
    EXPECT_EQ(macro, ReadAll(path)) << "macro differs from " << path;
}

class GoldenMacro : public CodegenFixture {
protected:
    void SetUp() override { process = Load(FileBody()); }

    static std::string FileBody() {
        std::string text = ReadAll(DataDir() / "full.xml");
        // The fixture adds its own root around the body.
        const std::string open = R"(<Processes Version="1">)";
        text = text.substr(text.find(open) + open.size());
        return text.substr(0, text.rfind("</Processes>"));
    }

    std::shared_ptr<Process> process;
};

TEST_F(GoldenMacro, ClassesModeRebuildsEveryObject) {
    const std::string macro = GenerateCodeWithoutXML(processes, process);
    ExpectGolden(macro, "full_classes.bas");
    ASSERT_EQ(prompts.texts.size(), 1u);
    EXPECT_EQ(prompts.texts[0], macro);
    EXPECT_TRUE(prompts.errors.empty());
}

TEST_F(GoldenMacro, XmlModeOnlyNamesTheProcess) {
    const auto macro = GenerateCodeWithXML(processes, process);
    ASSERT_TRUE(macro);
    ExpectGolden(*macro, "full_xml.bas");
    ASSERT_EQ(prompts.texts.size(), 1u);
    EXPECT_EQ(prompts.texts[0], *macro);
}

TEST_F(GoldenMacro, EveryLineEndsInCrLfAndNoBareLineFeedIsLeft) {
    const std::string macro = GenerateCodeWithoutXML(processes, process);
    std::size_t lineFeeds = 0;
    for (std::size_t i = 0; i < macro.size(); ++i) {
        if (macro[i] != '\n') continue;
        ++lineFeeds;
        ASSERT_GT(i, 0u);
        EXPECT_EQ(macro[i - 1], '\r') << "at byte " << i;
    }
    EXPECT_EQ(macro.substr(macro.size() - 2), "\r\n");
    EXPECT_GT(lineFeeds, 200u);
}

}  // namespace
}  // namespace flowloom::test
