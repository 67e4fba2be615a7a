// flowloom-cli verify, verify-all and codegen.
#include "CliFixture.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <sstream>

namespace flowloom::test {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

class CliChecks : public CliFixture {
protected:
    std::string File(const std::string& body) {
        const auto path = folder / "small.xml";
        WriteAll(path, R"(<?xml version="1.0" encoding="UTF-8"?><Processes Version="1">)" + body + "</Processes>");
        return path.string();
    }
};

// The example's database lives on the Windows machine that runs the
// processes, so here its file is the one finding.
constexpr const char* kMissingDatabase = "Database Northwind: file 'C:\\Northwind\\nwind.mdb' does not exist.\r\n";

TEST_F(CliChecks, VerifyFindsTheProcessWithoutRegardToCaseAndPrintsTheReport) {
    EXPECT_EQ(Run({"verify", Example(), "reminder LETTERS"}), 1);
    EXPECT_EQ(out.str(), kMissingDatabase);
    EXPECT_EQ(err.str(), "");
}

TEST_F(CliChecks, VerifyOfAnUnknownProcessOrWithWrongArgumentsIsExitTwo) {
    EXPECT_EQ(Run({"verify", Example(), "Nothing like it"}), 2);
    EXPECT_THAT(err.str(), HasSubstr("no process named 'Nothing like it'"));
    EXPECT_EQ(out.str(), "");
    EXPECT_EQ(Run({"verify", Example()}), 2);
    EXPECT_EQ(Run({"verify-all"}), 2);
    EXPECT_EQ(Run({"verify", (folder / "none.xml").string(), "x"}), 2);
}

TEST_F(CliChecks, VerifyAllReportsEveryProcessUnderItsName) {
    EXPECT_EQ(Run({"verify-all", Example()}), 1);
    EXPECT_EQ(out.str(), std::string("== Reminder letters\r\n") + kMissingDatabase + "== Monthly sales sheet\r\n" +
                             kMissingDatabase + "== Order confirmation fax\r\n" + kMissingDatabase);
}

TEST_F(CliChecks, WithNothingFoundEverythingIsOkAndExitZero) {
    const std::string file = File(R"(<Process Name="A" MainDatasourceName="D"><Activities><MailMerge Template="t"/>)"
                                  R"(</Activities><Datasources><Datasource Name="D" Type="Table" ObjectName="D"/>)"
                                  R"(</Datasources></Process>)");
    EXPECT_EQ(Run({"verify", file, "A"}), 0);
    EXPECT_EQ(out.str(), "Everything is Ok\r\n");
    EXPECT_EQ(err.str(), "");
    EXPECT_EQ(Run({"verify-all", file}), 0);
    EXPECT_EQ(out.str(), "== A\r\nEverything is Ok\r\n");
}

TEST_F(CliChecks, CodegenInClassesModeWritesTheMacro) {
    EXPECT_EQ(Run({"codegen", Example(), "order confirmation fax"}), 0);
    EXPECT_THAT(out.str(), StartsWith("'This macro code can be called from Microsoft Access application.        \r\n"));
    EXPECT_THAT(out.str(), HasSubstr("Sub Exec_Orderconfirmationfax()"));
    EXPECT_EQ(Run({"codegen", Example(), "Order confirmation fax", "--mode", "classes"}), 0);
    EXPECT_EQ(err.str(), "");
}

TEST_F(CliChecks, CodegenReportsASharedDatabaseAndStillWritesTheWholeMacro) {
    EXPECT_EQ(Run({"codegen", Example(), "Reminder letters"}), 0);
    EXPECT_THAT(err.str(), StartsWith("error 457: "));
    EXPECT_THAT(out.str(), HasSubstr("    vlkDatabase.Name = \"Northwind\"\r\n"));
    EXPECT_THAT(out.str(), HasSubstr("End Sub"));
}

TEST_F(CliChecks, CodegenInXmlModeNamesTheProcessOnly) {
    EXPECT_EQ(Run({"codegen", Example(), "Reminder letters", "--mode", "xml"}), 0);
    EXPECT_THAT(out.str(), HasSubstr("    vlkCurrentProcesses.Processes(\"Reminder letters\").Execute"));
    EXPECT_THAT(out.str(), Not(HasSubstr("vlkProcess.Execute")));
    EXPECT_EQ(Run({"codegen", Example(), "Reminder letters", "--mode=xml"}), 0);
}

TEST_F(CliChecks, CodegenInXmlModeNeedsANamedProcess) {
    const std::string file = File(R"(<Process Name=""/>)");
    EXPECT_EQ(Run({"codegen", file, "", "--mode", "xml"}), 1);
    EXPECT_EQ(err.str(), "message: New process is not saved with name.\n");
    EXPECT_EQ(out.str(), "");
}

TEST_F(CliChecks, CodegenRejectsAnUnknownMode) {
    EXPECT_EQ(Run({"codegen", Example(), "Reminder letters", "--mode", "html"}), 2);
    EXPECT_EQ(Run({"codegen", Example(), "Reminder letters", "--mode"}), 2);
    EXPECT_EQ(Run({"codegen", Example()}), 2);
}

}  // namespace
}  // namespace flowloom::test
