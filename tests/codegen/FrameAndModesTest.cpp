// The frame of a macro, the procedure name, the two modes and the parts of
// the classes mode that come before the activities.
#include "CodegenFixture.h"

#include "codegen/GenerateCodeCommands.h"
#include "codegen/ProcedureName.h"

#include <gmock/gmock.h>

namespace flowloom::test {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

const std::string kOneTable =
    R"(<Datasources><Datasource Name="T" Type="Table" ObjectName="T"/></Datasources>)";

TEST(ProcedureNames, KeepLettersAndDigitsOfTheWindowsCodePage) {
    EXPECT_EQ(ProcedureName("Invoices 2024!"), "Exec_Invoices2024");
    EXPECT_EQ(ProcedureName("Invoices-2024"), ProcedureName("Invoices 2024!"));
    EXPECT_EQ(ProcedureName("!?- ()"), "Exec_");
    EXPECT_EQ(ProcedureName(""), "Exec_");
    // Latin-1 letters and the letters of 0x80..0x9F stay; signs go.
    EXPECT_EQ(ProcedureName("Müller & Söhne"), "Exec_MüllerSöhne");
    EXPECT_EQ(ProcedureName("Œuvre ƒ Š ž Ÿ"), "Exec_ŒuvreƒŠžŸ");
    EXPECT_EQ(ProcedureName("2×3÷4 €5 ±6"), "Exec_23456");
    EXPECT_EQ(ProcedureName("x² ª º µ"), "Exec_x²ªºµ");
    // Characters outside the code page have no place in a Windows module.
    EXPECT_EQ(ProcedureName("Zahlung 支付 ok"), "Exec_Zahlungok");
    // A broken UTF-8 sequence is dropped, not misread.
    EXPECT_EQ(ProcedureName(std::string("a\xC3") + "b"), "Exec_ab");
}

TEST(ProcedureNames, AreCutTo255Characters) {
    EXPECT_EQ(ProcedureName(std::string(300, 'a')), "Exec_" + std::string(250, 'a'));
    // Characters, not bytes: each "é" is two bytes in UTF-8.
    std::string accented;
    for (int i = 0; i < 300; ++i) accented += "é";
    const std::string name = ProcedureName(accented);
    EXPECT_EQ(name.size(), 5u + 250u * 2u);
}

class Modes : public CodegenFixture {};

TEST_F(Modes, AnEmptyProcessStillGetsItsWholeFrame) {
    const std::string macro = Classes(R"(<Process Name="Empty"/>)");
    const std::string expected = std::string(
        "'This macro code can be called from Microsoft Access application.        \r\n"
        "'This way you can use to integrate velorin with your program's process: \r\n"
        "'  1. Set a reference to velorin.mde (velorin.dll).                  \r\n"
        "'  2. Create New or Open existing module in your application.              \r\n"
        "'  3. Past this code into the module                                       \r\n") +
        std::string(75, ' ') + "\r\n"
        "Sub Exec_Empty()                                                       \r\n"
        "    Dim vlkProcess As velorin.Process\r\n"
        "    Screen.MousePointer = 11\r\n"
        "    Set vlkProcess = New velorin.Process\r\n"
        "    With vlkProcess\r\n"
        "        .Name = \"Empty\"\r\n"
        "        .ProcessRecords = 0  '0 - Process Current Record; 1 - Process All Records; 2 - Process Selected Records\r\n"
        "    End With\r\n"
        "    vlkProcess.Execute\r\n"
        "    vlkProcess.Dispose\r\n"
        "    Set vlkProcess = Nothing\r\n"
        "    Screen.MousePointer = 0\r\n" +
        std::string(64, ' ') + "\r\n"
        "End Sub                                                                    \r\n";
    EXPECT_EQ(macro, expected);
    EXPECT_EQ(prompts.texts, std::vector<std::string>{expected});
}

TEST_F(Modes, XmlModeNamesTheProcessAsItStands) {
    const auto process = Load(R"(<Process Name="Say &quot;hi&quot; 2"/>)");
    const auto macro = GenerateCodeWithXML(processes, process);
    ASSERT_TRUE(macro);
    EXPECT_THAT(*macro, HasSubstr("Sub Exec_Sayhi2()   "));
    EXPECT_TRUE(HasLine(*macro, "    vlkCurrentProcesses.Processes(\"Say \"hi\" 2\").Execute               "));
    EXPECT_TRUE(HasLine(*macro, "    Dim vlkCurrentProcesses As velorin.CurrentProcesses     "));
    EXPECT_THAT(*macro, Not(HasSubstr("vlkProcess.Execute")));
}

TEST_F(Modes, XmlModeNeedsASavedFileAndANamedProcess) {
    const auto unnamed = Load(R"(<Process Name="P"/>)");
    processes->SetProcessesFile("");
    EXPECT_EQ(GenerateCodeWithXML(processes, unnamed), std::nullopt);
    processes->SetProcessesFile("/tmp/p.xml");
    unnamed->SetName("");
    EXPECT_EQ(GenerateCodeWithXML(processes, unnamed), std::nullopt);
    ASSERT_EQ(prompts.boxes.size(), 2u);
    EXPECT_EQ(prompts.boxes[0].prompt, "XML file is not saved.");
    EXPECT_EQ(prompts.boxes[0].style, msgbox::Exclamation);
    EXPECT_EQ(prompts.boxes[1].prompt, "New process is not saved with name.");
    EXPECT_EQ(prompts.boxes[1].style, msgbox::Exclamation);
    EXPECT_TRUE(prompts.texts.empty());
}

TEST_F(Modes, ProcessSettingsComeOutOnlyWhenTheyDifferFromTheDefault) {
    const std::string plain = Classes(R"(<Process Name="P" MainDatasourceName="T">)" + kOneTable + "</Process>");
    EXPECT_THAT(plain, Not(HasSubstr(".AbortOnError")));
    EXPECT_THAT(plain, Not(HasSubstr(".OnErrorNotifyUser")));
    EXPECT_THAT(plain, Not(HasSubstr("vlkProcessFieldValue")));
    // The log datasource falls back on the main datasource.
    EXPECT_TRUE(HasLine(plain, "        .LogDataSourceName = \"T\""));

    const std::string changed = Classes(R"(<Process Name="P" AbortOnError="0" OnErrorNotifyUser="0"/>)");
    EXPECT_TRUE(HasLine(changed, "        .AbortOnError = False"));
    EXPECT_TRUE(HasLine(changed, "        .OnErrorNotifyUser = False"));
    EXPECT_THAT(changed, Not(HasSubstr(".MainDataSourceName")));
    EXPECT_THAT(changed, Not(HasSubstr(".LogDataSourceName")));
}

TEST_F(Modes, FieldValuesAreQuotedOnlyWhenNeitherNumberNorQuoted) {
    const std::string macro = Classes(
        R"(<Process Name="P"><FieldValues><FieldValue Name="N" Value="5"/>)"
        R"(<FieldValue Name="Q" Value="&amp;quot;abc&amp;quot;"/><FieldValue Name="W" Value="abc"/>)"
        R"(<FieldValue Name="E" Value=""/><FieldValue Name="H" Value="&amp;H1F"/>)"
        R"(<FieldValue Name="Half" Value="&amp;quot;abc"/></FieldValues></Process>)");
    EXPECT_TRUE(HasLine(macro, "            .Value = 5"));
    EXPECT_TRUE(HasLine(macro, "            .Value = \"abc\""));
    EXPECT_TRUE(HasLine(macro, "            .Value = \"\""));
    EXPECT_TRUE(HasLine(macro, "            .Value = &H1F"));
    EXPECT_TRUE(HasLine(macro, "            .Value = \"\"abc\""));
    // "abc" in quotes and plain abc give the same line: one as it stands, one wrapped.
    const auto lines = Lines(macro);
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "            .Value = \"abc\""), 2);
}

