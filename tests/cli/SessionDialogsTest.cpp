// The dialogs and the mail-body tool through the session: the browse
// buttons, actions on a dialog's controls, its dump, and what OK, Cancel and
// the tool's end leave in the model.
#include "SessionFixture.h"

namespace flowloom::test {
namespace {

class SessionDialogs : public SessionFixture {
protected:
    // The tool is looked for beside the program; the session only needs it there.
    void PlaceTool() { WriteAll(folder / "markuploom", "#!/bin/sh\n"); }
};

TEST_F(SessionDialogs, FieldValuesOfAProcessAreEditedInTheirDialog) {
    EXPECT_EQ(Session({"-xmlfile", Example()},
                      "browse 7\ndump\ndialog-set cboField Greeting\ndialog-click cmdFieldValueAdd\n"
                      "dialog-set cboValue Dear customer\ndialog-click cmdFieldValueAdd\ndialog-click cmdOK\n"
                      "dump\nxml\n"),
              0);
    EXPECT_EQ(Pick({"dialog", "control lstFieldValues", "control cmdFieldValueAdd", "refused", "row 7"}),
              "row 7: FieldValues | Field Values | 11 | Signature = Accounts department {Signature = Accounts "
              "department} | free |\n"
              "dialog: FieldValues\n"
              "control cmdFieldValueAdd: button | Add | disabled\n"
              "control lstFieldValues: list | [Signature = Accounts department]\n"
              "refused: dialog-click cmdFieldValueAdd\n"
              "row 7: FieldValues | Field Values | 11 | Signature = Accounts department\r\nGreeting = Dear customer "
              "{...} | free |\n");
    EXPECT_NE(out.str().find("<FieldValue Name=\"Greeting\" Value=\"Dear customer\"/>"), std::string::npos);
}

TEST_F(SessionDialogs, CancelLeavesTheModelAndAWindowActionIsBlockedMeanwhile) {
    EXPECT_EQ(Session({"-xmlfile", Example()}, "browse 7\nlist 2\ndialog-set cboField X\ndialog-set cboValue Y\n"
                                               "dialog-click cmdFieldValueAdd\ndialog-close\ndump\n"),
              0);
    EXPECT_EQ(Pick({"blocked", "dialog", "changed"}), "blocked: list\nchanged: no\n");
}

TEST_F(SessionDialogs, GroupsAreChosenAndTheFilesGroupsChangeAtOnce) {
    EXPECT_EQ(Session({"-xmlfile", Example()},
                      "browse 6\ndialog-pick cboGroup 1\ndialog-click cmdGroupAdd\ninput Billing\n"
                      "dialog-click cmdNew\ndialog-click cmdCancel\nbrowse 6\ndump\ndialog-click cmdOK\nxml\n"),
              0);
    EXPECT_EQ(Pick({"control cboGroup", "control lstGroups"}),
              "control cboGroup: combo | Billing | [Accounts | Sales | Billing]\n"
              "control lstGroups: list | [Accounts]\n");
    // The new group stayed in the file though the first dialog was cancelled;
    // the second one's OK kept the process's groups as they were.
    EXPECT_NE(out.str().find("<Groups><Group Name=\"Accounts\"/><Group Name=\"Sales\"/><Group Name=\"Billing\"/></Groups>"),
              std::string::npos);
}

TEST_F(SessionDialogs, AttachmentsOfASendMail) {
    EXPECT_EQ(Session({"-xmlfile", Example()},
                      "cell activity 12 0\ngrid-row 8\ndialog-set cboAttachment x\nbrowse 8\ndialog-pick cboAttachment 1\n"
                      "dialog-click cmdAttachmentAdd\ndialog-click cmdAttachmentAdd\ndialog-set cboAttachment C:\\a.pdf\n"
                      "dialog-click cmdAttachmentAdd\ndialog-click cmdAttachmentAdd\ndialog-click cmdOK\nxml\n"),
              2);
}

TEST_F(SessionDialogs, TheMailBodyGoesThroughTheToolAndBack) {
    PlaceTool();
    EXPECT_EQ(Session({"-xmlfile", Example()},
                      "cell activity 12 0\nbrowse 9\ndump\nlist 2\ntool-close <html><body>Hi</body></html>\r\n\ndump\n"
                      "xml\n"),
              0);
    EXPECT_EQ(Pick({"tool", "enabled", "blocked", "row 9"}), "");
}

TEST_F(SessionDialogs, WithoutTheToolTheBodyCannotBeEdited) {
    EXPECT_EQ(Session({"-xmlfile", Example()}, "cell activity 12 0\nbrowse 9\ndump\n"), 0);
    EXPECT_EQ(Pick({"message", "tool", "enabled"}), "message: Markuploom.exe not found!\n");
}

TEST_F(SessionDialogs, OptionsAreEditedOnACopyThatOkGivesToTheFile) {
    EXPECT_EQ(Session({"-xmlfile", Example()},
                      "menu mnuToolsOptions\ndialog-pick lstOptions 2\nrow 1 Nancy\ndump\ndialog-click cmdCancel\n"
                      "dump\nmenu mnuToolsOptions\ndialog-pick lstOptions 2\nrow 4 Anne\ndialog-click cmdOK\ndump\nxml\n"),
              0);
    EXPECT_EQ(Pick({"dialog", "*dialog-row 1", "changed"}), "");
}

}  // namespace
}  // namespace flowloom::test
