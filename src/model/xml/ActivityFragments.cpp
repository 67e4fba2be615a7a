// The writer's fragments of the seven activities.
#include "model/xml/CProcessesXMLDoc.h"

#include "support/ReportError.h"
#include "support/TextCompare.h"
#include "model/AddRecord.h"
#include "model/Convert.h"
#include "model/FieldValue.h"
#include "model/List.h"
#include "model/MailMerge.h"
#include "model/PrintOut.h"
#include "model/Process.h"
#include "model/SaveAs.h"
#include "model/SendFax.h"
#include "model/SendMail.h"
#include "model/xml/AttributeWriter.h"
#include "model/VisitActivity.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <type_traits>

namespace flowloom {

namespace {

constexpr const char* kModule = "CProcessesXMLDoc";

template <typename Sink>
void WriteTarget(Sink& out, const FileTarget& target) {
    xmlw::Text(out, "FullName", target.RawFullName());
    xmlw::Text(out, "Folder", target.RawFolder());
    xmlw::Text(out, "File", target.RawFile());
}

// An activity's table of argument names as views, measured once.
template <const auto& names>
const auto& NameViews() {
    static const auto views = [] {
        std::array<std::string_view, std::tuple_size_v<std::remove_cvref_t<decltype(names)>>> result;
        std::copy(names.begin(), names.end(), result.begin());
        return result;
    }();
    return views;
}

// Pass-through arguments first..last (inclusive) of an activity.
template <const auto& names, typename Sink, typename Activity, typename Arg>
void WriteArguments(Sink& out, const Activity& activity, Arg first, Arg last) {
    const auto& views = NameViews<names>();
    for (auto i = static_cast<std::size_t>(first); i <= static_cast<std::size_t>(last); ++i)
        xmlw::Tagged(out, views[i], activity.Argument(static_cast<Arg>(i)));
}

// A SendMail's recipients as its RecipientsToText and the like give them
// (the fixed text, else the list's), without a copy unless a list's values
// are joined.
template <typename Sink, typename Joined>
void WriteRecipients(Sink& out, std::string_view name, const std::string& fixed, const std::shared_ptr<List>& list,
                     Joined joined) {
    if (!fixed.empty()) return xmlw::Text(out, name, fixed);
    if (!list) return;
    if (const std::string& text = list->StoredText(); !text.empty()) return xmlw::Text(out, name, text);
    xmlw::Text(out, name, joined());
}

// The datasource name of a SendMail or AddRecord, unless it is the
// process's main one (compared with regard to case).
template <typename Sink>
void WriteOtherDatasourceName(Sink& out, const std::string& name, const Activity& activity) {
    auto process = activity.ParentProcess();
    if (!name.empty() && (!process || name != process->MainDataSourceName())) xmlw::Always(out, "DatasourceName", name);
}

}  // namespace

template <typename Sink>
void CProcessesXMLDoc::MailMergeFragment(const MailMerge& activity, Sink& out) {
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

template <typename Sink>
void CProcessesXMLDoc::SaveAsFragment(const SaveAs& activity, Sink& out) {
    XmlElement element(out, "SaveAs");
    Guarded(kModule, "SaveAsFragment", [&] {
        WriteTarget(out, activity.Target());
        xmlw::Text(out, "InputDocumentName", activity.InputDocumentName());
        xmlw::Text(out, "OutputDocumentName", activity.OutputDocumentName());
        WriteArguments<kSaveAsArgNames>(out, activity, SaveAsArg::FileFormat, SaveAsArg::ReadOnlyRecommended);
        const std::int32_t kind = activity.InputDocumentKind();
        if (kind == dockind::Word) {
            WriteArguments<kSaveAsArgNames>(out, activity, SaveAsArg::LockComments, SaveAsArg::AddBiDiMarks);
        } else if (kind == dockind::Excel) {
            xmlw::Tagged(out, "CreateBackup", activity.Argument(SaveAsArg::CreateBackup));
            for (SaveAsArg arg : {SaveAsArg::AccessMode, SaveAsArg::ConflictResolution}) {
                const TaggedValue& value = activity.Argument(arg);
                if (!value.IsObject() && value.Text() != "1")
                    xmlw::Tagged(out, NameViews<kSaveAsArgNames>()[static_cast<std::size_t>(arg)], value);
            }
            WriteArguments<kSaveAsArgNames>(out, activity, SaveAsArg::AddToMru, SaveAsArg::Local_);
        }
        if (activity.OverwriteSet())
            xmlw::Word<kOverwriteWords>(out, "OverwriteExistingFile", activity.OverwriteExistingFile());
        xmlw::Text(out, "Description", activity.Description());
    });
}

template <typename Sink>
void CProcessesXMLDoc::PrintOutFragment(const PrintOut& activity, Sink& out) {
    XmlElement element(out, "PrintOut");
    Guarded(kModule, "PrintOutFragment", [&] {
        WriteTarget(out, activity.Target());
        xmlw::Text(out, "InputDocumentName", activity.InputDocumentName());
        xmlw::Text(out, "OutputDocumentName", activity.OutputDocumentName());
        WriteArguments<kPrintOutArgNames>(out, activity, PrintOutArg::OutputFileName, PrintOutArg::FileName);
        xmlw::Text(out, "Description", activity.Description());
        if (!EqualsNoCase(activity.Printer(), kDefaultPrinterLabel)) xmlw::Text(out, "Printer", activity.Printer());
        const std::int32_t kind = activity.InputDocumentKind();
        if (kind == dockind::Excel)
            WriteArguments<kPrintOutArgNames>(out, activity, PrintOutArg::Preview, PrintOutArg::IgnorePrintAreas);
        if (kind == dockind::Word)
            WriteArguments<kPrintOutArgNames>(out, activity, PrintOutArg::Background,
                           PrintOutArg::PrintZoomPaperHeight);
    });
}

template <typename Sink>
void CProcessesXMLDoc::ConvertFragment(const Convert& activity, Sink& out) {
    XmlElement element(out, "Convert");
    Guarded(kModule, "ConvertFragment", [&] {
        xmlw::Text(out, "Description", activity.Description());
        xmlw::Text(out, "InputDocumentName", activity.InputDocumentName());
        xmlw::Text(out, "OutputDocumentName", activity.OutputDocumentName());
        WriteTarget(out, activity.Target());
        xmlw::Bool(out, "Show", activity.ShowDocument());
        if (activity.OverwriteSet())
            xmlw::Word<kOverwriteWords>(out, "OverwriteExistingFile", activity.OverwriteExistingFile());
        xmlw::NonZero(out, "OutputConvertFormat", activity.OutputFileFormat());
        xmlw::NonZero(out, "PDFConvertingMethod", activity.PDFConvertingMethod());
        xmlw::Text(out, "PostScriptPrinter", activity.PostscriptPrinter());
        xmlw::NonZero(out, "PostscriptToPDFConverter", activity.Postscript2PDFConverter());
    });
}

template <typename Sink>
void CProcessesXMLDoc::SendMailFragment(const SendMail& activity, Sink& out) {
    XmlElement element(out, "SendMail");
    Guarded(kModule, "SendMailFragment", [&] {
        WriteTarget(out, activity.Target());
        xmlw::Text(out, "InputDocumentName", activity.InputDocumentName());
        xmlw::Text(out, "OutputDocumentName", activity.OutputDocumentName());
        WriteRecipients(out, "To", activity.RecipientsTo(), activity.To_(), [&] { return activity.RecipientsToText(); });
        WriteRecipients(out, "CC", activity.RecipientsCC(), activity.CC(), [&] { return activity.RecipientsCCText(); });
        WriteRecipients(out, "BCC", activity.RecipientsBCC(), activity.BCC(), [&] { return activity.RecipientsBCCText(); });
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

template <typename Sink>
void CProcessesXMLDoc::SendFaxFragment(const SendFax& activity, Sink& out) {
    XmlElement element(out, "SendFax");
    xmlw::Text(out, "InputDocumentName", activity.InputDocumentName());
    xmlw::Text(out, "Subject", activity.Subject());
    xmlw::Text(out, "Address", activity.Address());
    xmlw::Text(out, "Description", activity.Description());
}

template <typename Sink>
void CProcessesXMLDoc::AddRecordFragment(const AddRecord& activity, Sink& out) {
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

template <typename Sink>
void CProcessesXMLDoc::WriteActivity(const Activity& activity, Sink& out) {
    struct Fragment {
        CProcessesXMLDoc& writer;
        Sink& out;
        void operator()(const MailMerge& a) { writer.MailMergeFragment(a, out); }
        void operator()(const SaveAs& a) { writer.SaveAsFragment(a, out); }
        void operator()(const PrintOut& a) { writer.PrintOutFragment(a, out); }
        void operator()(const Convert& a) { writer.ConvertFragment(a, out); }
        void operator()(const SendMail& a) { writer.SendMailFragment(a, out); }
        void operator()(const SendFax& a) { writer.SendFaxFragment(a, out); }
        void operator()(const AddRecord& a) { writer.AddRecordFragment(a, out); }
    };
    VisitActivity(activity, Fragment{*this, out});
}

template void CProcessesXMLDoc::WriteActivity(const Activity&, TextXmlSink&);
template void CProcessesXMLDoc::WriteActivity(const Activity&, PugiXmlSink&);

}  // namespace flowloom
