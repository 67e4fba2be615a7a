// flowloom-cli driven through its entry point, on the example and on bad input.
#include "CliFixture.h"

#include <filesystem>
#include <sstream>

namespace flowloom::test {
namespace {

namespace fs = std::filesystem;

using Cli = CliFixture;

TEST_F(Cli, ListPrintsProcessNamesInFileOrder) {
    EXPECT_EQ(Run({"list", Example()}), 0);
    EXPECT_EQ(out.str(), "Reminder letters\nMonthly sales sheet\nOrder confirmation fax\n");
    EXPECT_EQ(err.str(), "");
}

TEST_F(Cli, XmlWritesTheFileBackByteForByte) {
    const std::string path = Example();
    EXPECT_EQ(Run({"xml", path}), 0);
    EXPECT_EQ(out.str(), ReadAll(path));
}

TEST_F(Cli, MissingFileIsAnErrorLineAndExitTwo) {
    const std::string path = (folder / "none.xml").string();
    EXPECT_EQ(Run({"list", path}), 2);
    EXPECT_EQ(err.str(), "error 30051: '" + path + "' is not a valid path.\n");
    EXPECT_FALSE(fs::exists(path));
}

TEST_F(Cli, UnparsableFileSaysWhyOnOneLine) {
    const auto path = folder / "bad.xml";
    WriteAll(path, "<Processes>\n<Process>\n");
    EXPECT_EQ(Run({"xml", path.string()}), 2);
    EXPECT_EQ(out.str(), "");
    EXPECT_NE(err.str().find("cannot read " + path.string() + ": Error: Line "), std::string::npos) << err.str();
    EXPECT_EQ(err.str().find('\r'), std::string::npos);
}

TEST_F(Cli, MessagesWhileLoadingGoToStderrAndExitOne) {
    const auto path = folder / "dup.xml";
    WriteAll(path, R"(<Processes Version="1"><Process Name="a"/><Process Name="A"/></Processes>)");
    EXPECT_EQ(Run({"list", path.string()}), 1);
    EXPECT_EQ(out.str(), "a\n");
    EXPECT_EQ(err.str(), "message: Process A already exists.\n");
}

TEST_F(Cli, BadArgumentsExitTwo) {
    EXPECT_EQ(Run({}), 2);
    EXPECT_EQ(Run({"list"}), 2);
    EXPECT_EQ(Run({"frobnicate", "x"}), 2);
    EXPECT_EQ(Run({"--help"}), 0);
    EXPECT_NE(out.str().find("parse-command-line"), std::string::npos);
    EXPECT_EQ(Run({"--version"}), 0);
}

TEST_F(Cli, ParseCommandLinePrintsTheFourValues) {
    EXPECT_EQ(Run({"parse-command-line", R"(-xmlfile "C:\My Files\a.xml" /PROCESS Letter one -activeobject Table;Orders)"}), 0);
    // The value of xmlfile ends at the first " -" outside quotes: "/" is only tried when "-" is not found.
    EXPECT_EQ(out.str(), "C:\\My Files\\a.xml\" /PROCESS Letter one\nLetter one\nTable;Orders\n\n");
}

}  // namespace
}  // namespace flowloom::test