TEST_F(Modes, TheFieldValueCounterRunsOnFromTheProcessIntoAddRecord) {
    const std::string macro = Classes(
        R"(<Process Name="P"><Activities><AddRecord TableName="Log"><FieldValues>)"
        R"(<FieldValue Name="A" Value="1"/></FieldValues></AddRecord></Activities>)"
        R"(<FieldValues><FieldValue Name="X" Value="1"/><FieldValue Name="Y" Value="2"/></FieldValues></Process>)");
    EXPECT_TRUE(HasLine(macro, "    Dim vlkFieldValue1 As velorin.FieldValue"));
    EXPECT_TRUE(HasLine(macro, "    Set vlkFieldValue1 = New velorin.FieldValue"));
    EXPECT_TRUE(HasLine(macro, "    Set vlkFieldValue1 = Nothing"));
    EXPECT_TRUE(HasLine(macro, "            vlkFieldValue3.Field = \"A\""));
    EXPECT_TRUE(HasLine(macro, "            vlkFieldValue3.Value = 1"));
    EXPECT_THAT(macro, Not(HasSubstr("Dim vlkFieldValue3")));
    EXPECT_THAT(macro, Not(HasSubstr("vlkFieldValue2")));
}

TEST_F(Modes, ActivitiesComeOutGroupedByKind) {
    const std::string macro = Classes(
        R"(<Process Name="P"><Activities><SendFax Address="1"/><MailMerge Template="a"/><SendFax Address="2"/>)"
        R"(<MailMerge Template="b"/></Activities></Process>)");
    const auto at = [&](const char* text) { return macro.find(text); };
    EXPECT_LT(at("With vlkMailMerge1"), at("With vlkMailMerge2"));
    EXPECT_LT(at("With vlkMailMerge2"), at("With vlkSendFax1"));
    EXPECT_LT(at("With vlkSendFax1"), at("With vlkSendFax2"));
    EXPECT_LT(at(".Template = \"a\""), at(".Template = \"b\""));
    EXPECT_LT(at(".Address = \"1\""), at(".Address = \"2\""));
    EXPECT_TRUE(HasLine(macro, "    vlkProcess.Activities.Add vlkSendFax2"));
}

