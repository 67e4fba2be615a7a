// What an edit committed in a sheet does to the model, the rows and the
// captions, and which edits are refused.
#include "SheetFixture.h"

#include "model/AddRecord.h"
#include "model/Convert.h"
#include "model/Documents.h"
#include "model/FieldValue.h"
#include "model/MailMerge.h"
#include "model/PrintOut.h"
#include "model/SaveAs.h"
#include "model/SendMail.h"
#include "model/VisitActivity.h"
#include "model/xml/CProcessesXMLDoc.h"

namespace flowloom::test {
namespace {

class ValueChange : public SheetFixture {
protected:
    template <typename T>
    T& Selected() {
        return *ActivityAs<T>(host.activity.get());
    }
    // The element the file would hold for the process.
    std::string Xml() {
        pugi::xml_document document;
        CProcessesXMLDoc().ProcessFragment(*host.process, document.append_child("Processes"));
        std::ostringstream text;
        document.first_child().first_child().print(text, "", pugi::format_raw);
        return text.str();
    }
    std::string ReportedProcedure() const { return prompts.errors.empty() ? "" : prompts.errors.back().procedure; }
};

TEST_F(ValueChange, ProcessRowsAndTheRename) {
    host.process->SetName("Letters");
    Build(1);
    // An empty name is refused and the old one stands in the row again.
    std::string text;
    EXPECT_FALSE(sheets::ValueChanged("1", host, rows, rows.Item(1), text));
    EXPECT_EQ(text, "Letters");
    EXPECT_EQ(host.messages, std::vector<std::string>{"Incorrect name of Process."});

    // The model takes the name as typed before the window adds or lists it.
    host.renameAccepted = false;
    EXPECT_FALSE(Edit(1, 1, " Mail "));
    EXPECT_EQ(host.process->name(), " Mail ");
    EXPECT_EQ(host.renamed, std::vector<std::string>{" Mail "});
    EXPECT_TRUE(Edit(1, 1, " Mail "));  // the same name again is no rename
    EXPECT_EQ(host.renamed.size(), 1u);

    EXPECT_TRUE(Edit(1, 2, "0 - Current Record"));
    EXPECT_EQ(host.process->ProcessRecords(), 0);
    EXPECT_TRUE(Edit(1, 2, "anything else"));
    EXPECT_EQ(host.process->ProcessRecords(), 1);
    EXPECT_TRUE(Edit(1, 3, "Orders "));  // the process's texts keep their blanks
    EXPECT_EQ(host.process->MainDataSourceName(), "Orders ");
    EXPECT_TRUE(Edit(1, 4, "False"));
    EXPECT_FALSE(host.process->AbortOnError());
    EXPECT_TRUE(Edit(1, 5, "0"));
    EXPECT_FALSE(host.process->OnErrorNotifyUser());
    EXPECT_TRUE(Edit(1, 8, "Log"));
    EXPECT_EQ(host.process->LogDatasourceName(), "Log");

    // A text that is no truth value is reported under the handler and refused.
    EXPECT_FALSE(Edit(1, 4, "maybe"));
    EXPECT_EQ(ReportedProcedure(), "ProcessChange");
    EXPECT_EQ(prompts.errors.back().number, 13);
    EXPECT_EQ(Value(4), "False");
}

TEST_F(ValueChange, FieldValuesAreReadBackFromTheirLines) {
    Build(1);
    EXPECT_TRUE(Edit(1, 7, "City = Paris\r\nZip =\r\nno equals sign\r\n a = b = c "));
    const auto& values = *host.process->FieldValues();
    ASSERT_EQ(values.Count(), 2);
    EXPECT_EQ(values.Item(1)->field, "City");
    EXPECT_EQ(values.Item(1)->value, "Paris");
    EXPECT_EQ(values.Item(2)->value, "b");  // what follows a second "=" is lost

    // Shown again, the values come back as the same lines.
    Build(1);
    EXPECT_EQ(Value(7), "City = Paris\r\na = b");
    EXPECT_TRUE(Edit(1, 7, Value(7)));
    EXPECT_EQ(host.process->FieldValues()->Count(), 2);

    // A field twice is the collection's error; the values before it stay.
    EXPECT_FALSE(Edit(1, 7, "A = 1\r\na = 2"));
    EXPECT_EQ(prompts.errors.back().number, 457);
    EXPECT_EQ(host.process->FieldValues()->Count(), 1);
}

TEST_F(ValueChange, DatabaseAndDatasourceNamesAreCellCaptions) {
    host.database = AddDatabase("Northwind");
    Build(6);
    EXPECT_TRUE(Edit(6, 1, "  Sales  "));
    EXPECT_EQ(host.database->name, "Sales");
    EXPECT_TRUE(Edit(6, 3, "C:\\db.mdb"));
    EXPECT_EQ(host.database->Location, "C:\\db.mdb");

    host.datasource = AddDatasource("Orders");
    host.datasource->Type_ = "Table";
    host.datasource->ObjectName = "tblOrders";
    Build(8);
    EXPECT_TRUE(Edit(8, 1, "ORDERS"));  // a change of case only is no rename
    EXPECT_EQ(host.datasource->name(), "Orders");
    EXPECT_TRUE(Edit(8, 1, "Open orders"));
    EXPECT_EQ(host.captions, (std::vector<std::string>{"Sales", "Open orders"}));

    EXPECT_TRUE(Edit(8, 2, "Northwind"));
    EXPECT_EQ(host.loads.back(), "Northwind");
    // Another type empties the object name on show; the model keeps it for now.
    EXPECT_TRUE(Edit(8, 3, "Query"));
    EXPECT_EQ(Value(4), "");
    EXPECT_EQ(host.datasource->ObjectName, "tblOrders");
    EXPECT_TRUE(Edit(8, 4, "qryOpen"));
    EXPECT_EQ(host.datasource->ObjectName, "qryOpen");
}

TEST_F(ValueChange, ActivityCaptionsFollowTheDescription) {
    UseProcess(R"(<Process Name="P"><Activities><SendFax/><AddRecord/></Activities></Process>)", 1);
    Build(15);
    EXPECT_TRUE(Edit(15, 1, " Fax it "));
    EXPECT_EQ(host.activity->Description(), "Fax it");
    EXPECT_TRUE(Edit(15, 1, ""));
    EXPECT_TRUE(Edit(15, 3, "[Fax]"));
    BuildFor(16, 2);
    EXPECT_TRUE(Edit(16, 1, "  "));  // no different from the empty description: no caption
    EXPECT_TRUE(Edit(16, 1, "Log"));
    EXPECT_EQ(host.captions, (std::vector<std::string>{"Fax it", "Send Fax", "Log"}));

    // An edit meant for another kind of activity changes nothing.
    Build(15);
    EXPECT_TRUE(Edit(15, 3, "[Other]"));
    EXPECT_EQ(Xml().find("Other"), std::string::npos);
}

TEST_F(ValueChange, MailMergeApplicationChangesTheRows) {
    UseProcess(R"(<Process Name="P"><Activities>
        <MailMerge InvokedApplication="Microsoft Excel" OutputDocumentName="Sheet" Template="a.xlt" MailMergeType="4"/>
        <MailMerge OutputDocumentName="Other"/></Activities></Process>)",
               1);
    auto& merge = Selected<MailMerge>();
    Build(10);
    // To Word from elsewhere: the document rows come twice until the next selection.
    EXPECT_TRUE(Edit(10, 2, "Microsoft Word"));
    EXPECT_EQ(rows.Count(), 13);
    EXPECT_EQ(rows.Item(13).Tag().Text(), "SucceededBy");
    EXPECT_EQ(merge.InvokedApplication(), "Microsoft Word");
    EXPECT_EQ(Value(3), "");  // the template on show goes; the model keeps it
    EXPECT_EQ(merge.Template(), "a.xlt");
    EXPECT_EQ(Value(8), "4 - Directory");
    EXPECT_TRUE(Edit(10, 12, "ignored"));
    EXPECT_TRUE(Edit(10, 10, "Other"));
    EXPECT_EQ(merge.PrecededBy(), "Other");

