// The menus: what their enabling rules leave enabled, the context menus of
// the list and the strips with their captions, and what reaches a command.
#include "SessionFixture.h"

namespace flowloom::test {
namespace {

using SessionMenus = SessionFixture;

TEST_F(SessionMenus, EnablingRulesLookAtTheCanvasTablesAndTheList) {
    EXPECT_EQ(Session({"-xmlfile", Example()}, "menu mnuDatabaseDelete\nmenu mnuDatabaseMoveLeft\n"
                                               "menu mnuProcessDatasourceCopy\nmenu mnuProcessDatasourcePaste\n"
                                               "menu mnuProcessActivityDelete\nmenu mnuProcessActivityPaste\n"
                                               "menu mnuProcessActivityUp\n"
                                               "cell activity 1 0\nmenu mnuProcessActivityUp\n"
                                               "cell activity 19 0\nmenu mnuProcessActivityDown\n"
                                               "cell database 1 0\nmenu mnuDatabaseMoveRight\n"
                                               "menu mnuDatabaseMoveLeft\n"
                                               // The selection stays while the grid has the focus.
                                               "focus grid\nanswer no\nmenu mnuDatabaseDelete\n"
                                               // The list's focus clears the strips.
                                               "focus list\nmenu mnuDatabaseDelete\n"
                                               "list 0\nmenu mnuProcessDelete\nmenu mnuProcessCopy\n"
                                               "menu mnuProcessNewFromExisting\nmenu mnuProcessRename\n"
                                               "menu mnuProcessPaste\n"
                                               // Entries without a handler and toolbar button 4 do nothing.
                                               "list 1\nmenu mnuProcessRename\nmenu mnuProcessNewBlank\n"
                                               "toolbar 4\ntoolbar 5\n"),
              0);
    EXPECT_EQ(out.str(),
              "disabled: mnuDatabaseDelete\ndisabled: mnuDatabaseMoveLeft\n"
              "disabled: mnuProcessDatasourceCopy\ndisabled: mnuProcessDatasourcePaste\n"
              "disabled: mnuProcessActivityDelete\ndisabled: mnuProcessActivityPaste\n"
              "disabled: mnuProcessActivityUp\n"
              "disabled: mnuProcessActivityUp\n"
              "disabled: mnuProcessActivityDown\n"
              "disabled: mnuDatabaseMoveRight\ndisabled: mnuDatabaseMoveLeft\n"
              "message: Do you want to delete the Database Northwind?\nanswer: no\n"
              "disabled: mnuDatabaseDelete\n"
              "disabled: mnuProcessDelete\ndisabled: mnuProcessCopy\n"
              "disabled: mnuProcessNewFromExisting\ndisabled: mnuProcessRename\n"
              "disabled: mnuProcessPaste\n");
}

TEST_F(SessionMenus, ContextMenusShowAndHideTheirEntriesPerStrip) {
    EXPECT_EQ(Session({"-xmlfile", Example()},
                      // Before any cell menu the move entries keep their first captions.
                      "strip-right database\nmenu mnuPopUpCopy\nmenu mnuPopUpDelete\n"
                      "cell-right database 0 0\nanswer no\nmenu mnuPopUpDelete\n"
                      "cell-right datasource 1 0\nmenu mnuPopUpCopy\n"
                      "strip-right datasource\n"
                      "cell-right activity 1 0\n"
                      "list-right 2\nlist-right 3\n"
                      "cell-right datasource 0 0\nlist-right 1\n"
                      "cell-right activity 4 0\nstrip-right activity\n"
                      // "<New Process>" has no context menu.
                      "list-right 0\n"),
              0);
    EXPECT_EQ(out.str(),
              "popup: mnuPopUpForward=Move &Forward (disabled), mnuPopUpBack=Move &Back (disabled), "
              "mnuPopUpDelete=Delete (disabled)\n"
              "hidden: mnuPopUpCopy\n"
              "not open: mnuPopUpDelete\n"
              "popup: mnuPopUpDelete=Delete\n"
              "message: Do you want to delete the Database Northwind?\nanswer: no\n"
              "popup: mnuPopUpCopy=&Copy, mnuPopUpPaste=Paste (disabled), mnuPopUpDelete=Delete\n"
              "popup: mnuPopUpCopy=&Copy (disabled), mnuPopUpPaste=Paste Copy of Overdue invoices, "
              "mnuPopUpDelete=Delete (disabled)\n"
              "popup: mnuPopUpForward=Up (disabled), mnuPopUpBack=Down, mnuPopUpCopy=&Copy, "
              "mnuPopUpPaste=Paste (disabled), mnuPopUpDelete=Delete\n"
              "popup: mnuPopUpForward=Up, mnuPopUpBack=Down, mnuPopUpCopy=&Copy, mnuPopUpPaste=Paste (disabled), "
              "mnuPopUpDelete=Delete\n"
              "popup: mnuPopUpForward=Up, mnuPopUpBack=Down (disabled), mnuPopUpCopy=&Copy, "
              "mnuPopUpPaste=Paste (disabled), mnuPopUpDelete=Delete\n"
              "popup: mnuPopUpCopy=&Copy, mnuPopUpPaste=Paste Copy of Overdue invoices, mnuPopUpDelete=Delete\n"
              // After a datasource's menu the list's menu has no move entries.
              "popup: mnuPopUpCopy=&Copy, mnuPopUpPaste=Paste (disabled), mnuPopUpDelete=Delete\n"
              "popup: mnuPopUpForward=Up, mnuPopUpBack=Down, mnuPopUpCopy=&Copy, mnuPopUpPaste=Paste (disabled), "
              "mnuPopUpDelete=Delete\n"
              "popup: mnuPopUpForward=Up (disabled), mnuPopUpBack=Down (disabled), mnuPopUpCopy=&Copy (disabled), "
              "mnuPopUpPaste=Paste (disabled), mnuPopUpDelete=Delete (disabled)\n");
}

TEST_F(SessionMenus, PasteEntriesNameWhatTheClipboardHolds) {
    std::ostringstream transcript;
    cli::Session session(transcript);
    ASSERT_TRUE(session.Start({"-xmlfile", Example()}));
    auto& designer = session.Designer();
    const auto caption = [&](const char* menu, const char* entry) {
        designer.OpenMenu(menu);
        const auto* found = designer.Menus().Find(entry);
        return found->caption + (found->enabled ? "" : " (disabled)");
    };
    EXPECT_EQ(caption("mnuProcess", "mnuProcessPaste"), "Paste (disabled)");

    Feed(session, "menu mnuProcessCopy\n");
    EXPECT_EQ(caption("mnuProcess", "mnuProcessPaste"), "Paste copy of Copy of Reminder letters");
    // The activity menu takes a process too; the context menu does not.
    EXPECT_EQ(caption("mnuProcessActivity", "mnuProcessActivityPaste"), "&Paste");
    EXPECT_EQ(caption("mnuProcessDatasource", "mnuProcessDatasourcePaste"), "&Paste (disabled)");
    Feed(session, "list-right 1\ncell-right activity 1 0\n");

    Feed(session, "menu mnuProcessActivityCopy\ncell-right activity 1 0\n");
    EXPECT_EQ(caption("mnuProcess", "mnuProcessPaste"), "Paste (disabled)");
    EXPECT_EQ(transcript.str(),
              "popup: mnuPopUpForward=Up (disabled), mnuPopUpBack=Down, mnuPopUpCopy=&Copy, "
              "mnuPopUpPaste=Paste copy of Copy of Reminder letters, mnuPopUpDelete=Delete\n"
              "popup: mnuPopUpForward=Up (disabled), mnuPopUpBack=Down, mnuPopUpCopy=&Copy, "
              "mnuPopUpPaste=Paste (disabled), mnuPopUpDelete=Delete\n"
              "popup: mnuPopUpForward=Up (disabled), mnuPopUpBack=Down, mnuPopUpCopy=&Copy, "
              "mnuPopUpPaste=Paste MailMerge, mnuPopUpDelete=Delete\n");
}

}  // namespace
}  // namespace flowloom::test
