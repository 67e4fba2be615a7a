// Edits in the grid through the session's `row` action: what the window
// shows afterwards (list, captions, rows) and what reaches the file.
#include "SessionFixture.h"

namespace flowloom::test {
namespace {

using SessionEdit = SessionFixture;

TEST_F(SessionEdit, NamingANewProcessAddsItAndATakenNameIsRefused) {
    EXPECT_EQ(Session({"-xmlfile", Example()}, "list 0\nrow 1 reminder LETTERS\ndump\nrow 1 Fresh\ndump\n"), 0);
    EXPECT_EQ(Pick({"message", "cancelled", "list", "row 1", "changed"}),
              "message: Process reminder LETTERS already exists. Please give another name.\n"
              "cancelled: row 1\n"
              "list: *<New Process> | Reminder letters | Monthly sales sheet | Order confirmation fax\n"
              "row 1: Name | Name | 0 |  | free |\n"
              "changed: no\n"
              "list: <New Process> | Reminder letters | Monthly sales sheet | Order confirmation fax | *Fresh\n"
              "row 1: Name | Name | 0 | Fresh | free |\n"
              "changed: yes\n");
}

TEST_F(SessionEdit, RenamingAMemberOfTheFileIsNotChecked) {
    // An empty name is refused with its box; a name that another process has is taken.
    EXPECT_EQ(Session({"-xmlfile", Example()}, "list 2\nrow 1 \nrow 1 Reminder letters\ndump\nxml\n"), 0);
    EXPECT_EQ(Pick({"message", "cancelled", "list", "row 1"}),
              "message: Incorrect name of Process.\n"
              "cancelled: row 1\n"
              "list: <New Process> | Reminder letters | *Reminder letters | Order confirmation fax\n"
              "row 1: Name | Name | 0 | Reminder letters | free |\n");
    EXPECT_NE(out.str().find("<Process Name=\"Reminder letters\" MainDatasourceName=\"Sales by category\""),
              std::string::npos);
}

TEST_F(SessionEdit, CaptionsOnTheCanvasFollowTheNames) {
    EXPECT_EQ(Session({"-xmlfile", Example()}, "cell activity 3 0\nrow 1 \ncell database 1 0\nrow 1 Sales db\n"
                                               "cell datasource 1 1\nrow 1 Log\ndump\n"),
              0);
    EXPECT_EQ(Pick({"database", "datasource", "activity"}),
              "database: Sales db\n"
              "datasource: Overdue invoices | *Log\n"
              "activity: Merge one reminder per overdue invoice | Save As | Make a PDF for the mail | Mail Merge | "
              "Mail the reminder with its PDF | Print the file copy | Log each reminder\n");
}

TEST_F(SessionEdit, AnotherInputDocumentRebuildsTheSheetWithItsRowSelected) {
    Catalogue({{"SaveAs.InputDocumentName", "The document to save"}});
    EXPECT_EQ(Session({"-xmlfile", Example()}, "cell activity 3 0\nrow 2 Reminder mail\ndump\n"), 0);
    EXPECT_EQ(Pick({"sheet", "row 2", "row 6", "row 7", "info"}),
              "sheet: 11\n"
              "row 2: InputDocumentName | Input Document Name | 5 | Reminder mail | locked | "
              ";Reminder;Reminder PDF;Reminder mail\n"
              "row 6: FileFormat | File Format | 5 | HTML | locked | HTML\n"
              "info: The document to save\n");
}

TEST_F(SessionEdit, MultiLineValuesAndRefusedEdits) {
    EXPECT_EQ(Session({"-xmlfile", Example()}, "row 7 City = Paris\\nZip = 75001\nrow 4 perhaps\nrow 4  false \n"
                                               "dump\nxml\n"),
              0);
    EXPECT_EQ(Pick({"error", "cancelled", "row 4", "row 7"}),
              "error 13 (frmDesigner.ProcessChange): Type mismatch\n"
              "cancelled: row 4\n"
              "row 4: AbortOnError | Abort On Error | 2 | False | locked |\n"
              "row 7: FieldValues | Field Values | 11 | City = Paris\\nZip = 75001 {(Data)} | locked |\n");
    EXPECT_NE(out.str().find("<FieldValues><FieldValue Name=\"City\" Value=\"Paris\"/>"
                             "<FieldValue Name=\"Zip\" Value=\"75001\"/></FieldValues>"),
              std::string::npos);
    EXPECT_NE(out.str().find("AbortOnError=\"0\""), std::string::npos);
}

TEST_F(SessionEdit, EveryEditThatChangesTheFileIsAnUnsavedChange) {
    const std::string path = File("yes.xml", R"(<?xml version="1.0" encoding="UTF-8"?><Processes Version="1">)"
                                             R"(<Process Name="P"><Activities><SaveAs OverwriteExistingFile="Yes"/>)"
                                             R"(<SendMail/></Activities><Datasources><Datasource Name="D"/>)"
                                             R"(</Datasources></Process></Processes>)");
    // The default of the overwrite mode leaves the file without it, though
    // the number stays 0; the same value again changes nothing.
    EXPECT_EQ(Session({"-xmlfile", path}, "cell activity 0 0\nrow 5 0 - Ask for confirmation\ndump\nmenu mnuFileSave\n"
                                          "cell activity 3 0\nrow 12 smtp.example\ndump\nmenu mnuFileSave\n"
                                          "cell datasource 1 0\nrow 3 Query\ndump\nmenu mnuFileSave\n"
                                          "row 3 Query\ndump\n"),
              0);
    EXPECT_EQ(Pick({"changed"}), "changed: yes\nchanged: yes\nchanged: yes\nchanged: no\n");
    EXPECT_EQ(ReadAll(path).find("OverwriteExistingFile"), std::string::npos);
    EXPECT_NE(ReadAll(path).find(R"(SMTPServer="smtp.example")"), std::string::npos);
}

TEST_F(SessionEdit, AnEditMarksANewProcessChangedEvenWhenRefused) {
    // Leaving the changed new process asks for its name.
    EXPECT_EQ(Session({"-xmlfile", Example()}, "list 0\nrow 4 perhaps\nlist 1\n"), 0);
    EXPECT_EQ(Pick({"input"}), "input: The New Process is changed but has no name.\\nGive name for New Process\n");
    EXPECT_EQ(Session({"-xmlfile", Example()}, "row 9 x\n"), 2);
    EXPECT_EQ(err.str(), "flowloom-cli: line 1: there is no row 9\n");
}

}  // namespace
}  // namespace flowloom::test
