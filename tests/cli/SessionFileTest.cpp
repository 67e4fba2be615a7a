// New, Open, Save and Save As, and the question about unsaved changes on
// New, Open and close.
#include "SessionFixture.h"

#include "model/Process.h"

namespace flowloom::test {
namespace {

namespace fs = std::filesystem;
using SessionFile = SessionFixture;

const std::string kQuestion = "message: The changes have not been saved!\\nDo you want to save them?\n";
const std::string kNameIt = "input: The New Process is changed but has no name.\\nGive name for New Process\n";

TEST_F(SessionFile, NewAndOpenOnAChangedFileAskAndCancelKeepsEverything) {
    const std::string path = Example();
    const std::string before = ReadAll(path);
    EXPECT_EQ(Session({"-xmlfile", path}, "toolbar 6\nanswer cancel\ntoolbar 2\nanswer cancel\ntoolbar 1\ndump\n"
                                          "answer no\nmenu mnuFileNew\ndump\n"),
              0);
    // Open asks the same question; Cancel does not show the dialog.
    EXPECT_EQ(Pick({"message", "answer", "dialog", "caption", "list", "database", "changed"}),
              kQuestion + "answer: cancel\n" + kQuestion + "answer: cancel\n"
              "caption: Flowloom - " + path + "\n"
              "list: <New Process> | *Reminder letters | Monthly sales sheet | Order confirmation fax\n"
              "database: Northwind | *\nchanged: yes\n" +
              kQuestion + "answer: no\n"
              "caption: Flowloom - New XML file\nlist: *<New Process>\ndatabase:\nchanged: no\n");
    EXPECT_EQ(ReadAll(path), before);
}

TEST_F(SessionFile, OpenShowsTheLoadDialog) {
    const std::string path = Example();
    EXPECT_EQ(Session({}, "toolbar 2\nfile " + (folder / "none.xml").string() + "\ntoolbar 2\nfile " + path +
                              "\nmenu mnuFileLoad\ndump\n"),
              0);
    EXPECT_EQ(Pick({"dialog", "answer", "message", "caption", "list"}),
              "dialog: Load\nanswer: cancel\n"
              "dialog: Load\nanswer: " + (folder / "none.xml").string() + "\n"
              "dialog: Load\nanswer: " + path + "\n"
              "caption: Flowloom - " + path + "\n"
              "list: <New Process> | *Reminder letters | Monthly sales sheet | Order confirmation fax\n");
}

TEST_F(SessionFile, SaveAsksForAFileNameOnlyForANewFile) {
    const std::string target = (folder / "saved.xml").string();
    EXPECT_EQ(Session({}, "toolbar 6\ntoolbar 3\ntoolbar 4\ndump\n"
                          "input First\nfile " + target + "\ntoolbar 3\ndump\n"
                          "toolbar 8\nmenu mnuFileSave\nxml\nmenu mnuFileSaveAs\n"),
              0);
    EXPECT_EQ(Pick({"input", "dialog", "answer", "caption", "changed"}),
              // The changed "<New Process>" is asked for a name first, on every save.
              kNameIt + "answer:\n"
              // A cancelled dialog saves nothing; toolbar button 4 does nothing.
              "dialog: Save\nanswer: cancel\n"
              "caption: Flowloom - New XML file\nchanged: yes\n" +
              kNameIt + "answer: First\n"
              "dialog: Save\nanswer: " + target + "\n"
              // The caption keeps the new file's words.
              "caption: Flowloom - New XML file\nchanged: no\n"
              "dialog: Save\nanswer: cancel\n");
    const std::string transcript = out.str();
    const auto xml = transcript.find("<?xml");
    ASSERT_NE(xml, std::string::npos);
    EXPECT_EQ(ReadAll(target) + "\n", transcript.substr(xml, transcript.find("\ndialog: Save", xml) + 1 - xml));
}

TEST_F(SessionFile, CloseAsksAndACancelledSaveDialogKeepsTheWindowOpen) {
    EXPECT_EQ(Session({}, "toolbar 6\ninput First\nanswer yes\nclose\ndump\n"
                          "answer cancel\nclose\nanswer no\nclose\ndump\n"),
              0);
    EXPECT_EQ(Pick({"input", "message", "answer", "dialog", "list", "changed"}),
              kNameIt + "answer: First\n" + kQuestion + "answer: yes\ndialog: Save\nanswer: cancel\n"
              "list: <New Process> | *First\nchanged: yes\n" +
              kQuestion + "answer: cancel\n" +
              kQuestion + "answer: no\n");
}

TEST_F(SessionFile, ADifferenceInLetterCaseIsNoChange) {
    std::ostringstream transcript;
    cli::Session session(transcript);
    ASSERT_TRUE(session.Start({"-xmlfile", Example()}));
    const auto process = session.Designer().CurrentProcess();
    process->SetName("REMINDER LETTERS");
    EXPECT_FALSE(session.Designer().HasUnsavedChanges());
    process->SetName("Reminder letter");
    EXPECT_TRUE(session.Designer().HasUnsavedChanges());
    process->SetName("reminder Letters");
    Feed(session, "close\n");
    EXPECT_TRUE(session.Ended());
    EXPECT_EQ(transcript.str(), "");
}

}  // namespace
}  // namespace flowloom::test
