// The activity sheets: which rows each application or variant gets, their
// defaults, and what they show of the model.
#include "SheetFixture.h"

#include "model/AddRecord.h"
#include "model/Convert.h"
#include "model/PrintOut.h"
#include "model/SaveAs.h"
#include "model/SendMail.h"
#include "model/VisitActivity.h"
#include "support/Printers.h"
#include "support/VbStrings.h"

namespace flowloom::test {
namespace {

// The machine's printers, as the test names them.
class TestPrinters : public PrinterSource {
public:
    bool Enumerate(std::vector<std::string>& names) override {
        names = {"Laser", "Plotter"};
        return true;
    }
};

class ActivitySheets : public SheetFixture {
protected:
    std::string Keys() const {
        std::vector<std::string> keys;
        for (std::int32_t i = 1; i <= rows.Count(); ++i) keys.push_back(rows.Item(i).Tag().Text());
        return vb::Join(keys, ",");
    }
    std::string List(std::int32_t index) const { return vb::Join(rows.Item(index).ListItems().value(), ";"); }

    TestPrinters printers;
    ScopedPrinterSource printerScope{printers};
};

// Producers of documents for the SaveAs and PrintOut tests, one per
// application, and the activities that take them.
const char* const kProducers =
    R"(<MailMerge InvokedApplication="Microsoft Word" OutputDocumentName="W"/>)"
    R"(<MailMerge InvokedApplication="Microsoft Excel" OutputDocumentName="X"/>)"
    R"(<SendMail OutputDocumentName="M"/>)"
    R"(<MailMerge InvokedApplication="HTML" OutputDocumentName="H"/>)";
const char* const kDocuments =
    R"(<Documents><Document Name="W"/><Document Name="X"/><Document Name="M"/><Document Name="H"/></Documents>)";

std::string ProcessWith(const std::string& activity) {
    return std::string(R"(<Process Name="P"><Activities>)") + kProducers + activity + "</Activities>" + kDocuments +
           "</Process>";
}

TEST_F(ActivitySheets, MailMergeRowsFollowTheApplication) {
    UseProcess(R"(<Process Name="P"><Activities>
        <MailMerge InvokedApplication="Microsoft Word" OutputDocumentName="Letter" Template="a.dot"
                   MailMergeType="2" PrecededBy="Cover" Description="Letters"/>
        <MailMerge InvokedApplication="Microsoft Excel" OutputDocumentName="Sheet" MailMergeType="5"/>
        <MailMerge InvokedApplication="Text" OutputDocumentName="Note" MailMergeType="1"/>
        <MailMerge OutputDocumentName="Cover"/></Activities>
        <Datasources><Datasource Name="Orders"/></Datasources>
        <Documents><Document Name="Letter"/><Document Name="Sheet"/><Document Name="Cover"/></Documents></Process>)",
               1);
    Build(10);
    EXPECT_EQ(rows.Count(), 11);
    EXPECT_EQ(Value(1), "Letters");
    EXPECT_EQ(Value(3), "a.dot");
    const char nul = '\0';
    EXPECT_EQ(rows.Item(3).DialogFilter(), std::string("Microsoft Word Templates (*.dot, *.dotx, *.dotm)") + nul +
                                               "*.dot;*.dotx;*.dotm" + nul + "All Files (*.*)" + nul + "*.*" + nul);
    EXPECT_EQ(List(4), "Orders");
    EXPECT_EQ(Value(8), "2 - Labels");
    EXPECT_EQ(Value(10), "Cover");
    // Its own output is not offered before or after it.
    EXPECT_EQ(List(10), ";Sheet;Cover;Note");

    // Excel lacks labels and envelopes, yet a stored type shows its label.
    BuildFor(10, 2);
    EXPECT_EQ(rows.Count(), 9);
    EXPECT_EQ(List(8), "0 - Document;1 - Listing;3 - Email;4 - Directory");
    EXPECT_EQ(Value(8), "5 - Envelope");
    EXPECT_EQ(Value(3), "");

    BuildFor(10, 3);
    EXPECT_EQ(List(8), "0 - Document");
    EXPECT_EQ(Value(8), "1 - Listing");

