#include "designer/ItemCopies.h"

#include "model/Activities.h"
#include "model/AddRecord.h"
#include "model/Convert.h"
#include "model/Datasource.h"
#include "model/Datasources.h"
#include "model/Document.h"
#include "model/Documents.h"
#include "model/FieldValue.h"
#include "model/MailMerge.h"
#include "model/PrintOut.h"
#include "model/Process.h"
#include "model/SaveAs.h"
#include "model/SendFax.h"
#include "model/SendMail.h"
#include "model/VisitActivity.h"

namespace flowloom::designer {

namespace {

// Runs one step of a copy; a step that fails is left out.
template <typename Step>
void Try(Step&& step) noexcept {
    try {
        step();
    } catch (...) {
    }
}

std::string Prefixed(const std::string& text, bool withPrefix) {
    return withPrefix && !text.empty() ? kCopyPrefix + text : text;
}

void CopyMailMerge(const MailMerge& s, MailMerge& c) {
    Try([&] { c.SetDatasourceName(s.DatasourceName()); });
    Try([&] { c.SetIteration(s.Iteration()); });
    Try([&] { c.SetInsertPagebreak(s.InsertPagebreak()); });
    Try([&] { c.SetInvokedApplication(s.InvokedApplication()); });
    Try([&] { c.SetMailMergeType(s.MailMergeType()); });
    Try([&] { c.SetOutputDocumentName(s.OutputDocumentName()); });
    Try([&] { c.SetPrecededBy(s.PrecededBy()); });
    Try([&] { c.SetShowDocument(s.ShowDocument()); });
    Try([&] { c.SetSucceededBy(s.SucceededBy()); });
    Try([&] { c.SetTemplate(s.Template()); });
}

void CopySaveAs(const SaveAs& s, SaveAs& c) {
    Try([&] { c.SetInputDocumentName(s.InputDocumentName()); });
    Try([&] {
        if (s.OverwriteSet()) c.SetOverwriteExistingFile(s.OverwriteExistingFile());
    });
    for (std::size_t i = 0; i < static_cast<std::size_t>(SaveAsArg::Count); ++i) {
        const auto arg = static_cast<SaveAsArg>(i);
        Try([&] {
            if (!s.Argument(arg).IsEmpty()) c.SetArgument(arg, s.Argument(arg));
        });
    }
}

void CopyPrintOut(const PrintOut& s, PrintOut& c) {
    Try([&] { c.SetInputDocumentName(s.InputDocumentName()); });
    Try([&] { c.SetPrinter(s.Printer()); });
    for (std::size_t i = 0; i < static_cast<std::size_t>(PrintOutArg::Count); ++i) {
        const auto arg = static_cast<PrintOutArg>(i);
        // FileName is not among the members a copy carries.
        if (arg == PrintOutArg::FileName) continue;
        Try([&] {
            if (!s.Argument(arg).IsEmpty()) c.SetArgument(arg, s.Argument(arg));
        });
    }
}

void CopyConvert(const Convert& s, Convert& c) {
    Try([&] {
        if (s.OverwriteSet()) c.SetOverwriteExistingFile(s.OverwriteExistingFile());
    });
    Try([&] { c.SetInputDocumentName(s.InputDocumentName()); });
    Try([&] { c.SetOutputDocumentName(s.OutputDocumentName()); });
    Try([&] { c.SetShowDocument(s.ShowDocument()); });
    Try([&] { c.SetOutputFileFormat(s.OutputFileFormat()); });
    Try([&] { c.SetPDFConvertingMethod(s.PDFConvertingMethod()); });
    Try([&] { c.SetPostscript2PDFConverter(s.Postscript2PDFConverter()); });
}

void CopySendMail(const SendMail& s, SendMail& c) {
    Try([&] { c.SetBCC(s.BCC()); });
    Try([&] { c.SetBody(s.Body()); });
    Try([&] { c.SetCC(s.CC()); });
    Try([&] { c.Charset = s.Charset; });
    Try([&] { c.From = s.From; });
    Try([&] { c.SetInputDocumentName(s.InputDocumentName()); });
    Try([&] { c.SetMailApplication(s.MailApplication()); });
    Try([&] { c.SetSendMethod(s.SendMethod()); });
    Try([&] { c.SendPassword = s.SendPassword; });
    Try([&] { c.SendUsername = s.SendUsername; });
    Try([&] { c.SMTPServer = s.SMTPServer; });
    Try([&] { c.SMTPServerPort = s.SMTPServerPort; });
    Try([&] { c.SetSubject(s.Subject()); });
    Try([&] { c.SetTo_(s.To_()); });
    Try([&] { c.SetDatasourceName(s.DatasourceName()); });
    Try([&] {
        if (const auto attachments = s.Attachments())
            for (const auto& attachment : *attachments) c.AddAttachment(attachment->name);
    });
}

void CopySendFax(const SendFax& s, SendFax& c) {
    Try([&] { c.SetParentProcess(s.ParentProcess()); });
    Try([&] { c.SetAddress(s.Address()); });
    Try([&] { c.SetInputDocumentName(s.InputDocumentName()); });
    Try([&] { c.SetSubject(s.Subject()); });
}

void CopyAddRecord(const AddRecord& s, AddRecord& c) {
    Try([&] { c.SetDatabase(s.Database()); });
    Try([&] { c.SetTablename(s.Tablename()); });
    Try([&] { c.SetDatasourceName(s.DatasourceName()); });
    Try([&] {
        for (const auto& value : *s.FieldValues())
            c.FieldValues()->Add(std::make_shared<FieldValue>(*value), value->field);
    });
}

}  // namespace

std::shared_ptr<Datasource> CopyDatasource(const Datasource& source, bool withPrefix) {
    auto copy = std::make_shared<Datasource>();
    copy->SetName(withPrefix ? kCopyPrefix + source.name() : source.name());
    copy->Database = source.Database;
    copy->Type_ = source.Type_;
    copy->ObjectName = source.ObjectName;
    copy->SubFormFullName = source.SubFormFullName;
    return copy;
}

std::shared_ptr<Document> CopyDocument(const Document& source, bool withPrefix) {
    auto copy = std::make_shared<Document>();
    copy->name = withPrefix ? kCopyPrefix + source.name : source.name;
    copy->SetObject(source.Object());
    copy->Show = source.Show;
    copy->Template = source.Template;
    return copy;
}

std::shared_ptr<Activity> CopyActivity(const Activity& source, bool withPrefix) {
    std::shared_ptr<Activity> copy = CreateActivity(source.Kind());
    Try([&] { copy->SetDescription(Prefixed(source.Description(), withPrefix)); });
    VisitActivity(source, Overloaded{
                              [&](const MailMerge& s) { CopyMailMerge(s, *ActivityAs<MailMerge>(copy.get())); },
                              [&](const SaveAs& s) { CopySaveAs(s, *ActivityAs<SaveAs>(copy.get())); },
                              [&](const PrintOut& s) { CopyPrintOut(s, *ActivityAs<PrintOut>(copy.get())); },
                              [&](const Convert& s) { CopyConvert(s, *ActivityAs<Convert>(copy.get())); },
                              [&](const SendMail& s) { CopySendMail(s, *ActivityAs<SendMail>(copy.get())); },
                              [&](const SendFax& s) { CopySendFax(s, *ActivityAs<SendFax>(copy.get())); },
                              [&](const AddRecord& s) { CopyAddRecord(s, *ActivityAs<AddRecord>(copy.get())); },
                          });
    return copy;
}

std::shared_ptr<Process> CopyProcess(const Process& source) {
    auto copy = Process::Create();
    Try([&] { copy->SetName(kCopyPrefix + source.name()); });
    Try([&] { copy->SetAbortOnError(source.AbortOnError()); });
    Try([&] { copy->SetOnErrorNotifyUser(source.OnErrorNotifyUser()); });
    Try([&] { copy->SetMainDataSourceName(source.MainDataSourceName()); });
    Try([&] { copy->SetProcessRecords(source.ProcessRecords()); });
    Try([&] { copy->SetLogDatasourceName(source.LogDatasourceName()); });
    for (const auto& datasource : *source.Datasources())
        Try([&] { copy->Datasources()->Add(CopyDatasource(*datasource, false)); });
    for (const auto& activity : *source.Activities())
        Try([&] { copy->Activities()->Add(CopyActivity(*activity, false)); });
    for (const auto& document : *source.Documents())
        Try([&] { copy->Documents()->Add(CopyDocument(*document, false), document->name); });
    Try([&] {
        for (const auto& value : *source.FieldValues())
            copy->FieldValues()->Add(std::make_shared<FieldValue>(*value), value->field);
    });
    return copy;
}

}  // namespace flowloom::designer
