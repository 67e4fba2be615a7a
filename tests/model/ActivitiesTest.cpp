// The seven activities as read from and written to a process element.
#include "ModelFixture.h"

#include "model/Activities.h"
#include "model/AddRecord.h"
#include "model/Convert.h"
#include "model/Documents.h"
#include "model/FieldValue.h"
#include "model/List.h"
#include "model/MailMerge.h"
#include "model/PrintOut.h"
#include "model/Process.h"
#include "model/SaveAs.h"
#include "model/SendFax.h"
#include "model/SendMail.h"
#include "model/xml/CProcessesXMLDoc.h"

namespace flowloom::test {
namespace {

class Activity_ : public ModelFixture {
protected:
    // Loads one process whose Activities hold `activities`.
    std::shared_ptr<Process> Load(const std::string& activities, const std::string& extra = {}) {
        processes = LoadText(Document(R"(<Process Name="p" MainDatasourceName="Main"><Activities>)" + activities +
                                      "</Activities>" + extra + "</Process>"));
        return processes->Item(CollectionPosition{1});
    }
    template <typename T>
    std::shared_ptr<T> At(const std::shared_ptr<Process>& process, int index) {
        return std::dynamic_pointer_cast<T>(process->Activities()->Item(CollectionPosition{index}));
    }
    // The serialised element of one activity.
    static std::string Written(Activity& activity) {
        pugi::xml_document document;
        CProcessesXMLDoc().ActivityFragment(activity, document);
        return SerializeNode(document);
    }
    std::shared_ptr<Processes> processes;
};

TEST_F(Activity_, RenamingTheOutputKeepsTheDocumentObject) {
    auto process = Load(R"(<MailMerge OutputDocumentName="Letter"/>)");
    auto mailMerge = At<MailMerge>(process, 1);
    auto document = process->Documents()->Find("Letter");
    ASSERT_NE(document, nullptr);
    document->Template = "kept";
    mailMerge->SetOutputDocumentName("Reminder");
    EXPECT_FALSE(process->Documents()->Contains("Letter"));
    EXPECT_EQ(process->Documents()->Find("Reminder"), document);
    EXPECT_EQ(document->name, "Reminder");
    EXPECT_EQ(document->Template, "kept");
    mailMerge->SetOutputDocumentName("REMINDER");  // case only: documents untouched
    EXPECT_EQ(mailMerge->OutputDocumentName(), "REMINDER");
    EXPECT_EQ(document->name, "Reminder");
}

TEST_F(Activity_, MailMergeDefaultsAndItsDatasourceReadGivesNothing) {
    auto process = Load(R"(<MailMerge MailMergeType="x" ShowDocument="False"/>)");
    auto mailMerge = At<MailMerge>(process, 1);
    EXPECT_EQ(mailMerge->InvokedApplication(), "Microsoft Word");
    EXPECT_EQ(mailMerge->MailMergeType(), 0);
    mailMerge->SetDatasource(process->MainDataSource());
    EXPECT_EQ(mailMerge->Datasource(), nullptr);
    EXPECT_EQ(Written(*mailMerge), R"(<MailMerge InvokedApplication="Microsoft Word" ShowDocument="0"/>)");
}

TEST_F(Activity_, KeysAreTypeNamesWithDigitsAndNewOnEachLoad) {
    auto process = Load(R"(<SendFax/><SendFax/>)");
    const std::string key = At<SendFax>(process, 1)->Key();
    EXPECT_EQ(key.rfind("SendFax", 0), 0u);
    EXPECT_NE(key, At<SendFax>(process, 2)->Key());
    EXPECT_EQ(process->Activities()->TypeCount(ActivityKind::SendFax), 2);
}

TEST_F(Activity_, UnknownElementRerunsThePreviousReaderAndFailsOnItsKey) {
    auto process = Load(R"(<Bogus Description="first"/><SendFax Subject="a"/><Bogus Subject="b"/>)");
    ASSERT_EQ(process->Activities()->Count(), 1);
    EXPECT_EQ(At<SendFax>(process, 1)->Subject(), "b");
    ASSERT_EQ(prompts.errors.size(), 1u);
    EXPECT_EQ(prompts.errors[0].number, 457);
}

TEST_F(Activity_, SaveAsJoinsFolderAndFileWithOneBackslash) {
    SaveAs saveAs;
    saveAs.SetFolder("C:\\TEMP  ");
    saveAs.SetFile("a.doc");
    EXPECT_EQ(saveAs.FullName(), "C:\\TEMP\\a.doc");
    EXPECT_EQ(saveAs.Target().RawFolder(), "C:\\TEMP  ");
    saveAs.SetFolder("C:\\TEMP\\");
    EXPECT_EQ(saveAs.FullName(), "C:\\TEMP\\a.doc");
    EXPECT_EQ(saveAs.Target().RawFolder(), "C:\\TEMP\\");
    saveAs.SetFolder("   ");
    EXPECT_EQ(saveAs.Target().Folder(), "");
    EXPECT_EQ(saveAs.Target().RawFolder(), "   ");
    saveAs.SetFolder("C:\\TEMP\\");
    saveAs.SetFullName(TaggedValue("D:\\x.doc"));
    EXPECT_EQ(saveAs.FullName(), "D:\\x.doc");
}

TEST_F(Activity_, OverwriteModeIsWrittenOnlyOnceSetAndReadFromWordsOrNumbers) {
    auto process = Load(R"(<MailMerge OutputDocumentName="D"/><SaveAs InputDocumentName="D"/>)"
                        R"(<SaveAs InputDocumentName="D" OverwriteExistingFile=" no "/><SaveAs OverwriteExistingFile="1"/>)");
    EXPECT_EQ(At<SaveAs>(process, 2)->OverwriteExistingFile(), 0);
    EXPECT_EQ(Written(*At<SaveAs>(process, 2)), R"(<SaveAs InputDocumentName="D"/>)");
    EXPECT_EQ(At<SaveAs>(process, 3)->OverwriteExistingFile(), 2);
    EXPECT_EQ(At<SaveAs>(process, 4)->OverwriteExistingFile(), 1);
    EXPECT_EQ(Written(*At<SaveAs>(process, 4)), R"(<SaveAs OverwriteExistingFile="Confirm"/>)");
}

TEST_F(Activity_, InputDocumentResolvesOrRaisesItsNumber) {
    auto process = Load(R"(<MailMerge OutputDocumentName="D"/><SaveAs InputDocumentName="D"/><PrintOut InputDocumentName="X"/>)"
                        R"(<Convert InputDocumentName="X"/><SendFax InputDocumentName="X"/><SendMail InputDocumentName="X"/>)");
    EXPECT_EQ(At<SaveAs>(process, 2)->InputDocument(), process->Documents()->Find("D"));
    auto number = [](auto call) {
        try {
            call();
        } catch (const VbError& e) {
            return e.Number();
        }
        return 0;
    };
    EXPECT_EQ(number([&] { At<PrintOut>(process, 3)->InputDocument(); }), 30048);
    EXPECT_EQ(number([&] { At<Convert>(process, 4)->InputDocument(); }), 30074);
    EXPECT_EQ(number([&] { At<SendFax>(process, 5)->InputDocument(); }), 30050);
    EXPECT_EQ(At<SendMail>(process, 6)->InputDocument(), nullptr);  // no error of its own
}

TEST_F(Activity_, PrintOutFromAMailBodyWritesNeitherWordNorExcelArguments) {
    auto process = Load(R"x(<SendMail OutputDocumentName="Mail"/><PrintOut InputDocumentName="Mail" Copies="2" )x"
                        R"x(Range="1" Preview="True" Printer="(DEFAULT printer)"/>)x");
    auto printOut = At<PrintOut>(process, 2);
    EXPECT_EQ(printOut->InputDocumentKind(), 0);
    EXPECT_EQ(printOut->Argument(PrintOutArg::Range).Text(), "1");  // read, but lost on save
    EXPECT_EQ(Written(*printOut), R"(<PrintOut InputDocumentName="Mail" Copies="2"/>)");
}

TEST_F(Activity_, PrintOutTakesPrinterAndExcelArgumentsOnlyWhenGiven) {
    auto process = Load(R"(<PrintOut Printer="" Preview=""/>)");
    auto printOut = At<PrintOut>(process, 1);
    printOut->SetPrinter("Laser");
    XmlElements element;
    ASSERT_TRUE(element.Read(R"(<PrintOut Printer="" Preview=""/>)"));
    printOut->LoadElement(element.Root(), process);
    EXPECT_EQ(printOut->Printer(), "Laser");
    EXPECT_TRUE(printOut->Argument(PrintOutArg::Preview).IsEmpty());
}

TEST_F(Activity_, ConvertFindsItsConverterOnceAndKeepsItsTemporaryName) {
    auto process = Load(R"(<Convert File="only.pdf"/>)");
    auto convert = At<Convert>(process, 1);
    EXPECT_EQ(convert->Postscript2PDFConverter(), 2);
    const std::string first = convert->FullName();
    EXPECT_NE(first.find("vlk"), std::string::npos);
    EXPECT_EQ(first.find("only.pdf"), std::string::npos);
    EXPECT_EQ(convert->FullName(), first);
    EXPECT_NE(Written(*convert).find(R"(PostscriptToPDFConverter="2")"), std::string::npos);
}

TEST_F(Activity_, SendMailWritesAnotherDatasourceOnlyAndRecipientsAsOneText) {
    auto process = Load(R"(<SendMail To="a@x.org;b@y.org"/><SendMail DatasourceName="main"/><SendMail DatasourceName="Other"/>)");
    EXPECT_EQ(At<SendMail>(process, 1)->DatasourceName(), "Main");
    auto sendMail = At<SendMail>(process, 1);
    EXPECT_EQ(sendMail->To_()->ValueList(), "a@x.org;b@y.org");
    EXPECT_EQ(sendMail->CC(), nullptr);
    sendMail->SetRecipientsCC("boss@x.org");
    EXPECT_EQ(Written(*sendMail), R"(<SendMail To="a@x.org;b@y.org" CC="boss@x.org"/>)");
    EXPECT_EQ(Written(*At<SendMail>(process, 2)), R"(<SendMail DatasourceName="main"/>)");
    EXPECT_EQ(Written(*At<SendMail>(process, 3)), R"(<SendMail DatasourceName="Other"/>)");
}

TEST_F(Activity_, AttachmentsComeFromTheFirstAttributeAndDuplicatesAreReported) {
    auto process = Load(R"(<SendMail><Attachments><A Path="[Document:Letter]"/><B File="c.pdf" X="y"/>)"
                        R"(<C File="C.PDF"/></Attachments></SendMail>)");
    auto sendMail = At<SendMail>(process, 1);
    ASSERT_EQ(sendMail->Attachments()->Count(), 2);
    EXPECT_EQ(sendMail->Attachments()->Item(1)->name, "[Document:Letter]");
    ASSERT_EQ(prompts.errors.size(), 1u);
    EXPECT_EQ(prompts.errors[0].number, 457);
    EXPECT_EQ(Written(*sendMail), R"(<SendMail><Attachments><Attachment File="[Document:Letter]"/>)"
                                  R"(<Attachment File="c.pdf"/></Attachments></SendMail>)");
}

TEST_F(Activity_, AddRecordFieldValuesKeepQuotesAndReportDuplicates) {
    auto process = Load(R"(<AddRecord TableName="Log" DatasourceName="Other"><FieldValues>)"
                        R"(<FieldValue Name="Note" Value="say &amp;quot;hi&amp;quot;"/><FieldValue Name="note" Value="2"/>)"
                        R"(</FieldValues></AddRecord>)");
    auto addRecord = At<AddRecord>(process, 1);
    ASSERT_EQ(addRecord->FieldValues()->Count(), 1);
    EXPECT_EQ(addRecord->FieldValues()->Item(1)->value, "say \"hi\"");
    EXPECT_EQ(prompts.errors.size(), 1u);
    // DatasourceName stands behind the field values in the writer's calls; in
    // the text it is an attribute like any other.
    EXPECT_EQ(Written(*addRecord), R"(<AddRecord TableName="Log" DatasourceName="Other"><FieldValues>)"
                                   R"(<FieldValue Name="Note" Value="say &amp;quot;hi&amp;quot;"/></FieldValues></AddRecord>)");
    EXPECT_EQ(EncloseInBrackets("  Order ID "), "[Order ID]");
    EXPECT_EQ(EncloseInBrackets("[Done]"), "[Done]");
}

TEST_F(Activity_, AnActivityAddedToALoadedProcessKnowsItsProcess) {
    auto process = Load("");
    auto sendMail = std::make_shared<SendMail>();
    EXPECT_TRUE(process->Activities()->Add(sendMail));
    EXPECT_EQ(sendMail->ParentProcess(), process);
    EXPECT_EQ(sendMail->DatasourceName(), "Main");
    EXPECT_NE(ProcessFragmentXml(*process).find("<SendMail/>"), std::string::npos);
    // So does one added before its process belongs to a file.
    auto fresh = Process::Create();
    auto sendFax = std::make_shared<SendFax>();
    fresh->Activities()->Add(sendFax);
    EXPECT_EQ(sendFax->ParentProcess(), fresh);
}

}  // namespace
}  // namespace flowloom::test
