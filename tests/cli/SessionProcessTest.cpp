// The process commands: naming a new process, deleting, moving, copying and
// pasting processes, a new process from an existing one, verify and code.
#include "SessionFixture.h"

namespace flowloom::test {
namespace {

using SessionProcess = SessionFixture;

const std::string kAllThree = "Reminder letters | Monthly sales sheet | Order confirmation fax";

TEST_F(SessionProcess, DeleteAsksWithCancelAsTheDefault) {
    EXPECT_EQ(Session({"-xmlfile", Example()}, "menu mnuProcessDelete\nanswer ok\nmenu mnuProcessDelete\ndump\n"
                                               "list-key 46\nlist 0\nlist-key 46\n"),
              0);
    EXPECT_EQ(Pick({"message", "answer", "list", "datasource", "changed"}),
              "message: Do you want to delete Reminder letters?\nanswer: cancel\n"
              "message: Do you want to delete Reminder letters?\nanswer: ok\n"
              "list: <New Process> | *Monthly sales sheet | Order confirmation fax\n"
              "datasource: Sales by category\n"
              "changed: yes\n"
              // The Delete key asks even on "<New Process>".
              "message: Do you want to delete Monthly sales sheet?\nanswer: cancel\n"
              "message: Do you want to delete ?\nanswer: cancel\n");
}

TEST_F(SessionProcess, ContextMenuMovesProcessesUpAndDown) {
    EXPECT_EQ(Session({"-xmlfile", Example()}, "list-right 1\nmenu mnuPopUpBack\ndump\n"
                                               "list-right 3\nmenu mnuPopUpForward\ndump\n"),
              0);
    EXPECT_EQ(Pick({"list", "changed"}),
              "list: <New Process> | Monthly sales sheet | *Reminder letters | Order confirmation fax\n"
              "changed: yes\n"
              "list: <New Process> | Monthly sales sheet | *Order confirmation fax | Reminder letters\n"
              "changed: yes\n");
}

TEST_F(SessionProcess, ACopyIsPastedOnceAndItsNameCollidesTheSecondTime) {
    EXPECT_EQ(Session({"-xmlfile", Example()}, "menu mnuProcessCopy\nlist 2\ndump\nmenu mnuProcessPaste\ndump\n"
                                               "menu mnuProcessPaste\n"
                                               "list 1\nmenu mnuProcessCopy\nlist-right 1\nmenu mnuPopUpPaste\n"
                                               "dump\n"),
              0);
    const std::string copy = "Copy of Reminder letters";
    EXPECT_EQ(Pick({"message", "disabled", "list", "clipboard"}),
              // The copy is made when copying, whatever is selected later.
              "list: <New Process> | Reminder letters | *Monthly sales sheet | Order confirmation fax\n"
              "clipboard: Process " + copy + "\n"
              "list: <New Process> | " + kAllThree + " | *" + copy + "\n"
              "clipboard: none\n"
              "disabled: mnuProcessPaste\n"
              // The same name again: the box, nothing added, the last entry selected.
              "message: Process " + copy + " already exists.\n"
              "list: <New Process> | " + kAllThree + " | *" + copy + "\n"
              "clipboard: none\n");
}

TEST_F(SessionProcess, AChangedNewProcessIsNamedInTheListOnly) {
    EXPECT_EQ(Session({"-xmlfile", Example()}, "list 0\ntoolbar 8\ninput Reminder letters\ninput Fresh\nlist 1\n"
                                               "dump\nxml\n"),
              0);
    EXPECT_EQ(Pick({"input", "answer", "list", "row 1"}),
              "input: The New Process is changed but has no name.\\nGive name for New Process\n"
              "answer: Reminder letters\n"
              "input: Process 'Reminder letters' already exists.\\nPlease give another name\n"
              "answer: Fresh\n"
              "list: <New Process> | " + kAllThree + " | *Fresh\n"
              "row 1: Name | Name | 0 |  | free |\n");
    // The file does not know the name either.
    EXPECT_EQ(out.str().find("\"Fresh\""), std::string::npos);
}

TEST_F(SessionProcess, AnEmptyNameDropsTheNewProcess) {
    EXPECT_EQ(Session({"-xmlfile", Example()}, "list 0\ntoolbar 8\nlist 1\nlist 0\ndump\n"), 0);
    EXPECT_EQ(Pick({"input", "answer", "list", "datasource", "changed"}),
              "input: The New Process is changed but has no name.\\nGive name for New Process\n"
              "answer:\n"
              "list: *<New Process> | " + kAllThree + "\n"
              "datasource:\n"
              "changed: no\n");
}

TEST_F(SessionProcess, NewFromExistingCopiesTheProcessWithoutItsName) {
    EXPECT_EQ(Session({"-xmlfile", Example(), "-process", "Order confirmation fax"},
                      "menu mnuProcessNewFromExisting\ndump\ninput Second fax\nlist 1\ndump\n"),
              0);
    EXPECT_EQ(Pick({"input", "answer", "list", "datasource", "activity", "row 1", "changed"}),
              "list: *<New Process> | " + kAllThree + "\n"
              "datasource: Current order\n"
              "activity: Mail Merge | Fax the confirmation\n"
              "row 1: Name | Name | 0 |  | free |\n"
              "changed: no\n"
              "input: The New Process is changed but has no name.\\nGive name for New Process\n"
              "answer: Second fax\n"
              "list: <New Process> | " + kAllThree + " | *Second fax\n"
              "datasource: Current order\n"
              "activity: Mail Merge | Fax the confirmation\n"
              "row 1: Name | Name | 0 |  | free |\n"
              "changed: yes\n");
}

// The text window of a session shows what the commands of flowloom-cli print.
std::string TextWindow(std::string text) {
    std::string shown;
    for (std::size_t i = 0; i < text.size(); ++i)
        if (!(text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n')) shown += text[i];
    return "--- text window ---\n" + shown + "--- end ---\n";
}

TEST_F(SessionProcess, VerifyAndGenerateCodeShowTheirTexts) {
    const std::string path = Example();
    Run({"verify", path, "Reminder letters"});
    const std::string report = TextWindow(out.str());
    Run({"codegen", path, "Reminder letters"});
    const std::string classes = TextWindow(out.str());
    Run({"codegen", path, "Reminder letters", "--mode", "xml"});
    const std::string xml = TextWindow(out.str());

    EXPECT_EQ(Session({"-xmlfile", path}, "menu mnuProcessVerify\nmenu mnuGenerateCodeWithoutXML\n"
                                          "menu mnuGenerateCodeWithXML\nlist 0\nmenu mnuGenerateCodeWithXML\n"),
              0);
    // The second datasource on Northwind is refused by the generator's collection and reported.
    EXPECT_EQ(out.str(), report +
                             "error 457 (CGenerateCode.SetDatabases): This key is already associated with an "
                             "element of this collection\n" +
                             classes + xml + "message: New process is not saved with name.\n");

    EXPECT_EQ(Session({}, "menu mnuGenerateCodeWithXML\n"), 0);
    EXPECT_EQ(out.str(), "message: XML file is not saved.\n");
}

}  // namespace
}  // namespace flowloom::test