    // Away from Word, the documents before and after go, rows and members.
    EXPECT_TRUE(Edit(10, 2, "HTML"));
    EXPECT_EQ(rows.Count(), 11);
    EXPECT_EQ(merge.PrecededBy(), "");
    EXPECT_EQ(Value(8), "0 - Document");  // HTML has no directories
    EXPECT_TRUE(Edit(10, 2, "HTML"));     // the same application again changes nothing
    EXPECT_EQ(rows.Count(), 11);

    EXPECT_TRUE(Edit(10, 8, "1 - Listing"));
    EXPECT_EQ(merge.MailMergeType(), 1);
    EXPECT_TRUE(Edit(10, 7, "True"));
    EXPECT_TRUE(merge.ShowDocument());
    EXPECT_TRUE(Edit(10, 9, "False"));
    EXPECT_FALSE(merge.InsertPagebreak());
    EXPECT_TRUE(Edit(10, 4, " Orders "));
    EXPECT_EQ(merge.DatasourceName(), "Orders");
    // Selected again, a Word merge has the document rows once.
    EXPECT_TRUE(Edit(10, 2, "Microsoft Word"));
    EXPECT_EQ(Build(10).Count(), 11);
}

TEST_F(ValueChange, AnOutputNameThatExistsIsRefused) {
    UseProcess(R"(<Process Name="P"><Activities><MailMerge OutputDocumentName="Letter"/>
        <Convert OutputDocumentName="Pdf"/><SendMail OutputDocumentName="Mail"/></Activities>
        <Documents><Document Name="Letter"/><Document Name="Pdf"/><Document Name="Mail"/></Documents></Process>)",
               1);
    Build(10);
    EXPECT_FALSE(Edit(10, 6, "pdf"));
    EXPECT_EQ(prompts.errors.back().number, 30075);
    EXPECT_EQ(prompts.errors.back().description, "Document 'pdf' already exists.");
    EXPECT_EQ(ReportedProcedure(), "MailMergeChange");
    EXPECT_EQ(Selected<MailMerge>().OutputDocumentName(), "Letter");
    EXPECT_TRUE(Edit(10, 6, "Letter 2"));
    EXPECT_TRUE(host.process->Documents()->Contains("Letter 2"));
    EXPECT_FALSE(host.process->Documents()->Contains("Letter"));