    // No application named: Word, which the model then keeps.
    BuildFor(10, 4);
    EXPECT_EQ(Value(2), "Microsoft Word");
    EXPECT_EQ(rows.Count(), 11);
}

TEST_F(ActivitySheets, SaveAsRowsFollowTheProducerOfItsInput) {
    UseProcess(ProcessWith(R"(<SaveAs InputDocumentName="W" FileFormat="6" AddToRecentFiles="False" Password="pw"
                                      LineEnding="1" OverwriteExistingFile="No"/>
                              <SaveAs InputDocumentName="X" FileFormat="39" WritePassword="w" AccessMode="3"/>
                              <SaveAs InputDocumentName="M" FileFormat="2"/>
                              <SaveAs InputDocumentName="H" FileFormat="5"/>
                              <SaveAs InputDocumentName="Gone"/>
                              <SaveAs/>)"),
               5);
    BuildFor(11, 5);
    EXPECT_EQ(rows.Count(), 20);
    EXPECT_EQ(List(2), ";W;X;M;H");
    EXPECT_EQ(Value(5), "2 - No overwrite");
    EXPECT_EQ(Value(6), "6 - wdFormatRTF");
    EXPECT_EQ(Value(7), "False");  // what the grid shows for a truth value the file does not give
    EXPECT_EQ(Value(8), "pw");
    EXPECT_EQ(Value(9), "False");
    EXPECT_EQ(Value(19), "1 - wdCROnly");

    BuildFor(11, 6);
    EXPECT_EQ(rows.Count(), 16);
    EXPECT_EQ(sheets::HelpKey(11, rows.Item(8)), "SaveAs.WriteResPassword");
    EXPECT_EQ(Value(6), "Excel5");  // Excel5 and Excel7 share 39: the first shows
    EXPECT_EQ(Value(8), "w");
    EXPECT_EQ(Value(11), "3 - xlExclusive");
    EXPECT_EQ(Value(12), "1 - xlUserResolution");
    EXPECT_EQ(rows.Item(6).ListItems()->size(), 50u);

    BuildFor(11, 7);
    EXPECT_EQ(rows.Count(), 6);
    EXPECT_EQ(List(6), "HTML;Text Only;Message Format");
    EXPECT_EQ(Value(6), "Message Format");

    // A format beyond the list goes back to the first, in the model as well.
    BuildFor(11, 8);
    EXPECT_EQ(Value(6), "HTML");
    EXPECT_EQ(ActivityAs<SaveAs>(host.activity.get())->Argument(SaveAsArg::FileFormat).Text(), "0");

    // A SaveAs without an input goes by the application of the one shown before.
    BuildFor(11, 10);
    EXPECT_EQ(List(6), "HTML");

    // A name no document has is dropped on selection.
    BuildFor(11, 9);
    EXPECT_EQ(ActivityAs<SaveAs>(host.activity.get())->InputDocumentName(), "");
    EXPECT_EQ(Value(2), "");
    EXPECT_EQ(List(6), "");
}

TEST_F(ActivitySheets, ExcelFormatsShowByTheirCode) {
    UseProcess(ProcessWith(R"(<SaveAs InputDocumentName="X" FileFormat="-4143"/>
                              <SaveAs InputDocumentName="X" FileFormat="6"/>
                              <SaveAs InputDocumentName="X" FileFormat="46"/>
                              <SaveAs InputDocumentName="X" FileFormat="0"/>)"),
               5);
    const std::vector<std::string> shown = {"Workbook normal", "CSV", "XML Spreadsheet", "Workbook normal"};
    for (std::int32_t i = 0; i < 4; ++i) {
        EXPECT_EQ(BuildFor(11, 5 + i).Item(6).value(), shown[static_cast<std::size_t>(i)]);
    }
    EXPECT_TRUE(prompts.errors.empty());
}

TEST_F(ActivitySheets, PrintOutRowsFollowWordOrExcel) {
    UseProcess(ProcessWith(R"(<PrintOut InputDocumentName="W" Printer="Plotter" Range="3" Copies="2" Pages="1-2"/>
                              <PrintOut InputDocumentName="X" Printer="Elsewhere" Preview="True"/>
                              <PrintOut InputDocumentName="M"/>
                              <PrintOut/>)"),
               5);
    Build(12);
    EXPECT_EQ(rows.Count(), 21);
    EXPECT_EQ(List(3), "(Default printer);Laser;Plotter");
    EXPECT_EQ(Value(3), "Plotter");
    EXPECT_EQ(Value(6), "3 - wdPrintFromTo");
    EXPECT_EQ(Value(11), "2");
    EXPECT_EQ(Value(12), "1-2");
    EXPECT_EQ(Value(13), "0 - wdPrintAllPages");

    // A printer this machine lacks shows as the default; the model keeps it.
    BuildFor(12, 6);
    EXPECT_EQ(rows.Count(), 11);
    EXPECT_EQ(Value(3), "(Default printer)");
    EXPECT_EQ(ActivityAs<PrintOut>(host.activity.get())->Printer(), "Elsewhere");
    EXPECT_EQ(Value(6), "1");  // one copy unless the file says otherwise
    EXPECT_EQ(Value(7), "True");

    // Only Word and Excel count for a PrintOut: a mail body has no rows of its own.
    for (std::int32_t position : {7, 8}) {
        EXPECT_EQ(BuildFor(12, position).Count(), 3);
    }
}

TEST_F(ActivitySheets, ConvertTakesPdfAndShowsItsRows) {
    UseProcess(R"(<Process Name="P"><Activities><Convert OutputDocumentName="Pdf" Folder="C:\out"/>
        <Convert OutputConvertFormat="1" PDFConvertingMethod="2" PostscriptToPDFConverter="1"/></Activities></Process>)",
               1);
    Build(13);
    EXPECT_EQ(ActivityAs<Convert>(host.activity.get())->OutputFileFormat(), 1);  // taken on selection
    EXPECT_EQ(Keys(), "Description,InputDocumentName,OutputDocumentName,OutputConvertFormat,Folder,File,Show,,"
                      "PDFConvertingMethod");
    EXPECT_EQ(rows.Item(8).Caption(), "PDF Converting Properties");
    EXPECT_EQ(rows.Item(8).ItemType(), grid::ExPropHeader);
    EXPECT_EQ(rows.Item(8).BackColor(), 0xFFC0C0u);
    EXPECT_EQ(Value(4), "1 - PDF");
    EXPECT_EQ(Value(5), "C:\\out");
    EXPECT_EQ(Value(9), "0 - Default");

