// The With block of each activity: which lines, in which order, when.
#include "CodegenFixture.h"

#include <gmock/gmock.h>

namespace flowloom::test {
namespace {

using ::testing::ElementsAreArray;
using ::testing::HasSubstr;
using ::testing::Not;

class Emitters : public CodegenFixture {
protected:
    // The lines between "With <variable>" and its "End With", for a process
    // with the given activities, documents and the rest of the file.
    std::vector<std::string> Block(const std::string& variable, const std::string& activities,
                                   const std::string& documents = {}, const std::string& rest = {}) {
        const auto lines = Lines(Classes(R"(<Process Name="P" MainDatasourceName="Main"><Activities>)" + activities +
                                         "</Activities><Documents>" + documents + "</Documents></Process>" + rest));
        const auto with = std::find(lines.begin(), lines.end(), "    With " + variable);
        if (with == lines.end()) return {};
        const auto end = std::find(with, lines.end(), "    End With");
        return {with + 1, end};
    }
};

TEST_F(Emitters, MailMergeWithDefaultsShowsTheDocumentAndNothingElseOptional) {
    EXPECT_THAT(Block("vlkMailMerge1", R"(<MailMerge Template="t.dot"/>)"),
                ElementsAreArray({"        .InvokedApplication = \"Microsoft Word\"", "        .Template = \"t.dot\"",
                                  "        .ShowDocument = True"}));
    EXPECT_THAT(Block("vlkMailMerge1", R"(<MailMerge Template="t" ShowDocument="0" InsertPagebreak="-1"/>)"),
                ElementsAreArray({"        .InvokedApplication = \"Microsoft Word\"", "        .Template = \"t\"",
                                  "        .ShowDocument = False"}));
    const auto labels = Block("vlkMailMerge1", R"(<MailMerge MailMergeType="2" InsertPagebreak="0"/>)");
    EXPECT_THAT(labels, ::testing::Contains("        .MailMergeType = 2 '0 - Document; 1 - Listing; 2 - Labels"));
    EXPECT_THAT(labels, ::testing::Contains("        .InsertPagebreak = False"));
}

TEST_F(Emitters, SaveAsOfADocumentOfNoKnownApplicationStopsAfterTheFormat) {
    EXPECT_THAT(Block("vlkSaveAs1", R"(<SaveAs InputDocumentName="Loose" FileFormat="6" Password="p" CreateBackup="True"/>)",
                      R"(<Document Name="Loose"/>)"),
                ElementsAreArray({"        .InputDocumentName = \"Loose\"",
                                  "        .OverwriteExistingFile = 0 '0 - Ask For Confirmation; 1 - Overwrite "
                                  "Without Confirmation; 2 - No Overwrite",
                                  "        .FileFormat = 6"}));
}

TEST_F(Emitters, ConvertReadsThePrinterAndGhostscriptFromTheOptions) {
    EXPECT_THAT(Block("vlkConvert1", R"(<Convert PDFConvertingMethod="1" PostscriptToPDFConverter="1"/>)"),
                ElementsAreArray({"        .PDFConvertingMethod = 1",
                                  "        .PostscriptPrinter  = \"(Default printer)\"",
                                  "        .Postscript2PDFConverter = 1"}));
    // Without Distiller on this machine the converter found out is Ghostscript.
    const std::string options =
        R"(<Options><ConvertingPostscriptToPDF PostscriptPrinter="PS" GhostscriptExecutableFile="gs.exe"/></Options>)";
    EXPECT_THAT(Block("vlkConvert1", R"(<Convert PDFConvertingMethod="2" Show="0"/>)", {}, options),
                ElementsAreArray({"        .PDFConvertingMethod = 2", "        .PostscriptPrinter  = \"PS\"",
                                  "        .Postscript2PDFConverter = 2",
                                  "        .GhostscriptExecutableFile  = \"gs.exe\""}));
}

TEST_F(Emitters, SendMailEscapesSubjectAndBodyOnly) {
    const auto block = Block("vlkSendMail1", R"(<SendMail Description="a &quot;b&quot;" Subject="Say &quot;hi&quot;" )"
                                             R"(Body="x&quot;y"/>)");
    EXPECT_THAT(block, ::testing::Contains("        .Description = \"a \"b\"\""));
    EXPECT_THAT(block, ::testing::Contains("        .Subject = \"Say \"\"hi\"\"\""));
    EXPECT_THAT(block, ::testing::Contains("        .Body = \"x\"\"y\""));
}

TEST_F(Emitters, SendMailByOutlookHasNoServerOrAccountLines) {
    EXPECT_THAT(Block("vlkSendMail1", R"(<SendMail To="a@b" MailApplication="1" SMTPServer="s" SMTPServerPort="26" )"
                                      R"(SendUsername="u" SendPassword="p" From="f" Charset="c"/>)"),
                ElementsAreArray({"        Set vlkTo1 = New velorin.List", "        vlkTo1.ValueList = \"a@b\"",
                                  "        Set .To_ = vlkTo1",
                                  "        .MailApplication = 1 '0 - Default Mail Application; 1 - Outlook; 2 - CDO; "
                                  "3 - Groupwise"}));
}

TEST_F(Emitters, SendMailLeavesOutTheStandardPort) {
    const auto standard = Block("vlkSendMail1", R"(<SendMail SMTPServer="s" SMTPServerPort="25"/>)");
    EXPECT_THAT(standard, ElementsAreArray({"        .SMTPServer = \"s\""}));
    const auto other = Block("vlkSendMail1", R"(<SendMail SMTPServerPort="465"/>)");
    EXPECT_THAT(other, ElementsAreArray({"        .SMTPServerPort = \"465\""}));
}

TEST_F(Emitters, SendMailNumbersItsListsAndSkipsTheMainDatasource) {
    const auto second = Block("vlkSendMail2", R"(<SendMail To="x"/><SendMail CC="c" DatasourceName="Main"/>)");
    EXPECT_THAT(second, ElementsAreArray({"        Set vlkCC2 = New velorin.List", "        vlkCC2.ValueList = \"c\"",
                                          "        Set .CC = vlkCC2"}));
    const auto other = Block("vlkSendMail1", R"(<SendMail DatasourceName="main"/>)");
    EXPECT_THAT(other, ElementsAreArray({"        .DatasourceName = \"main\""}));
}

TEST_F(Emitters, SendFaxAndAddRecord) {
    EXPECT_THAT(Block("vlkSendFax1", R"(<SendFax Description="d" InputDocumentName="L" Address="[Fax]" Subject="s"/>)"),
                ElementsAreArray({"        .Description = \"d\"", "        .InputDocumentName = \"L\"",
                                  "        .Address = \"[Fax]\"", "        .Subject = \"s\""}));
    // With no FieldValues the block has no nested With, and the main datasource is not named.
    EXPECT_THAT(Block("vlkAddRecord1", R"(<AddRecord Database="D" TableName="T"/>)"),
                ElementsAreArray({"        .Database = \"D\"", "        .TableName = \"T\""}));
}

}  // namespace
}  // namespace flowloom::test
