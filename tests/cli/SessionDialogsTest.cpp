// The dialogs and the mail-body tool through the session: the browse
// buttons, actions on a dialog's controls, its dump, and what OK, Cancel and
// the tool's end leave in the model.
#include "SessionFixture.h"

#include "designer/access/AccessTestFiles.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <filesystem>

namespace flowloom::test {
namespace {

class SessionDialogs : public SessionFixture {
protected:
    // The tool is looked for beside the program; the session only needs it there.
    void PlaceTool() { WriteAll(folder / "markuploom", "#!/bin/sh\n"); }
};

TEST_F(SessionDialogs, FieldValuesOfAProcessAreEditedInTheirDialog) {
    // A typed field is no entry of the list: Add takes the line and then
    // fails on removing the entry, as the dialog always has.
    EXPECT_EQ(Session({"-xmlfile", Example()},
                      "browse 7\ndump\ndialog-set cboField Greeting\ndialog-click cmdFieldValueAdd\n"
                      "dialog-set cboValue Dear customer\ndialog-click cmdFieldValueAdd\ndialog-click cmdOK\n"
                      "dump\nxml\n"),
              0);
    EXPECT_EQ(Pick({"dialog", "control cmdFieldValueAdd", "control lstFieldValues", "refused", "error", "row 7"}),
              "row 7: FieldValues | Field Values | 11 | Signature = Accounts department {(Data)} | locked |\n"
              "dialog: FieldValues\n"
              "control cmdFieldValueAdd: button | Add | disabled\n"
              "control lstFieldValues: list | [Signature = Accounts department]\n"
              "refused: dialog-click cmdFieldValueAdd\n"
              "error 5 (frmFieldValues.cmdFieldValueAdd_Click): Invalid procedure call or argument\n"
              "row 7: FieldValues | Field Values | 11 | Signature = Accounts department\\nGreeting = Dear customer "
              "{(Data)} | locked |\n");
    EXPECT_NE(out.str().find("<FieldValue Name=\"Greeting\" Value=\"Dear customer\"/>"), std::string::npos);
}

TEST_F(SessionDialogs, CancelLeavesTheModelAndTheWindowWaitsMeanwhile) {
    EXPECT_EQ(Session({"-xmlfile", Example()}, "browse 7\nlist 2\ndialog-set cboField X\ndialog-set cboValue Y\n"
                                               "dialog-click cmdFieldValueAdd\ndialog-close\ndump\n"),
              0);
    EXPECT_EQ(Pick({"blocked", "dialog", "changed"}), "blocked: list\nchanged: no\n");
}

TEST_F(SessionDialogs, GroupsAreChosenAndTheFilesGroupsChangeAtOnce) {
    EXPECT_EQ(Session({"-xmlfile", Example()},
                      "browse 6\ninput Billing\ndialog-click cmdNew\ndialog-click cmdCancel\nbrowse 6\n"
                      "dialog-pick cboGroup 1\ndialog-click cmdGroupAdd\ndump\ndialog-click cmdOK\nxml\n"),
              0);
    EXPECT_EQ(Pick({"control cboGroup", "control lstGroups"}),
              "control cboGroup: combo | Sales | [Accounts | *Sales | Billing]\n"
              "control lstGroups: list | [Accounts | Sales]\n");
    // The new group stayed in the file though its dialog was cancelled.
    const std::string xml = out.str();
    EXPECT_NE(xml.find("<Groups><Group Name=\"Accounts\"/><Group Name=\"Sales\"/></Groups><FieldValues>"),
              std::string::npos);
    EXPECT_NE(xml.find("<Groups><Group Name=\"Accounts\"/><Group Name=\"Sales\"/><Group Name=\"Billing\"/></Groups>"),
              std::string::npos);
}

TEST_F(SessionDialogs, AttachmentsOfASendMail) {
    // "[SelectFile]" may come twice in the dialog; the activity keeps one of
    // each name and reports the second. A path is taken once, whatever its case.
    EXPECT_EQ(Session({"-xmlfile", Example()},
                      "cell activity 12 0\nbrowse 18\ndialog-pick cboAttachment 1\ndialog-click cmdAttachmentAdd\n"
                      "dialog-click cmdAttachmentAdd\ndialog-set cboAttachment C:\\a.pdf\ndialog-click cmdAttachmentAdd\n"
                      "dialog-set cboAttachment c:\\A.pdf\ndialog-click cmdAttachmentAdd\ndialog-click cmdOK\nxml\n"),
              0);
    EXPECT_EQ(Pick({"message", "error"}),
              "message: This expression is already added.\n"
              "error 457 (SendMail.AddAttachment): This key is already associated with an element of this collection\n");
    EXPECT_NE(out.str().find("<Attachments><Attachment File=\"[Document:Reminder PDF]\"/><Attachment "
                             "File=\"[SelectFile]\"/><Attachment File=\"C:\\a.pdf\"/></Attachments>"),
              std::string::npos);
}

TEST_F(SessionDialogs, TheMailBodyGoesThroughTheToolAndBack) {
    PlaceTool();
    EXPECT_EQ(Session({"-xmlfile", Example()},
                      "cell activity 12 0\nbrowse 9\ndump\nlist 2\ntool-close <html><body>Hi</body></html>\\n\ndump\n"
                      "xml\n"),
              0);
    const std::string picked = Pick({"tool", "enabled", "blocked", "row 9"});
    EXPECT_THAT(picked, ::testing::MatchesRegex("tool: markuploom /file \"[^\"]*/vlk[0-9]{9}\\.htm\"\n"
                                                "row 9: Body \\| Body \\| 3 \\|  \\| locked \\|\n"
                                                "enabled: no\ntool: running\nblocked: list\n"
                                                "row 9: Body \\| Body \\| 3 \\| \\(HTML\\) \\| locked \\|\n"));
    // The closing line break is dropped; the exchange file is gone.
    EXPECT_NE(out.str().find("Body=\"&lt;html&gt;&lt;body&gt;Hi&lt;/body&gt;&lt;/html&gt;\""), std::string::npos);
    const std::string file = picked.substr(picked.find('"') + 1, picked.find(".htm") + 4 - picked.find('"') - 1);
    EXPECT_FALSE(std::filesystem::exists(file)) << file;
}

TEST_F(SessionDialogs, ABodyThatIsAFieldReferenceIsEditedAsPlainText) {
    PlaceTool();
    EXPECT_EQ(Session({"-xmlfile", Example()},
                      "cell activity 12 0\nbrowse 9\ntool-close [Field:Notes]\nbrowse 9\ndump\ntool-close x\n"),
              0);
    const std::string picked = Pick({"tool", "row 9"});
    EXPECT_EQ(picked.substr(0, picked.find(" /")), "tool: markuploom");  // the first start: HTML
    EXPECT_NE(picked.find("\ntool: markuploom /p /file"), std::string::npos) << picked;
    EXPECT_NE(picked.find("row 9: Body | Body | 3 | [Field:Notes] | locked |"), std::string::npos) << picked;
}

TEST_F(SessionDialogs, WithoutTheToolTheBodyStaysAsItWas) {
    // The exchange file is written before the tool is looked for, and stays.
    const char* tmp = std::getenv("TMPDIR");
    const std::string previous = tmp ? tmp : "";
    setenv("TMPDIR", folder.Path().c_str(), 1);
    EXPECT_EQ(Session({"-xmlfile", Example()}, "cell activity 12 0\nbrowse 9\ndump\n"), 0);
    if (tmp) setenv("TMPDIR", previous.c_str(), 1);
    else unsetenv("TMPDIR");
    EXPECT_EQ(Pick({"message", "tool", "enabled"}), "message: Markuploom.exe not found!\n");
    int exchangeFiles = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder.Path()))
        exchangeFiles += entry.path().filename().string().rfind("vlk", 0) == 0;
    EXPECT_EQ(exchangeFiles, 1);
}