class DatabaseSetUp : public CodegenFixture {};

TEST_F(DatabaseSetUp, TheCurrentDatabaseNeedsNoProcessesObject) {
    const std::string macro = Classes(
        R"(<Process Name="P"><Datasources><Datasource Name="A" Type="Table" Database="CurrentDatabase" ObjectName="A"/>)"
        R"(<Datasource Name="B" Type="Query" Database="currentdatabase" ObjectName="B"/>)"
        R"(<Datasource Name="C" Type="Query" ObjectName="C"/></Datasources></Process>)"
        R"(<Databases><Database Name="CurrentDatabase" Location="C:\x.mdb"/></Databases>)");
    EXPECT_THAT(macro, Not(HasSubstr("vlkProcesses")));
    EXPECT_THAT(macro, Not(HasSubstr("vlkDatabase")));
    const auto lines = Lines(macro);
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "        Set .Application = Application"), 2);
    // Only the exact spelling counts for the datasource itself.
    EXPECT_TRUE(HasLine(macro, "        .Database = \"currentdatabase\""));
}

TEST_F(DatabaseSetUp, KnownAccessDatabasesAreBuiltInTheMacro) {
    const std::string macro = Classes(
        R"(<Process Name="P"><Datasources><Datasource Name="A" Type="Table" Database="shop" ObjectName="A"/>)"
        R"(<Datasource Name="B" Type="Table" Database="Sql" ObjectName="B"/>)"
        R"(<Datasource Name="C" Type="Table" Database="Nowhere" ObjectName="C"/>)"
        R"(<Datasource Name="D" Type="Table" Database="NoFile" ObjectName="D"/>)"
        R"x(<Datasource Name="E" Type="Table" Database="=CurrentDb()" ObjectName="E"/></Datasources></Process>)x"
        R"(<Databases><Database Name="Shop" Location="C:\shop.mdb"/>)"
        R"(<Database Name="Sql" Location="srv" Type="SQL Server"/><Database Name="NoFile" Type="Microsoft Access"/>)"
        R"(</Databases>)");
    const auto lines = Lines(macro);
    const auto from = std::find(lines.begin(), lines.end(), "    Screen.MousePointer = 11");
    ASSERT_NE(from, lines.end());
    EXPECT_EQ(std::vector<std::string>(from + 1, from + 6),
              (std::vector<std::string>{"    Set vlkProcesses = New velorin.Processes",
                                        "    Set vlkDatabase = New velorin.Database",
                                        "    vlkDatabase.Name = \"Shop\"",
                                        "    vlkDatabase.Location = \"C:\\shop.mdb\"",
                                        "    vlkProcesses.Databases.Add vlkDatabase"}));
    EXPECT_TRUE(HasLine(macro, "    Dim vlkProcesses As velorin.Processes"));
    EXPECT_TRUE(HasLine(macro, "    vlkProcesses.Add vlkProcess"));
    EXPECT_TRUE(HasLine(macro, "    Set vlkProcesses = Nothing"));
    EXPECT_TRUE(HasLine(macro, "    Set vlkDatabase = Nothing"));
    // A datasource naming an unknown database still names it; CurrentDb() does not.
    EXPECT_TRUE(HasLine(macro, "        .Database = \"Nowhere\""));
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "        Set .Application = Application"), 1);
    EXPECT_TRUE(prompts.errors.empty());
}