    BuildFor(13, 2);
    EXPECT_EQ(rows.Count(), 10);
    EXPECT_EQ(Value(9), "2 - PostScript to PDF");
    EXPECT_EQ(Value(10), "1 - Acrobat Distiller");
}

TEST_F(ActivitySheets, SendMailShowsTheKindOfBodyAndJoinsAttachments) {
    UseProcess(R"(<Process Name="P"><Activities>
        <SendMail To="a@x" CC="b@x" Subject="Hi" SendMethod="2" MailApplication="1" SMTPServerPort="25"
                  Body="&lt;HTML&gt;&lt;body/&gt;&lt;/html&gt;">
          <Attachments><Attachment File="one.pdf"/><Attachment File="two.pdf"/></Attachments></SendMail>
        <SendMail Body="[Field:Letter]"/><SendMail Body="Dear [Field:Name]"/><SendMail/></Activities></Process>)",
               1);
    Build(14);
    EXPECT_EQ(rows.Count(), 18);
    EXPECT_EQ(Value(5), "a@x");
    EXPECT_EQ(Value(6), "b@x");
    EXPECT_EQ(Value(9), "(HTML)");
    EXPECT_EQ(Value(10), "2 - Draft");
    EXPECT_EQ(Value(11), "1 - Outlook");
    EXPECT_EQ(Value(13), "25");
    EXPECT_EQ(Value(18), "one.pdf\r\ntwo.pdf");
    EXPECT_EQ(sheets::QueryCustomDataText(rows.Item(18), host), "(Attachments)");

    const std::vector<std::string> bodies = {"[Field:Letter]", "(Plain Text)", ""};
    for (std::int32_t i = 0; i < 3; ++i) {
        EXPECT_EQ(BuildFor(14, 2 + i).Item(9).value(), bodies[static_cast<std::size_t>(i)]);
    }
}

TEST_F(ActivitySheets, DeleteOnTheBodyRowEmptiesTheBody) {
    UseProcess(R"(<Process Name="P"><Activities><SendMail Body="Text" Subject="S"/></Activities></Process>)", 1);
    Build(14);
    const auto* mail = ActivityAs<SendMail>(host.activity.get());
    sheets::KeyDownEdit(14, 46, host, &rows.Item(8));  // Subject: nothing special
    sheets::KeyDownEdit(14, 65, host, &rows.Item(9));  // another key
    EXPECT_EQ(mail->Body(), "Text");
    sheets::KeyDownEdit(14, 46, host, &rows.Item(9));
    EXPECT_EQ(mail->Body(), "");
    EXPECT_EQ(Value(9), "");
    EXPECT_EQ(mail->Subject(), "S");
}

TEST_F(ActivitySheets, AddRecordRows) {
    AddDatabase("Northwind");
    AddDatabase("Archive");
    host.tableFields["Log"] = {"OrderID", "Channel", "Note"};
    UseProcess(R"(<Process Name="P"><Activities><AddRecord TableName="Log" DatasourceName="Orders"><FieldValues>
          <FieldValue Name="channel" Value="Mail"/><FieldValue Name="Other" Value="x"/></FieldValues></AddRecord>
        <AddRecord Database="Archive"><FieldValues><FieldValue Name="A" Value="1"/></FieldValues></AddRecord>
        </Activities></Process>)",
               1);
    // Without a database an AddRecord takes the file's first one.
    Build(16);
    EXPECT_EQ(Keys(), "Description,DatasourceName,Database,TableName,FieldValues");
    EXPECT_EQ(ActivityAs<AddRecord>(host.activity.get())->Database(), "Northwind");
    EXPECT_EQ(Value(3), "Northwind");
    EXPECT_EQ(List(3), "Northwind;Archive");
    EXPECT_EQ(host.loads, std::vector<std::string>{"Northwind"});
    // Each field of the table has a line; a value of a field it lacks is not shown.
    EXPECT_EQ(Value(5), "OrderID\r\nchannel = Mail\r\nNote");

    BuildFor(16, 2);
    EXPECT_EQ(Value(3), "Archive");
    EXPECT_EQ(Value(5), "A = 1");
}

}  // namespace
}  // namespace flowloom::test