    BuildFor(13, 2);
    EXPECT_FALSE(Edit(13, 3, "Mail"));
    EXPECT_EQ(ReportedProcedure(), "ConvertChange");
    BuildFor(14, 3);
    EXPECT_FALSE(Edit(14, 3, "Letter 2"));
    EXPECT_EQ(ReportedProcedure(), "SendMailChange");
}

TEST_F(ValueChange, SaveAsFormatsOverwriteAndApplicationRows) {
    UseProcess(R"(<Process Name="P"><Activities>
        <MailMerge InvokedApplication="Microsoft Word" OutputDocumentName="W"/>
        <MailMerge InvokedApplication="Microsoft Excel" OutputDocumentName="X"/>
        <SaveAs InputDocumentName="W" FileFormat="6" OverwriteExistingFile="No"/></Activities>
        <Documents><Document Name="W"/><Document Name="X"/></Documents></Process>)",
               3);
    auto& save = Selected<SaveAs>();
    const auto format = [&] { return save.Argument(SaveAsArg::FileFormat).Text(); };
    Build(11);
    EXPECT_TRUE(Edit(11, 6, "11 - wdFormatXML"));
    EXPECT_EQ(format(), "11");
    EXPECT_TRUE(Edit(11, 6, "12 - wdFormatXMLDocument"));  // newer Word formats are not stored
    EXPECT_EQ(format(), "11");
    EXPECT_TRUE(Edit(11, 9, "false"));
    EXPECT_EQ(save.Argument(SaveAsArg::AddToRecentFiles).Text(), "False");
    EXPECT_TRUE(Edit(11, 19, "1 - wdCROnly"));
    EXPECT_EQ(save.Argument(SaveAsArg::LineEnding).Text(), "1");
    EXPECT_TRUE(Edit(11, 19, "2 - no such"));
    EXPECT_EQ(save.Argument(SaveAsArg::LineEnding).Text(), "1");
    EXPECT_TRUE(Edit(11, 16, " utf-8 "));
    EXPECT_EQ(save.Argument(SaveAsArg::Encoding).Text(), "utf-8");

    // Setting the default of the overwrite mode leaves it out of the file.
    EXPECT_TRUE(Edit(11, 5, "1 - Overwrite without confirmation"));
    EXPECT_NE(Xml().find("OverwriteExistingFile=\"Confirm\""), std::string::npos);
    EXPECT_TRUE(Edit(11, 5, "0 - Ask for confirmation"));
    EXPECT_EQ(Xml().find("OverwriteExistingFile"), std::string::npos);

    // Another input document rebuilds the sheet for its application and
    // selects its row again.
    EXPECT_TRUE(Edit(11, 2, "X"));
    EXPECT_EQ(host.rebuilt, std::vector<int>{11});
    EXPECT_EQ(host.selectedRow, 2);
    EXPECT_EQ(rows.Count(), 16);
    EXPECT_TRUE(Edit(11, 6, "Workbook normal"));
    EXPECT_EQ(format(), "0");
    EXPECT_TRUE(Edit(11, 6, "Excel7"));
    EXPECT_EQ(format(), "39");
    EXPECT_TRUE(Edit(11, 11, "2 - xlShared"));
    EXPECT_EQ(save.Argument(SaveAsArg::AccessMode).Text(), "2");
    EXPECT_TRUE(Edit(11, 8, "secret"));
    EXPECT_EQ(save.Argument(SaveAsArg::WritePassword).Text(), "secret");
    EXPECT_TRUE(Edit(11, 16, "True"));
    EXPECT_EQ(save.Argument(SaveAsArg::Local_).Text(), "True");
}

