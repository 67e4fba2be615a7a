// The driver, the process, database and datasource rules, and both modes of
// reporting.
#include "verify/VerifyFixture.h"

#include "verify/VerifyMessages.h"

#include <gmock/gmock.h>

namespace flowloom::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class VerifyDriver : public VerifyFixture {};

TEST_F(VerifyDriver, UnnamedProcessGetsOneFindingOnly) {
    const auto process = LoadProcess(R"(<Process Name=""/>)");
    EXPECT_FALSE(Verify(process, true));
    EXPECT_THAT(prompts.texts, ElementsAre("The process is not named.\r\n"));
    EXPECT_THAT(prompts.boxes, IsEmpty());
}

TEST_F(VerifyDriver, NamedEmptyProcessGivesDatasourceMainAndActivityInThatOrder) {
    const auto process = LoadProcess(R"(<Process Name="Empty"/>)");
    EXPECT_FALSE(Verify(process, true));
    EXPECT_THAT(prompts.texts,
                ElementsAre("The process has no Datasource.\r\n\r\n"
                            "The value for property Main Datasource Name is not set. The first Datasource will be "
                            "used as Main Datasource.\r\n"
                            "The process has no Activity.\r\n"));
}

TEST_F(VerifyDriver, NothingFoundShowsTheInformationBoxAndNoReport) {
    const auto process = LoadProcess(Sound(R"(<MailMerge Template="t.dot"/>)"));
    EXPECT_TRUE(Verify(process, true));
    EXPECT_THAT(prompts.texts, IsEmpty());
    ASSERT_EQ(prompts.boxes.size(), 1u);
    EXPECT_EQ(prompts.boxes[0].prompt, "Everything is Ok");
    EXPECT_EQ(prompts.boxes[0].title, "Verifying");
    EXPECT_EQ(prompts.boxes[0].style, msgbox::Information);
}

TEST_F(VerifyDriver, VerifyChangesNothingThatIsSaved) {
    const auto process = LoadProcess(Sound(R"(<MailMerge Template="t.dot" OutputDocumentName="D"/><SaveAs InputDocumentName="X"/>)",
                                           R"(<Document Name="D"/>)"));
    const std::string before = processes->XML();
    Verify(process, true);
    EXPECT_EQ(processes->XML(), before);
}

TEST_F(VerifyDriver, MainDatasourceMustExist) {
    EXPECT_THAT(Findings(R"(<Process Name="P" MainDatasourceName="Nowhere"><Activities><MailMerge Template="t"/></Activities>)"
                         R"(<Datasources><Datasource Name="A" Type="Table" ObjectName="A"/></Datasources></Process>)"),
                ElementsAre("The value for  property Main Datasource Name is set wrongly. Datasource 'Nowhere' does "
                            "not exist."));
}

TEST_F(VerifyDriver, DatasourceRules) {
    const std::string process =
        R"(<Process Name="P" MainDatasourceName="A"><Activities><MailMerge Template="t"/></Activities><Datasources>)"
        R"(<Datasource Name="A" Type="Table" ObjectName="A" Database="Sales"/>)"
        R"(<Datasource Type="Query" Database="Missing"/>)"
        R"(<Datasource Name="Live" Type="active object"/>)"
        R"(<Datasource Name="B" Type="Table" Database="CurrentDatabase"/>)"
        R"(</Datasources></Process>)";
    EXPECT_THAT(Findings(process, R"(<Databases><Database Name="Sales" Location="/nowhere/sales.mdb"/></Databases>)"),
                ElementsAre("Database Sales: file '/nowhere/sales.mdb' does not exist.",
                            "Datasource(2) is not named.",
                            "Datasource(2): Database 'Missing' does not exist.",
                            "Datasource(2): the property ObjectName is not set.",
                            // A database the file does not list, even "CurrentDatabase", is a finding.
                            "Datasource(4): Database 'CurrentDatabase' does not exist.",
                            "Datasource(4): the property ObjectName is not set."));
}

TEST_F(VerifyDriver, DatabaseRulesCoverEveryDatabaseOfTheFile) {
    WriteAll(folder / "good.mdb", "");
    WriteAll(folder / "upper.MDB", "");
    WriteAll(folder / "sheet.xls", "");
    const std::string databases = "<Databases>"
                                  R"(<Database Name="" Location="ignored.txt"/>)"
                                  R"(<Database Name="currentdatabase"/>)"
                                  R"(<Database Name="NoPlace"/>)"
                                  R"(<Database Name="Good" Location=")" + (folder / "good.mdb").string() + R"("/>)"
                                  R"(<Database Name="Upper" Location=")" + (folder / "upper.MDB").string() + R"("/>)"
                                  R"(<Database Name="Sheet" Location=")" + (folder / "sheet.xls").string() + R"("/>)"
                                  "</Databases>";
    const auto findings = Findings(Sound(R"(<MailMerge Template="t"/>)"), databases);
    EXPECT_THAT(findings, ElementsAre("Database(1) is not named.",
                                      "Database NoPlace: the property Location is not set.",
                                      "Database Upper: file '" + (folder / "upper.MDB").string() +
                                          "' has unsupported extension.",
                                      "Database Sheet: file '" + (folder / "sheet.xls").string() +
                                          "' has unsupported extension."));
}

