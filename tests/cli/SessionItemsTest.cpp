// Databases, datasources and activities: insert, delete, move, copy and
// paste, with their questions and what is selected afterwards.
#include "SessionFixture.h"

namespace flowloom::test {
namespace {

using SessionItems = SessionFixture;

TEST_F(SessionItems, DatabasesInsertDeleteAndTheMoveLeftThatStays) {
    EXPECT_EQ(Session({}, "toolbar 6\nmenu mnuDatabaseInsert\ndump\n"), 0);
    // The first database of a file is the current one; later ones have no name.
    EXPECT_EQ(Pick({"database", "sheet", "row 1", "changed"}),
              "database: CurrentDatabase | *\nsheet: 6\nrow 1: Name | Name | 0 |  | free |\nchanged: yes\n");

    const std::string path = File("two.xml", R"(<Processes Version="1"><Process Name="P"/><Databases>)"
                                             R"(<Database Name="A" Type="Microsoft Access"/>)"
                                             R"(<Database Name="B" Type="Microsoft Access"/></Databases></Processes>)");
    EXPECT_EQ(Session({"-xmlfile", path}, "cell database 1 1\nmenu mnuDatabaseMoveLeft\ndump\n"
                                          "menu mnuDatabaseMoveRight\ndump\nmenu mnuDatabaseMoveRight\n"
                                          "answer no\nkey database 46\nanswer yes\nmenu mnuDatabaseDelete\ndump\n"),
              0);
    EXPECT_EQ(Pick({"database", "sheet", "message", "answer", "disabled", "changed"}),
              // Left does not move: only the selection goes one cell to the left.
              "database: *A | B\nsheet: 6\nchanged: no\n"
              "database: B | *A\nsheet: 6\nchanged: yes\n"
              "disabled: mnuDatabaseMoveRight\n"
              "message: Do you want to delete the Database A?\nanswer: no\n"
              "message: Do you want to delete the Database A?\nanswer: yes\n"
              "database: B\nsheet: 0\nchanged: yes\n");
}

TEST_F(SessionItems, DatasourcesMoveCopyPasteAndDelete) {
    EXPECT_EQ(Session({"-xmlfile", Example()},
                      "cell datasource 1 1\nmenu mnuProcessDatasourceLeft\ndump\n"
                      "menu mnuProcessDatasourceRight\nmenu mnuProcessDatasourceCopy\n"
                      "menu mnuProcessDatasourcePaste\ndump\n"
                      // The clipboard stays; the same name again is not added.
                      "menu mnuProcessDatasourcePaste\ndump\n"
                      "toolbar 8\ndump\nanswer yes\nkey datasource 46\ndump\n"),
              0);
    const std::string three = "Overdue invoices | Reminder log | Copy of Reminder log";
    EXPECT_EQ(Pick({"datasource", "sheet", "clipboard", "message", "answer"}),
              "datasource: *Reminder log | Overdue invoices\nsheet: 8\nclipboard: none\n"
              "datasource: " + three + "\nsheet: 1\nclipboard: Datasource Copy of Reminder log\n"
              "datasource: " + three + "\nsheet: 1\nclipboard: Datasource Copy of Reminder log\n"
              "datasource: " + three + " | *\nsheet: 8\nclipboard: Datasource Copy of Reminder log\n"
              "message: Do you want to delete the Datasource ?\nanswer: yes\n"
              "datasource: " + three + "\nsheet: 0\nclipboard: Datasource Copy of Reminder log\n");
}

TEST_F(SessionItems, EveryActivityKindIsInsertedAtTheEnd) {
    EXPECT_EQ(Session({}, "toolbar 10\ntoolbar 11\ntoolbar 12\ntoolbar 13\ntoolbar 14\ntoolbar 15\ntoolbar 16\n"
                          "menu mnuInsertMailMerge\nmenu mnuInsertSaveAs\nmenu mnuInsertPrint\n"
                          "menu mnuInsertConvert\nmenu mnuInsertSendMail\nmenu mnuInsertSendFax\n"
                          "menu mnuInsertAddRecord\ndump\n"
                          "answer yes\nkey activity 46\ndump\n"),
              0);
    const std::string kinds = "Mail Merge | Save As | Print Out | Convert | Send Mail | Send Fax | ";
    EXPECT_EQ(Pick({"activity", "sheet", "message", "answer"}),
              "activity: " + kinds + "Add Record | " + kinds + "*Add Record\nsheet: 16\n"
              "message: Do you want to delete the AddRecord?\nanswer: yes\n"
              "activity: " + kinds + "Add Record | " + kinds.substr(0, kinds.size() - 3) + "\nsheet: 0\n");
}

TEST_F(SessionItems, ActivitiesMoveCopyAndPaste) {
    EXPECT_EQ(Session({"-xmlfile", Example(), "-process", "Order confirmation fax"},
                      "toolbar 11\nmenu mnuInsertAddRecord\nmenu mnuProcessActivityUp\ndump\n"
                      "menu mnuProcessActivityDown\nmenu mnuProcessActivityCopy\nmenu mnuProcessActivityPaste\n"
                      "dump\n"
                      "cell activity 4 0\nmenu mnuProcessActivityCopy\ncell-right activity 4 0\n"
                      "menu mnuPopUpPaste\ndump\n"
                      "cell activity 1 0\nanswer yes\nkey activity 46\ndump\n"),
              0);
    EXPECT_EQ(Pick({"activity", "sheet", "clipboard", "message", "answer"}),
              "activity: Mail Merge | Fax the confirmation | *Add Record | Save As\nsheet: 16\nclipboard: none\n"
              // A copy of an activity without description keeps it empty.
              "activity: Mail Merge | Fax the confirmation | Save As | Add Record | Add Record\nsheet: 1\n"
              "clipboard: AddRecord\n"
              "activity: Mail Merge | Fax the confirmation | Save As | Add Record | Add Record | "
              "Copy of Fax the confirmation\nsheet: 1\nclipboard: SendFax Copy of Fax the confirmation\n"
              "message: Do you want to delete the MailMerge?\nanswer: yes\n"
              "activity: Fax the confirmation | Save As | Add Record | Add Record | Copy of Fax the confirmation\n"
              "sheet: 0\nclipboard: SendFax Copy of Fax the confirmation\n");
}

TEST_F(SessionItems, TheActivityMenuPastesAProcessIntoTheReport) {
    EXPECT_EQ(Session({"-xmlfile", Example(), "-process", "Order confirmation fax"},
                      "menu mnuProcessCopy\nmenu mnuProcessActivityPaste\ndump\n"),
              0);
    EXPECT_EQ(Pick({"error", "activity"}),
              "error 13 (frmDesigner.mnuProcessActivityPaste_Click): Type mismatch\n"
              "activity: Mail Merge | Fax the confirmation\n");
}

TEST_F(SessionItems, ARightClickOnAConnectorActsOnTheSelectedActivity) {
    // After a delete the strip keeps the focus but nothing is selected: then
    // the connector opens no menu.
    EXPECT_EQ(Session({"-xmlfile", Example(), "-process", "Monthly sales sheet"},
                      "cell activity 4 0\ncell-right activity 5 0\nmenu mnuPopUpForward\ndump\n"
                      "answer yes\nmenu mnuProcessActivityDelete\ncell-right activity 2 0\ndump\n"),
              0);
    EXPECT_EQ(Pick({"message", "answer", "popup", "activity", "sheet"}),
              "popup: mnuPopUpForward=Up, mnuPopUpBack=Down, mnuPopUpCopy=&Copy, mnuPopUpPaste=Paste (disabled), "
              "mnuPopUpDelete=Delete\n"
              "activity: *Save As | Mail Merge | Print Out\nsheet: 11\n"
              "message: Do you want to delete the SaveAs?\nanswer: yes\n"
              "activity: Mail Merge | Print Out\nsheet: 0\n");
}

}  // namespace
}  // namespace flowloom::test