TEST_F(DatabaseSetUp, ASharedDatabaseIsReportedAndWrittenOnce) {
    const std::string macro = Classes(
        R"(<Process Name="P"><Datasources><Datasource Name="A" Type="Table" Database="Shop" ObjectName="A"/>)"
        R"(<Datasource Name="B" Type="Table" Database="SHOP" ObjectName="B"/></Datasources></Process>)"
        R"(<Databases><Database Name="Shop" Location="C:\shop.mdb" Type="Microsoft Access"/></Databases>)");
    ASSERT_EQ(prompts.errors.size(), 1u);
    EXPECT_EQ(prompts.errors[0].number, 457);
    const auto lines = Lines(macro);
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "    vlkDatabase.Name = \"Shop\""), 1);
    EXPECT_TRUE(HasLine(macro, "    vlkProcess.Datasources.Add vlkDatasource2"));
}

TEST_F(DatabaseSetUp, DatasourcesAndDocumentsAreNumberedInOrder) {
    const std::string macro = Classes(
        R"(<Process Name="P"><Datasources><Datasource Name="A" Type="Form" ObjectName="frm" SubformFullName="frm.sub"/>)"
        R"(<Datasource Type="Table" ObjectName="Orders"/></Datasources>)"
        R"(<Documents><Document Name="One"/><Document Name="Two"/></Documents></Process>)");
    EXPECT_TRUE(HasLine(macro, "    Dim vlkDataSource2 As velorin.Datasource"));
    EXPECT_TRUE(HasLine(macro, "    With vlkDatasource2"));
    EXPECT_TRUE(HasLine(macro, "        .SubFormFullName = \"frm.sub\""));
    // A datasource without a name goes by its object's name.
    EXPECT_TRUE(HasLine(macro, "        .Name = \"Orders\""));
    EXPECT_TRUE(HasLine(macro, "    vlkDocument2.Name = \"Two\""));
    EXPECT_TRUE(HasLine(macro, "    vlkProcess.Documents.Add vlkDocument2, vlkDocument2.Name"));
    EXPECT_TRUE(HasLine(macro, "    Set vlkDocument2 = Nothing"));
}

}  // namespace
}  // namespace flowloom::test