TEST_F(SessionDialogs, OptionsAreEditedOnACopyThatOkGivesToTheFile) {
    Catalogue({{"Contact.SupportContactName", "Who answers."}});
    EXPECT_EQ(Session({"-xmlfile", Example()},
                      "menu mnuToolsOptions\ndialog-pick lstOptions 2\nrow 1 Nancy\ndump\nlist 1\ndialog-click cmdCancel\n"
                      "dump\nmenu mnuToolsOptions\ndialog-pick lstOptions 2\nrow 4 Anne\ndialog-click cmdOK\ndump\nxml\n"),
              0);
    EXPECT_EQ(Pick({"control lstOptions", "*dialog-row", "control txtPropInfo", "blocked", "changed"}),
              "changed: no\n"
              "control lstOptions: list | [Email | FileLocations | *Contact | ConvertingPostscriptToPDF]\n"
              "*dialog-row 1: SupportContactName | Support Contact Name | 0 | Nancy | free |\n"
              "control txtPropInfo: text | Who answers.\n"
              "blocked: list\n"
              "changed: no\n"
              "changed: yes\n");
    EXPECT_NE(out.str().find("<Contact UserContactName=\"Anne\" UserContactEmail"), std::string::npos);
}

}  // namespace
}  // namespace flowloom::test

