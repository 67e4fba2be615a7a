// The walk over the activities and the rule of each activity type.
#include "verify/VerifyFixture.h"

#include "model/Activities.h"
#include "model/Convert.h"
#include "model/Datasources.h"
#include "verify/VerifyMessages.h"

#include <gmock/gmock.h>

namespace flowloom::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ActivityRules : public VerifyFixture {};

constexpr const char* kOptions =
    R"(<Options><ConvertingPostscriptToPDF PostscriptPrinter="Ghost printer" )"
    R"(GhostscriptExecutableFile="/nowhere/gswin32c.exe"/></Options>)";

// One process that breaks every activity rule that can be broken in one file.
TEST_F(ActivityRules, EveryReachableActivityFindingWithItsExactText) {
    const std::string activities =
        R"(<MailMerge DatasourceName="Ghost" OutputDocumentName="Letter" PrecededBy="Later" SucceededBy="Nowhere"/>)"
        R"(<MailMerge Template="t" OutputDocumentName="Later" PrecededBy="Missing"/>)"
        R"(<MailMerge Template="t" OutputDocumentName="letter"/>)"
        R"(<SaveAs/>)"
        R"(<SaveAs InputDocumentName="Unknown" Folder="f" File="x"/>)"
        R"(<PrintOut/>)"
        R"(<PrintOut InputDocumentName="Unknown"/>)"
        R"(<SendMail InputDocumentName="Unlisted" OutputDocumentName="Body" MailApplication="2" SendMethod="2"/>)"
        R"(<SendMail To="" Subject="S" MailApplication="2" SendMethod="1"/>)"
        R"(<SaveAs InputDocumentName="Body" Folder="f" File="x"/>)"
        R"(<SendFax/>)"
        R"(<SendFax InputDocumentName="Unknown" Address="[Fax]"/>)"
        R"(<Convert/>)"
        R"(<Convert InputDocumentName="Unknown" OutputConvertFormat="1" PDFConvertingMethod="2" PostscriptToPDFConverter="1"/>)"
        R"(<Convert InputDocumentName="Letter" OutputConvertFormat="1" PDFConvertingMethod="2" PostscriptToPDFConverter="2"/>)"
        R"(<AddRecord DatasourceName="Ghost" Database="Nope"/>)";
    printers.names = {"Office laser"};
    const auto findings = Findings(Sound(activities, R"(<Document Name="Letter"/><Document Name="Later"/>)"), kOptions);
    EXPECT_THAT(
        findings,
        ElementsAre(
            "MailMerge's property Template is not set.",
            "MailMerge's property Datasource Name contains a reference to Datasource 'Ghost' which does not exist.",
            "The sequence of activities is not correct. Output Document of MailMerge(2) is used by MailMerge(1) "
            "therefore MailMerge(2) should precede MailMerge(1).",
            "MailMerge's property Succeeded By contains a reference to Document 'Nowhere' which does not exist.",
            "MailMerge's property Preceded By contains a reference to Document 'Missing' which does not exist.",
            "MailMerge's property 'Output Document Name' refers to Document 'letter' which is used by another "
            "MailMerge.",
            "SaveAs's property Input Document Name is not set.",
            "SaveAs's property Folder is not set.",
            "SaveAs's property File is not set.",
            "Document 'Unknown' used in 'SaveAs' is not created in previous steps.",
            "SaveAs's property Input Document Name contains a reference to Document 'Unknown' which does not exist.",
            "PrintOut's property Input Document Name is not set.",
            "Document 'Unknown' used in 'PrintOut' is not created in previous steps.",
            "PrintOut's property Input Document Name contains a reference to Document 'Unknown' which does not "
            "exist.",
            "SendMail's property Input Document Name contains a reference to Document 'Unlisted' which does not "
            "exist.",
            "It has sense only to use SendMail's property 'Output Document Name' with Outlook.",
            "SendMail's property To is not set.",
            "SendMail's property Subject is not set.",
            "SendMail's property SendMethod can not be Draft or Display if CDO is used.",
            "SendMail's property To is not set.",
            "SendMail's property SendMethod can not be Draft or Display if CDO is used.",
            "SaveAs's property Input Document Name contains a reference to Document 'Body' which can not be created "
            "in SendMail activity.",
            "SendFax's property Input Document Name is not set.",
            "SendFax's property Address is not set.",
            "Document 'Unknown' used in 'SendFax' is not created in previous steps.",
            "SendFax's property Input Document Name contains a reference to Document 'Unknown' which does not "
            "exist.",
            "Convert's property Input Document Name is not set.",
            "Document 'Unknown' used in 'Convert' is not created in previous steps.",
            "Convert's property Input Document Name contains a reference to Document 'Unknown' which does not "
            "exist.",
            "Convert: printer 'Ghost printer' does not exist.",
            VerifyMessage(43),
            "Convert: printer 'Ghost printer' does not exist.",
            "The file '/nowhere/gswin32c.exe' does not exist.",
            "AddRecord's property Datasource Name contains a reference to Datasource 'Ghost' which does not exist.",
            "AddRecord's property Database contains a reference to Database 'Nope' which does not exist.",
            "AddRecord's property Table Name is not specified.",
            "AddRecord's property Field Values is not specified."));
}

