// The system's error numbers, their texts, forms and help contexts.
#include "app/ErrorNumbers.h"
#include "app/CXmlMessages.h"
#include "app/VbError.h"

#include "testsupport/ScriptedPrompts.h"
#include "testsupport/TempFolder.h"

#include <gtest/gtest.h>

namespace flowloom {
namespace {

TEST(ErrorNumbers, UnknownAndUnusedNumbersAreUnspecified) {
    EXPECT_EQ(errnum::Description(29999), "Unspecified Velorin error");
    EXPECT_EQ(errnum::Description(30049), "Unspecified Velorin error");
    EXPECT_EQ(errnum::Description(30100), "Unspecified Velorin error");
    EXPECT_EQ(errnum::Description(30047), "Document used in SaveAs is not created in previous steps");
    EXPECT_EQ(errnum::Description(30061).find("Label template is incorrect.\r\nSee the help"), 0u);
}

TEST(ErrorNumbers, FormsReplaceEveryOccurrence) {
    EXPECT_EQ(errnum::Description(30051, {"C:\\x.xml"}), "'C:\\x.xml' is not a valid path.");
    EXPECT_EQ(errnum::Description(30015, {"Orders"}), "Datasource Orders does not exist");
    EXPECT_EQ(errnum::Description(30080, {"x"}), errnum::Description(30080));
    EXPECT_EQ(errnum::Description(30021, {"x"}), "MailMerge failed");
}

TEST(ErrorNumbers, HelpContexts) {
    EXPECT_EQ(errnum::HelpContext(30057), 30001);
    EXPECT_EQ(errnum::HelpContext(30084), 30006);
    EXPECT_EQ(errnum::HelpContext(30036), 0);
    EXPECT_EQ(errnum::HelpContext(30082), 30082);
    EXPECT_EQ(errnum::HelpContext(30021), 30000);
}

TEST(ErrorNumbers, RaiseTakesTheTableTextAndPutsTheContextFirst) {
    try {
        errnum::Raise(30063);
        FAIL();
    } catch (const VbError& e) {
        EXPECT_EQ(e.Number(), 30063);
        EXPECT_EQ(e.Description(), "Database does not exist");
        EXPECT_EQ(e.HelpContext(), 30000);
    }
    try {
        errnum::Raise(30063, "Opening Sales");
        FAIL();
    } catch (const VbError& e) {
        EXPECT_EQ(e.Description(), "Opening Sales\r\n\r\nDatabase does not exist");
    }
}

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

TEST_F(Catalogue, MissingMessagesNodeFails) {
    EXPECT_FALSE(Load("<Root><Other/></Root>"));
    ASSERT_EQ(prompts.boxes.size(), 1u);
    EXPECT_EQ(prompts.boxes[0].prompt, "The top level node is not 'Messages'.");
    EXPECT_EQ(prompts.boxes[0].style, msgbox::Critical);
}

TEST_F(Catalogue, ParseErrorGivesLineReasonAndSource) {
    EXPECT_FALSE(Load("<Root>\n<Messages>\n</Root>"));
    ASSERT_EQ(prompts.boxes.size(), 1u);
    EXPECT_EQ(prompts.boxes[0].prompt.rfind("Error: Line 3\r\n", 0), 0u) << prompts.boxes[0].prompt;
}

TEST_F(Catalogue, DuplicateCodeEndsTheReadingButKeepsWhatCameBefore) {
    EXPECT_FALSE(Load(R"(<R><Messages><M Code="1" Text="a"/><M Code="1" Text="b"/><M Code="2" Text="c"/></Messages></R>)"));
    EXPECT_EQ(messages.GetMessage("1"), "a");
    EXPECT_EQ(messages.GetMessage("2"), "");
}

TEST_F(Catalogue, EmptyMessagesNodeKeepsThePreviousTexts) {
    ASSERT_TRUE(Load(R"(<R><Messages><M Code="1" Text="a"/></Messages></R>)"));
    ASSERT_TRUE(Load(R"(<R><Messages/></R>)"));
    EXPECT_EQ(messages.GetMessage("1"), "a");
}

}  // namespace
}  // namespace flowloom
