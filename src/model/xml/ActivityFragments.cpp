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

void WriteTarget(pugi::xml_node element, const FileTarget& target) {
    xmlw::Text(element, "FullName", target.RawFullName());
    xmlw::Text(element, "Folder", target.RawFolder());
    xmlw::Text(element, "File", target.RawFile());
}

// Pass-through arguments first..last (inclusive) of an activity.
template <typename Activity, typename Arg, std::size_t N>
void WriteArguments(pugi::xml_node element, const Activity& activity, const std::array<const char*, N>& names,
                    Arg first, Arg last) {
    for (auto i = static_cast<std::size_t>(first); i <= static_cast<std::size_t>(last); ++i)
        xmlw::Tagged(element, names[i], activity.Argument(static_cast<Arg>(i)));
}

// The datasource name of a SendMail or AddRecord, unless it is the
// process's main one (compared with regard to case).
void WriteOtherDatasourceName(pugi::xml_node element, const std::string& name, const Activity& activity) {
    auto process = activity.ParentProcess();
    if (!name.empty() && (!process || name != process->MainDataSourceName())) xmlw::Always(element, "DatasourceName", name);
}

}  // namespace

pugi::xml_node CProcessesXMLDoc::MailMergeFragment(const MailMerge& activity, pugi::xml_node parent) {
    pugi::xml_node element = parent.append_child("MailMerge");
    Guarded(kModule, "MailMergeFragment", [&] {
        xmlw::Text(element, "InvokedApplication", activity.InvokedApplication());
        xmlw::Text(element, "OutputDocumentName", activity.OutputDocumentName());
        xmlw::Text(element, "Template", activity.Template());
        xmlw::Bool(element, "ShowDocument", activity.ShowDocument());
        xmlw::NonZero(element, "MailMergeType", activity.MailMergeType());
        if (!activity.InsertPagebreak()) xmlw::Bool(element, "InsertPagebreak", false);
        xmlw::Text(element, "DatasourceName", activity.DatasourceName());
        xmlw::Text(element, "Description", activity.Description());
        xmlw::Text(element, "PrecededBy", activity.PrecededBy());
        xmlw::Text(element, "SucceededBy", activity.SucceededBy());
        xmlw::Text(element, "Iteration", activity.Iteration());
    });
    return element;
}

pugi::xml_node CProcessesXMLDoc::SaveAsFragment(const SaveAs& activity, pugi::xml_node parent) {
    pugi::xml_node element = parent.append_child("SaveAs");
    Guarded(kModule, "SaveAsFragment", [&] {
        WriteTarget(element, activity.Target());
        xmlw::Text(element, "InputDocumentName", activity.InputDocumentName());
        xmlw::Text(element, "OutputDocumentName", activity.OutputDocumentName());
        WriteArguments(element, activity, kSaveAsArgNames, SaveAsArg::FileFormat, SaveAsArg::ReadOnlyRecommended);
        const std::int32_t kind = activity.InputDocumentKind();
        if (kind == dockind::Word) {
            WriteArguments(element, activity, kSaveAsArgNames, SaveAsArg::LockComments, SaveAsArg::AddBiDiMarks);
        } else if (kind == dockind::Excel) {
            xmlw::Tagged(element, "CreateBackup", activity.Argument(SaveAsArg::CreateBackup));
            for (SaveAsArg arg : {SaveAsArg::AccessMode, SaveAsArg::ConflictResolution}) {
                const TaggedValue& value = activity.Argument(arg);
                if (!value.IsObject() && value.Text() != "1")
                    xmlw::Tagged(element, kSaveAsArgNames[static_cast<std::size_t>(arg)], value);
            }
            WriteArguments(element, activity, kSaveAsArgNames, SaveAsArg::AddToMru, SaveAsArg::Local_);
        }
        if (activity.OverwriteSet())
            xmlw::Always(element, "OverwriteExistingFile", WordAt(kOverwriteWords, activity.OverwriteExistingFile()));
        xmlw::Text(element, "Description", activity.Description());
    });
    return element;
}

pugi::xml_node CProcessesXMLDoc::PrintOutFragment(const PrintOut& activity, pugi::xml_node parent) {
    pugi::xml_node element = parent.append_child("PrintOut");
    Guarded(kModule, "PrintOutFragment", [&] {
        WriteTarget(element, activity.Target());
        xmlw::Text(element, "InputDocumentName", activity.InputDocumentName());
        xmlw::Text(element, "OutputDocumentName", activity.OutputDocumentName());
        WriteArguments(element, activity, kPrintOutArgNames, PrintOutArg::OutputFileName, PrintOutArg::FileName);
        xmlw::Text(element, "Description", activity.Description());
        if (!EqualsNoCase(activity.Printer(), kDefaultPrinterLabel)) xmlw::Text(element, "Printer", activity.Printer());
        const std::int32_t kind = activity.InputDocumentKind();
        if (kind == dockind::Excel)
            WriteArguments(element, activity, kPrintOutArgNames, PrintOutArg::Preview, PrintOutArg::IgnorePrintAreas);
        if (kind == dockind::Word)
            WriteArguments(element, activity, kPrintOutArgNames, PrintOutArg::Background,
                           PrintOutArg::PrintZoomPaperHeight);
    });
    return element;
}

