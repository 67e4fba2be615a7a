// The attachments dialog: a path is listed once, a file choice as often as
// wanted.
#include "DialogFixture.h"

#include "designer/dialogs/frmAttachments.h"
#include "support/Prompts.h"

#include <gmock/gmock.h>

namespace flowloom::test {
namespace {

using dialogs::frmAttachments;
using ::testing::ElementsAre;

class AttachmentsDialog : public DialogFixture {};

TEST_F(AttachmentsDialog, OffersTheFixedChoicesAndListsThePresentLinesTrimmed) {
    frmAttachments dialog(" C:\\a.pdf \r\n\r\n   \r\n[SelectFile]");
    EXPECT_EQ(dialog.Caption(), "Attachments");
    EXPECT_THAT(Entries(dialog, "cboAttachment"),
                ElementsAre("[Use mail merge document]", "[SelectFile]", "[SelectFileOnce]",
                            "[Function:CurrentProject.Path]", "[Function:CurrentProject.Path]\\[Template]",
                            "[My Documents]", "[My Documents]\\[Template]", "C:\\TEMP"));
    EXPECT_THAT(Entries(dialog, "lstAttachments"), ElementsAre("C:\\a.pdf", "[SelectFile]"));
    EXPECT_FALSE(Enabled(dialog, "cmdAttachmentAdd"));
    EXPECT_FALSE(Enabled(dialog, "cmdAttachmentEdit"));
    EXPECT_TRUE(frmAttachments("").Find("lstAttachments")->entries.empty());
}

TEST_F(AttachmentsDialog, FileChoicesMayRepeatButAPathIsAddedOnce) {
    frmAttachments dialog("C:\\a.pdf");
    dialog.Pick("cboAttachment", 1);
    dialog.Click("cmdAttachmentAdd");
    dialog.Click("cmdAttachmentAdd");
    dialog.SetText("cboAttachment", "[selectfileONCE]");
    dialog.Click("cmdAttachmentAdd");
    EXPECT_TRUE(prompts.boxes.empty());

    dialog.SetText("cboAttachment", "c:\\A.PDF");
    dialog.Click("cmdAttachmentAdd");
    ASSERT_EQ(prompts.boxes.size(), 1u);
    EXPECT_EQ(prompts.boxes[0].prompt, "This expression is already added.");
    EXPECT_EQ(prompts.boxes[0].style, msgbox::Exclamation);
    dialog.SetText("cboAttachment", "C:\\b.pdf");
    dialog.Click("cmdAttachmentAdd");
    EXPECT_THAT(Entries(dialog, "lstAttachments"),
                ElementsAre("C:\\a.pdf", "[SelectFile]", "[SelectFile]", "[selectfileONCE]", "C:\\b.pdf"));
}

TEST_F(AttachmentsDialog, EditAndRemoveWorkOnTheSelectedLineAndOKHandsBackTheLines) {
    frmAttachments dialog("C:\\a.pdf\r\nC:\\b.pdf\r\nC:\\c.pdf");
    ASSERT_TRUE(dialog.Pick("lstAttachments", 0));
    EXPECT_TRUE(Enabled(dialog, "cmdAttachmentEdit"));
    // Cancelled, empty, a line already listed (itself included): no change.
    prompts.inputs = {std::nullopt, std::string(), std::string("C:\\B.pdf"), std::string("C:\\a.pdf"),
                      std::string("C:\\d.pdf")};
    for (int i = 0; i < 5; ++i) dialog.Click("cmdAttachmentEdit");
    EXPECT_EQ(prompts.boxes.size(), 2u);
    ASSERT_EQ(prompts.asked.size(), 5u);
    EXPECT_EQ(prompts.asked[0].prompt, "Edit the path and file name of Attachment");
    EXPECT_EQ(prompts.asked[0].title, "Edit");
    EXPECT_EQ(prompts.asked[0].defaultText, "C:\\a.pdf");
    EXPECT_THAT(Entries(dialog, "lstAttachments"), ElementsAre("C:\\d.pdf", "C:\\b.pdf", "C:\\c.pdf"));

    dialog.Pick("lstAttachments", 1);
    dialog.Click("cmdAttachmentRemove");
    EXPECT_FALSE(Enabled(dialog, "cmdAttachmentRemove"));
    EXPECT_FALSE(dialog.Click("cmdAttachmentRemove"));
    int helped = 0;
    dialog.OnHelp = [&] { ++helped; };
    dialog.Click("cmdHelp");
    EXPECT_EQ(helped, 1);
    dialog.Click("cmdOK");
    EXPECT_TRUE(dialog.OK());
    EXPECT_EQ(dialog.Result(), "C:\\d.pdf\r\nC:\\c.pdf");
    EXPECT_FALSE(dialog.Click("cmdCancel"));  // done
}

}  // namespace
}  // namespace flowloom::test
