// The message catalogue: texts by code from an XML file.
#include "app/CXmlMessages.h"

#include "testsupport/ScriptedPrompts.h"
#include "testsupport/TempFolder.h"

#include <gtest/gtest.h>

namespace flowloom {
namespace {

class Catalogue : public ::testing::Test {
protected:
    bool Load(const std::string& text) {
        test::WriteAll(folder / "messages.xml", text);
        return messages.Load((folder / "messages.xml").string());
    }
    test::TempFolder folder;
    test::ScriptedPrompts prompts;
    CXmlMessages messages;
};

TEST_F(Catalogue, ReadsElementChildrenByCodeWithAttributeNamesInAnyCase) {
    ASSERT_TRUE(Load(R"(<Root><Messages><!-- note --><Msg Code="10" Text="Ten"/>text<Any CODE="x" text="Ex"/>)"
                     R"(</Messages></Root>)"));
    EXPECT_EQ(messages.GetMessage("10"), "Ten");
    EXPECT_EQ(messages.GetMessage("X"), "Ex");
    EXPECT_EQ(messages.GetMessage("11"), "");
    EXPECT_EQ(messages.GetMessage(""), "");
    EXPECT_TRUE(prompts.boxes.empty());
}

TEST_F(Catalogue, AMissingMessagesNodeOrAParseErrorFailsWithABox) {
    EXPECT_FALSE(Load("<Root><Other/></Root>"));
    EXPECT_FALSE(Load("<Root>\n<Messages>\n</Root>"));
    ASSERT_EQ(prompts.boxes.size(), 2u);
    EXPECT_EQ(prompts.boxes[0].prompt, "The top level node is not 'Messages'.");
    EXPECT_EQ(prompts.boxes[0].style, msgbox::Critical);
    EXPECT_EQ(prompts.boxes[1].prompt.rfind("Error: Line 3\r\n", 0), 0u) << prompts.boxes[1].prompt;
}

TEST_F(Catalogue, DuplicateCodeEndsTheReadingButKeepsWhatCameBefore) {
    EXPECT_FALSE(Load(R"(<R><Messages><M Code="1" Text="a"/><M Code="1" Text="b"/><M Code="2" Text="c"/></Messages></R>)"));
    EXPECT_EQ(messages.GetMessage("1"), "a");
    EXPECT_EQ(messages.GetMessage("2"), "");
}

TEST_F(Catalogue, AFailedOrEmptyLoadKeepsTheTextsAndANewOneReplacesThem) {
    ASSERT_TRUE(Load(R"(<R><Messages><M Code="1" Text="a"/></Messages></R>)"));
    ASSERT_TRUE(Load(R"(<R><Messages/></R>)"));
    EXPECT_FALSE(messages.Load((folder / "absent.xml").string()));
    ASSERT_EQ(prompts.boxes.size(), 1u);
    EXPECT_EQ(prompts.boxes[0].prompt.rfind("Error: Line ", 0), 0u);
    EXPECT_EQ(messages.GetMessage("1"), "a");
    ASSERT_TRUE(Load(R"(<R><Messages><M Code="2" Text="b"/></Messages></R>)"));
    EXPECT_EQ(messages.GetMessage("1"), "");
    EXPECT_EQ(messages.GetMessage("2"), "b");
    EXPECT_EQ(messages.Messages().Count(), 1);
}

}  // namespace
}  // namespace flowloom