TEST_F(ValueChange, PrintOutCopiesPrinterAndRows) {
    UseProcess(R"(<Process Name="P"><Activities>
        <MailMerge InvokedApplication="Microsoft Excel" OutputDocumentName="X"/>
        <PrintOut InputDocumentName="X" Printer="Laser" Copies="3"/></Activities>
        <Documents><Document Name="X"/></Documents></Process>)",
               2);
    auto& print = Selected<PrintOut>();
    Build(12);
    EXPECT_TRUE(Edit(12, 3, "(Default printer)"));
    EXPECT_EQ(print.Printer(), "");
    EXPECT_TRUE(Edit(12, 3, "Plotter"));
    EXPECT_EQ(print.Printer(), "Plotter");
    // One copy is what printing does anyway: the file leaves it out.
    EXPECT_TRUE(Edit(12, 6, "1"));
    EXPECT_EQ(Xml().find("Copies"), std::string::npos);
    EXPECT_TRUE(Edit(12, 6, "4"));
    EXPECT_EQ(print.Argument(PrintOutArg::Copies).Text(), "4");
    EXPECT_FALSE(Edit(12, 6, "four"));
    EXPECT_EQ(ReportedProcedure(), "PrintOutChange");
    EXPECT_TRUE(Edit(12, 7, "True"));  // Excel's row 7 is Preview
    EXPECT_EQ(print.Argument(PrintOutArg::Preview).Text(), "True");

    EXPECT_TRUE(Edit(12, 2, ""));
    EXPECT_EQ(host.rebuilt, std::vector<int>{12});
    EXPECT_EQ(rows.Count(), 3);
}

TEST_F(ValueChange, ConvertPdfRowsComeAndGo) {
    UseProcess(R"(<Process Name="P"><Activities><Convert/></Activities></Process>)", 1);
    auto& convert = Selected<Convert>();
    Build(13);
    EXPECT_TRUE(Edit(13, 9, "2 - PostScript to PDF"));
    EXPECT_EQ(convert.PDFConvertingMethod(), 2);
    EXPECT_EQ(rows.Count(), 10);
    EXPECT_TRUE(Edit(13, 10, "1 - Acrobat Distiller"));
    EXPECT_EQ(convert.Postscript2PDFConverter(), 1);
    EXPECT_TRUE(Edit(13, 9, "1 - Microsoft Save as PDF"));
    EXPECT_EQ(rows.Count(), 9);

    // Any other format than PDF takes the PDF rows away; PDF brings them back.
    EXPECT_TRUE(Edit(13, 4, "2 - Word"));
    EXPECT_EQ(convert.OutputFileFormat(), 0);
    EXPECT_EQ(rows.Count(), 7);
    EXPECT_TRUE(Edit(13, 4, "1 - PDF"));
    EXPECT_EQ(convert.OutputFileFormat(), 1);
    EXPECT_EQ(rows.Count(), 9);
    EXPECT_TRUE(Edit(13, 7, "True"));
    EXPECT_TRUE(convert.ShowDocument());
}

