#include "SyntheticFile.h"

#include <string_view>

namespace flowloom::bench {

namespace {

void Attr(std::string& out, std::string_view name, std::string_view value) {
    out += ' ';
    out += name;
    out += "=\"";
    out += value;
    out += '"';
}

void Process(std::string& out, std::size_t n) {
    const std::string id = std::to_string(n);
    const std::string main = "Customers" + id;
    const std::string letter = "Letter " + id;
    const std::string body = "Body " + id;
    out += "<Process";
    Attr(out, "Name", "Process " + id);
    Attr(out, "MainDatasourceName", main);
    Attr(out, "ProcessRecords", n % 3 == 0 ? "Current" : n % 3 == 1 ? "All" : "Selected");
    if (n % 5 == 0) Attr(out, "AbortOnError", "0");
    out += "><Activities>";
    out += "<MailMerge";
    Attr(out, "InvokedApplication", "Microsoft Word");
    Attr(out, "OutputDocumentName", letter);
    Attr(out, "Template", "C:\\Templates\\letter" + id + ".dot");
    Attr(out, "ShowDocument", "0");
    Attr(out, "DatasourceName", main);
    Attr(out, "Description", "Merge the letters of batch " + id);
    out += "/><SaveAs";
    Attr(out, "Folder", "C:\\Letters\\" + id);
    Attr(out, "File", "[CustomerID].doc");
    Attr(out, "InputDocumentName", letter);
    Attr(out, "FileFormat", "0");
    Attr(out, "AddToRecentFiles", "0");
    Attr(out, "OverwriteExistingFile", "Confirm");
    out += "/><PrintOut";
    Attr(out, "InputDocumentName", letter);
    Attr(out, "Copies", "2");
    Attr(out, "Printer", "Office laser " + id);
    Attr(out, "Range", "0");
    out += "/><Convert";
    Attr(out, "InputDocumentName", letter);
    Attr(out, "OutputDocumentName", letter + " PDF");
    Attr(out, "Folder", "C:\\Pdf");
    Attr(out, "File", "letter" + id + ".pdf");
    Attr(out, "Show", "0");
    Attr(out, "OutputConvertFormat", "1");
    Attr(out, "PDFConvertingMethod", "2");
    Attr(out, "PostscriptToPDFConverter", "2");
    out += "/><MailMerge";
    Attr(out, "InvokedApplication", "HTML");
    Attr(out, "OutputDocumentName", body);
    Attr(out, "Template", "C:\\Templates\\body" + id + ".htm");
    Attr(out, "ShowDocument", "0");
    Attr(out, "MailMergeType", "3");
    out += "/><SendMail";
    Attr(out, "InputDocumentName", body);
    Attr(out, "To", "[Email];office" + id + "@example.com");
    Attr(out, "CC", "archive@example.com");
    Attr(out, "Subject", "Your letter &amp; invoice " + id);
    Attr(out, "SendMethod", "1");
    Attr(out, "SMTPServer", "smtp.example.com");
    Attr(out, "DatasourceName", "Contacts" + id);
    out += "><Attachments><Attachment";
    Attr(out, "File", "[Document:" + letter + " PDF]");
    out += "/></Attachments></SendMail><SendFax";
    Attr(out, "InputDocumentName", letter);
    Attr(out, "Subject", "Fax " + id);
    Attr(out, "Address", "[Fax]");
    out += "/><AddRecord";
    Attr(out, "Database", "Sales");
    Attr(out, "TableName", "SendLog");
    out += "><FieldValues><FieldValue";
    Attr(out, "Name", "Batch");
    Attr(out, "Value", id);
    out += "/><FieldValue";
    Attr(out, "Name", "Note");
    Attr(out, "Value", "sent &amp;quot;by mail&amp;quot;");
    out += "/></FieldValues></AddRecord></Activities><Datasources><Datasource";
    Attr(out, "Name", main);
    Attr(out, "Type", "Table");
    Attr(out, "Database", "Sales");
    Attr(out, "ObjectName", "Customers");
    out += "/><Datasource";
    Attr(out, "Name", "Contacts" + id);
    Attr(out, "Type", "Query");
    Attr(out, "Database", "Sales");
    Attr(out, "ObjectName", "qryContacts");
    Attr(out, "Records", "All");
    out += "/></Datasources><Documents><Document";
    Attr(out, "Name", letter);
    out += "/><Document";
    Attr(out, "Name", letter + " PDF");
    out += "/><Document";
    Attr(out, "Name", body);
    out += "/></Documents><Groups><Group";
    Attr(out, "Name", n % 2 ? "Office" : "Accounting");
    out += "/></Groups><FieldValues><FieldValue";
    Attr(out, "Name", "Sender");
    Attr(out, "Value", "Office " + id);
    out += "/></FieldValues>";
    out += "</Process>";
}

}  // namespace

std::string MakeSyntheticProcessesFile(std::size_t targetBytes) {
    std::string out = R"(<?xml version="1.0" encoding="UTF-8"?><Processes Version="1">)";
    out.reserve(targetBytes + 4096);
    for (std::size_t n = 1; out.size() < targetBytes; ++n) Process(out, n);
    out += R"(<Databases><Database Name="Sales" Location="C:\Data\sales.mdb" Type="Access"/></Databases>)";
    out += R"(<Groups><Group Name="Office"/><Group Name="Accounting"/></Groups>)";
    out += R"(<Options><Email DefaultStyle="HTML" DefaultEmailTemplateHTML="C:\Templates\mail.htm"/>)";
    out += R"(<FileLocations TemplateFolder="C:\Templates" DocumentFolder="C:\Documents"/></Options>)";
    out += "</Processes>";
    return out;
}

}  // namespace flowloom::bench