TEST_F(ActivityRules, SeveritiesFollowTheRules) {
    ProcessVerifier verifier(true);
    verifier.Run(LoadProcess(Sound(R"(<SendMail OutputDocumentName="B" To="a@b.c"/><AddRecord Database="Nope" TableName="T"><FieldValues><FieldValue Name="F" Value="1"/></FieldValues></AddRecord>)")));
    std::vector<std::pair<int, int>> numbers;
    for (const auto& finding : verifier.Findings()) numbers.emplace_back(finding.number, finding.severity);
    EXPECT_THAT(numbers, ElementsAre(std::pair{49, 1}, std::pair{28, 1}, std::pair{54, 1}));
}

TEST_F(ActivityRules, SendMailMayUseAListedDocumentThatNoActivityMakes) {
    EXPECT_THAT(Findings(Sound(R"(<SendMail InputDocumentName="Listed" To="a@b.c" Subject="S" MailApplication="1" OutputDocumentName="Kept"/>)",
                               R"(<Document Name="Listed"/>)")),
                IsEmpty());
}

TEST_F(ActivityRules, AMergesOwnOutputCountsAsCreatedForItsSequence) {
    EXPECT_THAT(Findings(Sound(R"(<MailMerge Template="t" OutputDocumentName="X" PrecededBy="x" SucceededBy="X"/>)")),
                IsEmpty());
}

TEST_F(ActivityRules, SucceededByDocumentMadeLaterIsReportedLikeAPrecedingOne) {
    EXPECT_THAT(Findings(Sound(R"(<MailMerge Template="t" OutputDocumentName="A" SucceededBy="B"/>)"
                               R"(<MailMerge Template="t" OutputDocumentName="B"/>)")),
                ElementsAre("The sequence of activities is not correct. Output Document of MailMerge(2) is used by "
                            "MailMerge(1) therefore MailMerge(2) should precede MailMerge(1)."));
}

TEST_F(ActivityRules, DuplicateMergeOutputIsReportedAndTheSecondMergeIsStillChecked) {
    EXPECT_THAT(Findings(Sound(R"(<MailMerge Template="t" OutputDocumentName="A"/><MailMerge OutputDocumentName="A"/>)")),
                ElementsAre("MailMerge's property 'Output Document Name' refers to Document 'A' which is used by "
                            "another MailMerge.",
                            "MailMerge's property Template is not set."));
}

TEST_F(ActivityRules, DefaultOrKnownPostscriptPrinterNeedsNoCheck) {
    const std::string convert =
        R"(<MailMerge Template="t" OutputDocumentName="D"/>)"
        R"(<Convert InputDocumentName="D" OutputConvertFormat="1" PDFConvertingMethod="2" PostscriptToPDFConverter="2"/>)";
    WriteAll(folder / "gs", "");
    const std::string gs = (folder / "gs").string();
    printers.succeeds = false;  // asking would give a message box
    EXPECT_THAT(Findings(Sound(convert), R"x(<Options><ConvertingPostscriptToPDF PostscriptPrinter="(Default printer)" GhostscriptExecutableFile=")x" + gs + R"("/></Options>)"),
                IsEmpty());
    EXPECT_THAT(prompts.boxes, IsEmpty());
    printers.succeeds = true;
    printers.names = {"PDF Writer"};
    EXPECT_THAT(Findings(Sound(convert), R"(<Options><ConvertingPostscriptToPDF PostscriptPrinter="pdf writer" GhostscriptExecutableFile=")" + gs + R"("/></Options>)"),
                IsEmpty());
}

TEST_F(ActivityRules, GhostscriptMustBeDefinedInTheOptions) {
    EXPECT_THAT(Findings(Sound(R"(<MailMerge Template="t" OutputDocumentName="D"/>)"
                               R"(<Convert InputDocumentName="D" OutputConvertFormat="1" PDFConvertingMethod="2"/>)")),
                ElementsAre("The executable file of Ghostscript is not defined in Processes.Options."));
}

TEST_F(ActivityRules, ConversionsOtherThanPdfByPostscriptSkipTheConverterChecks) {
    EXPECT_THAT(Findings(Sound(R"(<MailMerge Template="t" OutputDocumentName="D"/>)"
                               R"(<Convert InputDocumentName="D" OutputConvertFormat="1" PDFConvertingMethod="1"/>)"
                               R"(<Convert InputDocumentName="D" OutputConvertFormat="0" PDFConvertingMethod="2"/>)")),
                IsEmpty());
}

TEST_F(ActivityRules, WithoutAFileTheConverterFileIsNotAskedFor) {
    auto process = Process::Create();
    process->SetName("Alone");
    auto convert = std::dynamic_pointer_cast<Convert>(CreateActivity("Convert"));
    convert->SetOutputFileFormat(1);
    convert->SetPDFConvertingMethod(2);
    convert->SetPostscript2PDFConverter(2);
    process->Activities()->Add(convert);
    ProcessVerifier verifier(true);
    verifier.Run(process);
    std::vector<int> numbers;
    for (const auto& finding : verifier.Findings()) numbers.push_back(finding.number);
    EXPECT_THAT(numbers, ElementsAre(1, 3, 38));
    process->Dispose();
}

}  // namespace
}  // namespace flowloom::test