TEST_F(VerifyDriver, ApplicationOfExtensionKnowsOnlyAccessFilesInLowerCase) {
    for (const char* extension : {"accdb", "mdb", "mde", "adp", "ade"})
        EXPECT_EQ(ApplicationOfExtension(extension, false), "Microsoft Access") << extension;
    EXPECT_EQ(ApplicationOfExtension("mde", true), "");
    EXPECT_EQ(ApplicationOfExtension("ade", true), "");
    EXPECT_EQ(ApplicationOfExtension("accdb", true), "Microsoft Access");
    EXPECT_EQ(ApplicationOfExtension("MDB", false), "");
}

TEST_F(VerifyDriver, PlaceholdersWithoutAnArgumentStayAndOthersAreFilledEverywhere) {
    ProcessVerifier verifier(true);
    verifier.ReportVerifyError(7, severity::Warning, {"3"});
    verifier.ReportVerifyError(34, severity::Error, {"MailMerge(2)", "MailMerge(1)"});
    verifier.ReportVerifyError(99, severity::Error);
    ASSERT_EQ(verifier.Findings().size(), 3u);
    EXPECT_EQ(verifier.Findings()[0].text, "Datasource(3): Database '{%2}' does not exist.");
    EXPECT_EQ(verifier.Findings()[1].text,
              "The sequence of activities is not correct. Output Document of MailMerge(1) is used by MailMerge(2) "
              "therefore MailMerge(1) should precede MailMerge(2).");
    EXPECT_EQ(verifier.Findings()[2].text, "Error not specified");
    EXPECT_EQ(VerifyMessage(-1), "Error not specified");
    EXPECT_EQ(VerifyMessage(58), "Error not specified");
}

TEST_F(VerifyDriver, CatalogueOffersRealDownloadAddresses) {
    EXPECT_EQ(VerifyMessage(43),
              "Acrobat Distiller is not installed.\r\nYou can download Ghostscript (free PostScript to PDF converter) "
              "from\r\nhttps://ghostscript.com/releases/gsdnld.html");
    EXPECT_THAT(VerifyMessage(47), ::testing::StartsWith("Microsoft Save as PDF add-in is not installed.\r\n"
                                                         "You can download \"Microsoft Save as PDF\" from https://"));
    EXPECT_THAT(VerifyMessage(47), ::testing::HasSubstr("\r\nor \"Microsoft Save as PDF or XPS\" from https://"));
    EXPECT_THAT(VerifyMessage(48), ::testing::StartsWith("Microsoft Save as XPF add-in is not installed.\r\n"));
}

TEST_F(VerifyDriver, StopModeDropsWarningsAndStopsAtTheFirstErrorWithoutAReport) {
    // Warning 3 (no main datasource) is dropped; error 1 stops the run before 2.
    const auto process = LoadProcess(R"(<Process Name="P"/>)");
    EXPECT_FALSE(Verify(process, false));
    EXPECT_THAT(prompts.texts, IsEmpty());
    ASSERT_EQ(prompts.boxes.size(), 1u);
    EXPECT_EQ(prompts.boxes[0].prompt, "The process has no Datasource.\r\n");
    EXPECT_EQ(prompts.boxes[0].title, "Process verifying");
    EXPECT_THAT(prompts.errors, IsEmpty());  // the stop is no error to report
}

TEST_F(VerifyDriver, StopModeWithOnlyWarningsPassesQuietly) {
    const auto process = LoadProcess(
        R"(<Process Name="P"><Activities><MailMerge Template="t"/></Activities><Datasources>)"
        R"(<Datasource Name="A" Type="Table" ObjectName="A"/></Datasources></Process>)");
    EXPECT_TRUE(Verify(process, false));
    EXPECT_THAT(prompts.boxes, IsEmpty());
}

TEST_F(VerifyDriver, StopModeOffersGhostscriptWhenNoDistillerIsInstalled) {
    const auto process = LoadProcess(Sound(
        R"(<MailMerge Template="t" OutputDocumentName="D"/>)"
        R"(<Convert InputDocumentName="D" OutputConvertFormat="1" PDFConvertingMethod="2" PostscriptToPDFConverter="1"/>)",
        R"(<Document Name="D"/>)"));
    prompts.answers = {msgbox::OK, msgbox::Yes};
    EXPECT_FALSE(Verify(process, false));
    ASSERT_EQ(prompts.boxes.size(), 2u);
    EXPECT_EQ(prompts.boxes[0].prompt, VerifyMessage(43));
    EXPECT_EQ(prompts.boxes[1].prompt, "Do you want to download Ghostscript?");
    EXPECT_EQ(msgbox::Buttons(prompts.boxes[1].style), msgbox::YesNo);
    EXPECT_THAT(prompts.urls, ElementsAre("https://ghostscript.com/releases/gsdnld.html"));
}

TEST_F(VerifyDriver, StopModeOffersTheAddInAfterFindingFortySeven) {
    auto process = LoadProcess(Sound(R"(<MailMerge Template="t"/>)"));
    ProcessVerifier verifier(false);
    prompts.answers = {msgbox::OK, msgbox::No};
    EXPECT_THROW(verifier.ReportVerifyError(47, severity::Error), VbError);
    ASSERT_EQ(prompts.boxes.size(), 2u);
    EXPECT_EQ(prompts.boxes[1].prompt, "Do you want to download Microsoft Save as PDF add-in?");
    EXPECT_THAT(prompts.urls, IsEmpty());
}

}  // namespace
}  // namespace flowloom::test