pugi::xml_node CProcessesXMLDoc::ConvertFragment(const Convert& activity, pugi::xml_node parent) {
    pugi::xml_node element = parent.append_child("Convert");
    Guarded(kModule, "ConvertFragment", [&] {
        xmlw::Text(element, "Description", activity.Description());
        xmlw::Text(element, "InputDocumentName", activity.InputDocumentName());
        xmlw::Text(element, "OutputDocumentName", activity.OutputDocumentName());
        WriteTarget(element, activity.Target());
        xmlw::Bool(element, "Show", activity.ShowDocument());
        if (activity.OverwriteSet())
            xmlw::Always(element, "OverwriteExistingFile", WordAt(kOverwriteWords, activity.OverwriteExistingFile()));
        xmlw::NonZero(element, "OutputConvertFormat", activity.OutputFileFormat());
        xmlw::NonZero(element, "PDFConvertingMethod", activity.PDFConvertingMethod());
        xmlw::Text(element, "PostScriptPrinter", activity.PostscriptPrinter());
        xmlw::NonZero(element, "PostscriptToPDFConverter", activity.Postscript2PDFConverter());
    });
    return element;
}

pugi::xml_node CProcessesXMLDoc::SendMailFragment(const SendMail& activity, pugi::xml_node parent) {
    pugi::xml_node element = parent.append_child("SendMail");
    Guarded(kModule, "SendMailFragment", [&] {
        WriteTarget(element, activity.Target());
        xmlw::Text(element, "InputDocumentName", activity.InputDocumentName());
        xmlw::Text(element, "OutputDocumentName", activity.OutputDocumentName());
        xmlw::Text(element, "To", activity.RecipientsToText());
        xmlw::Text(element, "CC", activity.RecipientsCCText());
        xmlw::Text(element, "BCC", activity.RecipientsBCCText());
        xmlw::Text(element, "Subject", activity.Subject());
        xmlw::Text(element, "Body", activity.Body());
        xmlw::NonZero(element, "SendMethod", activity.SendMethod());
        xmlw::NonZero(element, "MailApplication", activity.MailApplication());
        xmlw::Text(element, "SMTPServer", activity.SMTPServer);
        xmlw::Text(element, "SMTPServerPort", activity.SMTPServerPort);
        xmlw::Text(element, "SendUsername", activity.SendUsername);
        xmlw::Text(element, "SendPassword", activity.SendPassword);
        xmlw::Text(element, "From", activity.From);
        xmlw::Text(element, "Charset", activity.Charset);
        xmlw::Text(element, "Description", activity.Description());
        WriteOtherDatasourceName(element, activity.DatasourceName(), activity);
        if (auto attachments = activity.Attachments(); attachments && attachments->Count() > 0) {
            pugi::xml_node container = element.append_child("Attachments");
            for (const auto& attachment : *attachments)
                xmlw::Always(container.append_child("Attachment"), "File", attachment->name);
        }
    });
    return element;
}

pugi::xml_node CProcessesXMLDoc::SendFaxFragment(const SendFax& activity, pugi::xml_node parent) {
    pugi::xml_node element = parent.append_child("SendFax");
    xmlw::Text(element, "InputDocumentName", activity.InputDocumentName());
    xmlw::Text(element, "Subject", activity.Subject());
    xmlw::Text(element, "Address", activity.Address());
    xmlw::Text(element, "Description", activity.Description());
    return element;
}

pugi::xml_node CProcessesXMLDoc::AddRecordFragment(const AddRecord& activity, pugi::xml_node parent) {
    pugi::xml_node element = parent.append_child("AddRecord");
    Guarded(kModule, "AddRecordFragment", [&] {
        xmlw::Text(element, "Database", activity.Database());
        xmlw::Text(element, "TableName", activity.Tablename());
        xmlw::Text(element, "Description", activity.Description());
        if (activity.HasFieldValues() && activity.FieldValues()->Count() > 0) {
            pugi::xml_node container = element.append_child("FieldValues");
            for (const auto& fieldValue : *activity.FieldValues()) FieldValueFragment(*fieldValue, container);
        }
        WriteOtherDatasourceName(element, activity.DatasourceName(), activity);
    });
    return element;
}

}  // namespace flowloom
