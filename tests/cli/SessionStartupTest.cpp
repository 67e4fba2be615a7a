// The designer's start-up and the session itself: arguments, failures at
// start, the transcript of prompts, exit codes and bad script lines.
#include "SessionFixture.h"

namespace flowloom::test {
namespace {

using SessionStartup = SessionFixture;

TEST_F(SessionStartup, NoArgumentsShowsANewFileWithOneNewProcess) {
    EXPECT_EQ(Session({}, "dump\n"), 0);
    // The process sheet's rows between are the sheet tests' business.
    EXPECT_EQ(Pick({"caption", "list", "list-mark", "database", "datasource", "activity", "sheet", "row 1", "row 8",
                    "info", "changed", "clipboard", "active-object"}),
              "caption: Flowloom - New XML file\n"
              "list: *<New Process>\n"
              "list-mark: on\n"
              "database:\n"
              "datasource:\n"
              "activity:\n"
              "sheet: 1\n"
              "row 1: Name | Name | 0 |  | free |\n"
              "row 8: LogDatasourceName | Log Datasource Name | 5 |  | free |\n"
              "info:\n"
              "changed: no\n"
              "clipboard: none\n"
              "active-object:  |  |\n");
    EXPECT_EQ(err.str(), "");
}

TEST_F(SessionStartup, FileAndProcessFromTheCommandLine) {
    const std::string path = Example();
    // The process is found without regard to case; the path keeps its blanks.
    EXPECT_EQ(Session({"-xmlfile", path, "/PROCESS", "monthly SALES sheet"}, "dump\n"), 0);
    EXPECT_EQ(Pick({"caption", "list", "list-mark", "datasource", "activity", "sheet", "changed"}),
              "caption: Flowloom - " + path + "\n"
              "list: <New Process> | Reminder letters | *Monthly sales sheet | Order confirmation fax\n"
              "list-mark: on\n"
              "datasource: Sales by category\n"
              "activity: Mail Merge | Save As | Print Out\n"
              "sheet: 1\n"
              "changed: no\n");
}

TEST_F(SessionStartup, FailuresAtStartShowTheirBoxAndExitOne) {
    const std::string missing = (folder / "a b" / "none.xml").string();
    EXPECT_EQ(Session({"-xmlfile", missing}, "dump\n"), 1);
    EXPECT_EQ(out.str(), "message: The file '" + missing + "' does not exist.\n");

    EXPECT_EQ(Session({"-xmlfile"}, "dump\n"), 1);
    EXPECT_EQ(out.str(), "message: The file '{empty}' does not exist.\n");

    EXPECT_EQ(Session({"-xmlfile", Example(), "-process", "Nope"}, "dump\n"), 1);
    EXPECT_EQ(out.str(), "message: The process 'Nope' does not exist.\n");
    EXPECT_EQ(err.str(), "");
}

TEST_F(SessionStartup, ActiveObjectIsSplitAtTheSemicolon) {
    EXPECT_EQ(Session({"-activeobject", "Table;Orders", "-fields", "OrderID;Freight"}, "dump\n"), 0);
    EXPECT_EQ(Pick({"caption", "active-object"}),
              "caption: Flowloom - New XML file\n"
              "active-object: Table | Orders | OrderID;Freight\n");

    // Without ";" the second piece is missing: the error is reported and the
    // load goes on with the next statement.
    EXPECT_EQ(Session({"-activeobject", "Orders", "-fields", "OrderID"}, "dump\n"), 0);
    EXPECT_EQ(Pick({"error", "caption", "active-object"}),
              "error 9 (frmDesigner.Form_Load): Subscript out of range\n"
              "caption: Flowloom - New XML file\n"
              "active-object: Orders |  | OrderID\n");
}

TEST_F(SessionStartup, ScriptLinesEndTheSession) {
    // Comments and blank lines are skipped; the end of input ends without unload.
    EXPECT_EQ(Session({}, "# a comment\n\n   \r\n"), 0);
    EXPECT_EQ(out.str(), "");

    EXPECT_EQ(Session({}, "dump\nfrobnicate\ndump\n"), 2);
    EXPECT_EQ(err.str(), "flowloom-cli: line 2: unknown action 'frobnicate'\n");
    for (const char* bad : {"cell database 1\n", "cell table 0 0\n", "list x\n", "answer maybe\n", "toolbar 17\n",
                            "menu mnuFile\n", "menu mnuNothing\n", "focus canvas\n", "dump now\n"}) {
        EXPECT_EQ(Session({}, bad), 2) << bad;
        EXPECT_EQ(err.str().rfind("flowloom-cli: line 1: ", 0), 0u) << err.str();
        EXPECT_EQ(out.str(), "") << bad;
    }

    // Once the window has closed nothing more is read, not even a bad line.
    EXPECT_EQ(Session({}, "close\nfrobnicate\n"), 0);
    EXPECT_EQ(out.str(), "");
    EXPECT_EQ(Session({}, "menu mnuExit\ndump\n"), 0);
    EXPECT_EQ(out.str(), "");
}

TEST_F(SessionStartup, PromptsTakeQueuedAnswersPerKind) {
    // A question takes the next queued word; a box with only OK takes none.
    EXPECT_EQ(Session({}, "toolbar 8\nanswer no\nkey datasource 46\n"
                          "answer yes\nkey datasource 46\n"
                          "menu mnuProcessNewTemplate\n"),
              0);
    EXPECT_EQ(out.str(),
              "message: Do you want to delete the Datasource ?\n"
              "answer: no\n"
              "message: Do you want to delete the Datasource ?\n"
              "answer: yes\n"
              "message: Not ready ...\n");
}

}  // namespace
}  // namespace flowloom::test