TEST_F(ValueChange, SendMailRecipientsListsAndAttachments) {
    UseProcess(R"(<Process Name="P"><Activities><SendMail/></Activities></Process>)", 1);
    auto& mail = Selected<SendMail>();
    Build(14);
    EXPECT_TRUE(Edit(14, 5, "a@x; b@x"));
    EXPECT_EQ(mail.RecipientsToText(), "a@x; b@x");
    EXPECT_TRUE(Edit(14, 7, "c@x"));
    EXPECT_EQ(mail.RecipientsBCCText(), "c@x");
    EXPECT_TRUE(Edit(14, 10, "1 - Display"));
    EXPECT_EQ(mail.SendMethod(), 1);
    EXPECT_TRUE(Edit(14, 11, "3 - Groupwise"));
    EXPECT_EQ(mail.MailApplication(), 3);
    EXPECT_TRUE(Edit(14, 13, "587"));
    EXPECT_EQ(mail.SMTPServerPort, "587");
    EXPECT_TRUE(Edit(14, 17, "utf-8"));
    EXPECT_EQ(mail.Charset, "utf-8");
    EXPECT_TRUE(Edit(14, 18, "one.pdf\r\n   \r\n two.pdf\r\n"));
    ASSERT_EQ(mail.Attachments()->Count(), 2);
    EXPECT_EQ(mail.Attachments()->Item(2)->name, " two.pdf");  // the line as it stands
    EXPECT_TRUE(Edit(14, 9, "(HTML)"));                         // the body has its own tool
    EXPECT_EQ(mail.Body(), "");
}

TEST_F(ValueChange, AddRecordTableStartsTheValuesAgain) {
    host.tableFields["Log"] = {"OrderID", "Channel"};
    UseProcess(R"(<Process Name="P"><Activities><AddRecord Database="Northwind" TableName="Old">
        <FieldValues><FieldValue Name="A" Value="1"/></FieldValues></AddRecord></Activities></Process>)",
               1);
    auto& add = Selected<AddRecord>();
    Build(16);
    EXPECT_TRUE(Edit(16, 4, "Log"));
    EXPECT_EQ(add.Tablename(), "Log");
    EXPECT_EQ(add.FieldValues()->Count(), 0);
    EXPECT_EQ(Value(5), "OrderID\r\nChannel");
    EXPECT_TRUE(Edit(16, 5, "OrderID = [OrderID]\r\nChannel"));
    ASSERT_EQ(add.FieldValues()->Count(), 1);
    EXPECT_EQ(add.FieldValues()->Item(1)->value, "[OrderID]");

    host.loads.clear();
    EXPECT_TRUE(Edit(16, 3, "Northwind"));  // no change: nothing is loaded
    EXPECT_TRUE(Edit(16, 3, "Archive"));
    EXPECT_EQ(host.loads, std::vector<std::string>{"Archive"});
    EXPECT_TRUE(Edit(16, 2, "Orders"));
    EXPECT_EQ(add.DatasourceName(), "Orders");
}

TEST_F(ValueChange, OnlyTheSheetsTagChoosesAHandler) {
    host.process->SetName("Letters");
    Build(1);
    std::string text = "Other";
    EXPECT_TRUE(sheets::ValueChanged("01", host, rows, rows.Item(1), text));
    EXPECT_TRUE(sheets::ValueChanged("", host, rows, rows.Item(1), text));
    EXPECT_EQ(host.process->name(), "Letters");
}

}  // namespace
}  // namespace flowloom::test
