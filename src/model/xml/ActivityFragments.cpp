// The writer's fragments of the seven activities.
#include "model/xml/CProcessesXMLDoc.h"

#include "support/ReportError.h"
#include "support/TextCompare.h"
#include "model/AddRecord.h"
#include "model/Convert.h"
#include "model/FieldValue.h"
#include "model/MailMerge.h"
#include "model/PrintOut.h"
#include "model/Process.h"
#include "model/SaveAs.h"
#include "model/SendFax.h"
#include "model/SendMail.h"
#include "model/xml/AttributeWriter.h"

namespace flowloom {

namespace {

constexpr const char* kModule = "CProcessesXMLDoc";

void WriteTarget(XmlSink& out, const FileTarget& target) {
    xmlw::Text(out, "FullName", target.RawFullName());
    xmlw::Text(out, "Folder", target.RawFolder());
    xmlw::Text(out, "File", target.RawFile());
}

// Pass-through arguments first..last (inclusive) of an activity.
template <typename Activity, typename Arg, std::size_t N>
void WriteArguments(XmlSink& out, const Activity& activity, const std::array<const char*, N>& names,
                    Arg first, Arg last) {
    for (auto i = static_cast<std::size_t>(first); i <= static_cast<std::size_t>(last); ++i)
        xmlw::Tagged(out, names[i], activity.Argument(static_cast<Arg>(i)));
}

// The datasource name of a SendMail or AddRecord, unless it is the
// process's main one (compared with regard to case).
void WriteOtherDatasourceName(XmlSink& out, const std::string& name, const Activity& activity) {
    auto process = activity.ParentProcess();
    if (!name.empty() && (!process || name != process->MainDataSourceName())) xmlw::Always(out, "DatasourceName", name);
}

}  // namespace

void CProcessesXMLDoc::MailMergeFragment(const MailMerge& activity, XmlSink& out) {
    XmlElement element(out, "MailMerge");
    Guarded(kModule, "MailMergeFragment", [&] {
        xmlw::Text(out, "InvokedApplication", activity.InvokedApplication());
        xmlw::Text(out, "OutputDocumentName", activity.OutputDocumentName());
        xmlw::Text(out, "Template", activity.Template());
        xmlw::Bool(out, "ShowDocument", activity.ShowDocument());
        xmlw::NonZero(out, "MailMergeType", activity.MailMergeType());
        if (!activity.InsertPagebreak()) xmlw::Bool(out, "InsertPagebreak", false);
        xmlw::Text(out, "DatasourceName", activity.DatasourceName());
        xmlw::Text(out, "Description", activity.Description());
        xmlw::Text(out, "PrecededBy", activity.PrecededBy());
        xmlw::Text(out, "SucceededBy", activity.SucceededBy());
        xmlw::Text(out, "Iteration", activity.Iteration());
    });
}

void CProcessesXMLDoc::SaveAsFragment(const SaveAs& activity, XmlSink& out) {
    XmlElement element(out, "SaveAs");
    Guarded(kModule, "SaveAsFragment", [&] {
        WriteTarget(out, activity.Target());
        xmlw::Text(out, "InputDocumentName", activity.InputDocumentName());
        xmlw::Text(out, "OutputDocumentName", activity.OutputDocumentName());
        WriteArguments(out, activity, kSaveAsArgNames, SaveAsArg::FileFormat, SaveAsArg::ReadOnlyRecommended);
        const std::int32_t kind = activity.InputDocumentKind();
        if (kind == dockind::Word) {
            WriteArguments(out, activity, kSaveAsArgNames, SaveAsArg::LockComments, SaveAsArg::AddBiDiMarks);
        } else if (kind == dockind::Excel) {
            xmlw::Tagged(out, "CreateBackup", activity.Argument(SaveAsArg::CreateBackup));
            for (SaveAsArg arg : {SaveAsArg::AccessMode, SaveAsArg::ConflictResolution}) {
                const TaggedValue& value = activity.Argument(arg);
                if (!value.IsObject() && value.Text() != "1")
                    xmlw::Tagged(out, kSaveAsArgNames[static_cast<std::size_t>(arg)], value);
            }
            WriteArguments(out, activity, kSaveAsArgNames, SaveAsArg::AddToMru, SaveAsArg::Local_);
        }
        if (activity.OverwriteSet())
            xmlw::Always(out, "OverwriteExistingFile", WordAt(kOverwriteWords, activity.OverwriteExistingFile()));
        xmlw::Text(out, "Description", activity.Description());
    });
}

void CProcessesXMLDoc::PrintOutFragment(const PrintOut& activity, XmlSink& out) {
    XmlElement element(out, "PrintOut");
    Guarded(kModule, "PrintOutFragment", [&] {
        WriteTarget(out, activity.Target());
        xmlw::Text(out, "InputDocumentName", activity.InputDocumentName());
        xmlw::Text(out, "OutputDocumentName", activity.OutputDocumentName());
        WriteArguments(out, activity, kPrintOutArgNames, PrintOutArg::OutputFileName, PrintOutArg::FileName);
        xmlw::Text(out, "Description", activity.Description());
        if (!EqualsNoCase(activity.Printer(), kDefaultPrinterLabel)) xmlw::Text(out, "Printer", activity.Printer());
        const std::int32_t kind = activity.InputDocumentKind();
        if (kind == dockind::Excel)
            WriteArguments(out, activity, kPrintOutArgNames, PrintOutArg::Preview, PrintOutArg::IgnorePrintAreas);
        if (kind == dockind::Word)
            WriteArguments(out, activity, kPrintOutArgNames, PrintOutArg::Background,
                           PrintOutArg::PrintZoomPaperHeight);
    });
}

void CProcessesXMLDoc::ConvertFragment(const Convert& activity, XmlSink& out) {
    XmlElement element(out, "Convert");
    Guarded(kModule, "ConvertFragment", [&] {
        xmlw::Text(out, "Description", activity.Description());
        xmlw::Text(out, "InputDocumentName", activity.InputDocumentName());
        xmlw::Text(out, "OutputDocumentName", activity.OutputDocumentName());
        WriteTarget(out, activity.Target());
        xmlw::Bool(out, "Show", activity.ShowDocument());
        if (activity.OverwriteSet())
            xmlw::Always(out, "OverwriteExistingFile", WordAt(kOverwriteWords, activity.OverwriteExistingFile()));
        xmlw::NonZero(out, "OutputConvertFormat", activity.OutputFileFormat());
        xmlw::NonZero(out, "PDFConvertingMethod", activity.PDFConvertingMethod());
        xmlw::Text(out, "PostScriptPrinter", activity.PostscriptPrinter());
        xmlw::NonZero(out, "PostscriptToPDFConverter", activity.Postscript2PDFConverter());
    });
}

void CProcessesXMLDoc::SendMailFragment(const SendMail& activity, XmlSink& out) {
    XmlElement element(out, "SendMail");
    Guarded(kModule, "SendMailFragment", [&] {
        WriteTarget(out, activity.Target());
        xmlw::Text(out, "InputDocumentName", activity.InputDocumentName());
        xmlw::Text(out, "OutputDocumentName", activity.OutputDocumentName());
        xmlw::Text(out, "To", activity.RecipientsToText());
        xmlw::Text(out, "CC", activity.RecipientsCCText());
        xmlw::Text(out, "BCC", activity.RecipientsBCCText());
        xmlw::Text(out, "Subject", activity.Subject());
        xmlw::Text(out, "Body", activity.Body());
        xmlw::NonZero(out, "SendMethod", activity.SendMethod());
        xmlw::NonZero(out, "MailApplication", activity.MailApplication());
        xmlw::Text(out, "SMTPServer", activity.SMTPServer);
        xmlw::Text(out, "SMTPServerPort", activity.SMTPServerPort);
        xmlw::Text(out, "SendUsername", activity.SendUsername);
        xmlw::Text(out, "SendPassword", activity.SendPassword);
        xmlw::Text(out, "From", activity.From);
        xmlw::Text(out, "Charset", activity.Charset);
        xmlw::Text(out, "Description", activity.Description());
        WriteOtherDatasourceName(out, activity.DatasourceName(), activity);
        if (auto attachments = activity.Attachments(); attachments && attachments->Count() > 0) {
            XmlElement container(out, "Attachments");
            for (const auto& attachment : *attachments) {
                XmlElement item(out, "Attachment");
                xmlw::Always(out, "File", attachment->name);
            }
        }
    });
}

void CProcessesXMLDoc::SendFaxFragment(const SendFax& activity, XmlSink& out) {
    XmlElement element(out, "SendFax");
    xmlw::Text(out, "InputDocumentName", activity.InputDocumentName());
    xmlw::Text(out, "Subject", activity.Subject());
    xmlw::Text(out, "Address", activity.Address());
    xmlw::Text(out, "Description", activity.Description());
}

void CProcessesXMLDoc::AddRecordFragment(const AddRecord& activity, XmlSink& out) {
    XmlElement element(out, "AddRecord");
    Guarded(kModule, "AddRecordFragment", [&] {
        xmlw::Text(out, "Database", activity.Database());
        xmlw::Text(out, "TableName", activity.Tablename());
        xmlw::Text(out, "Description", activity.Description());
        // An attribute, so before the field values, which do not change it.
        WriteOtherDatasourceName(out, activity.DatasourceName(), activity);
        if (activity.HasFieldValues() && activity.FieldValues()->Count() > 0) {
            XmlElement container(out, "FieldValues");
            for (const auto& fieldValue : *activity.FieldValues()) FieldValueFragment(*fieldValue, out);
        }
    });
}

}  // namespace flowloom