namespace flowloom::test {
namespace {

// The example on a real Access file: the lists of the sheets and the field
// values dialog come from the file.
class SessionDatabase : public SessionDialogs {
protected:
    std::string ExampleOnNwind() {
        std::string xml = ReadAll(SourceDir() / "examples/letters.xml");
        const std::string location = "C:\\Northwind\\nwind.mdb";
        xml.replace(xml.find(location), location.size(), Nwind());
        return File("nwind-letters.xml", xml);
    }
};

TEST_F(SessionDatabase, ObjectAndTableListsComeFromTheFile) {
    EXPECT_EQ(Session({"-xmlfile", ExampleOnNwind()}, "cell datasource 1 1\ndrop 4\ncell activity 18 0\ndrop 4\n"), 0);
    EXPECT_EQ(Pick({"drop"}),
              "drop: row 4: Order Details | Orders | Products | Shippers | Categories | Customers | Employees | "
              "Suppliers | Umsätze\n"
              "drop: row 4: Order Details | Orders | Products | Shippers | Categories | Customers | Employees | "
              "Suppliers | Umsätze\n");
}

TEST_F(SessionDatabase, AnAddRecordOffersTheFieldsOfItsTableWithoutTheAutoNumber) {
    EXPECT_EQ(Session({"-xmlfile", ExampleOnNwind()},
                      "cell activity 18 0\nrow 4 \nbrowse 5\nrow 4 Shippers\nbrowse 5\ndump\n"
                      "dialog-set cboValue [Shipper]\ndialog-click cmdFieldValueAdd\ndialog-click cmdOK\ndump\n"),
              0);
    EXPECT_EQ(Pick({"message", "dialog", "control cboField", "row 5"}),
              "message: Please select a table first.\n"
              "row 5: FieldValues | Field Values | 11 | CompanyName\\nPhone {(Data)} | locked |\n"
              "dialog: FieldValues\n"
              "control cboField: combo | CompanyName | [*CompanyName | Phone]\n"
              "row 5: FieldValues | Field Values | 11 | CompanyName = [Shipper] {(Data)} | locked |\n");
}

}  // namespace
}  // namespace flowloom::test

namespace flowloom::test {
namespace {

TEST_F(SessionDialogs, AMailTemplateOfTheOptionsGoesThroughTheTool) {
    PlaceTool();
    EXPECT_EQ(Session({"-xmlfile", Example()},
                      "menu mnuToolsOptions\nbrowse 2\ndump\ndialog-click cmdOK\nrow 3 Plain text\n"
                      "tool-close Dear [ContactName],\\nbye\ndialog-click cmdOK\nxml\n"),
              0);
    // While the tool runs the dialog takes nothing; its end writes the row.
    EXPECT_THAT(Pick({"dialog", "blocked", "tool"}),
                ::testing::MatchesRegex("tool: markuploom /p /file \"[^\"]*vlk[0-9]{9}\\.htm\"\n"
                                        "tool: running\ndialog: Options \\| disabled\n"
                                        "blocked: dialog-click\nblocked: row\n"));
    EXPECT_NE(out.str().find("DefaultEmailTemplatePlainText=\"Dear [ContactName],&#13;&#10;bye\""), std::string::npos);
}

}  // namespace
}  // namespace flowloom::test
