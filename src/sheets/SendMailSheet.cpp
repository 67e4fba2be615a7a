// The SendMail sheet (kind 14): recipients, the message, how it is sent and
// what goes with it. The body is edited in its own tool; the row shows only
// what kind of body it is.
#include "sheets/PropertySheets.h"
#include "sheets/SheetTables.h"

#include "grid/Properties.h"
#include "model/SendMail.h"
#include "support/TextCompare.h"
#include "support/VbStrings.h"

namespace flowloom::sheets {

namespace {

enum Row : std::int32_t {
    Description = 1,
    InputDocumentName,
    OutputDocumentName,
    DatasourceName,
    To,
    CC,
    BCC,
    Subject,
    Body,
    SendMethod,
    MailApplication,
    SMTPServer,
    SMTPServerPort,
    SendUsername,
    SendPassword,
    From,
    Charset,
    Attachments,
};

constexpr int kSendMailSheet = 14;
constexpr int kDeleteKey = 46;

// The text members of rows 12 to 17, in row order.
SparseString SendMail::* const kServerMembers[] = {&SendMail::SMTPServer,   &SendMail::SMTPServerPort,
                                                  &SendMail::SendUsername, &SendMail::SendPassword,
                                                  &SendMail::From,         &SendMail::Charset};

void AddSendMailRows(SheetHost& host, grid::Properties& rows) {
    using namespace grid;
    AddRows(rows, {{"InputDocumentName", ExPropCustomList},
                   {"OutputDocumentName", ExPropText},
                   {"DatasourceName", ExPropCustomList},
                   {"To", ExPropText},
                   {"CC", ExPropText},
                   {"BCC", ExPropText},
                   {"Subject", ExPropText},
                   {"Body", ExPropBrowse},
                   {"SendMethod", ExPropCustomList},
                   {"MailApplication", ExPropCustomList},
                   {"SMTPServer", ExPropText},
                   {"SMTPServerPort", ExPropText},
                   {"SendUsername", ExPropText},
                   {"SendPassword", ExPropText},
                   {"From", ExPropText},
                   {"Charset", ExPropText},
                   {"Attachments", ExPropMemo}});
    rows.Item(InputDocumentName).SetListItems(GetDocumentNames(host));
    rows.Item(DatasourceName).SetLockedEdit(false);
    rows.Item(DatasourceName).SetListItems(GetDatasourceNames(host));
    SetFixedList(rows.Item(SendMethod), {"0 - Send", "1 - Display", "2 - Draft"});
    SetFixedList(rows.Item(MailApplication), {"0 - Default", "1 - Outlook", "2 - CDO", "3 - Groupwise"});
    rows.Item(Attachments).SetUseCustomData(true);
}

void SetSendMailPropertiesValues(SheetHost& host, grid::Properties& rows, const GuardedSteps& step) {
    const auto activity = SelectedActivityOf<SendMail>(host);
    if (!activity) return;
    SetActivityDescription(host, rows, step);
    step([&] { SetIfNotEmpty(rows.Item(InputDocumentName), activity->InputDocumentName()); });
    step([&] { SetIfNotEmpty(rows.Item(OutputDocumentName), activity->OutputDocumentName()); });
    step([&] { SetIfNotEmpty(rows.Item(DatasourceName), activity->DatasourceName()); });
    step([&] { SetIfNotEmpty(rows.Item(To), activity->RecipientsToText()); });
    step([&] { SetIfNotEmpty(rows.Item(CC), activity->RecipientsCCText()); });
    step([&] { SetIfNotEmpty(rows.Item(BCC), activity->RecipientsBCCText()); });
    step([&] { SetIfNotEmpty(rows.Item(Subject), activity->Subject()); });
    step([&] {
        if (!activity->Body().empty()) rows.Item(Body).SetValue(BodyShownText(activity->Body()));
    });
    step([&] {
        grid::Property& row = rows.Item(SendMethod);
        ShowListItem(row, activity->SendMethod());
    });
    step([&] {
        grid::Property& row = rows.Item(MailApplication);
        ShowListItem(row, activity->MailApplication());
    });
    std::int32_t index = SMTPServer;
    for (SparseString SendMail::* member : kServerMembers)
        step([&, i = index++] { SetIfNotEmpty(rows.Item(i), (*activity).*member); });
    step([&] {
        std::vector<std::string> names;
        for (const auto& attachment : *activity->Attachments()) names.push_back(attachment->name);
        SetIfNotEmpty(rows.Item(Attachments), vb::Join(names, "\r\n"));
    });
}

void ChangeAttachments(SendMail& activity, const std::string& text) {
    activity.ClearAttachments();
    for (const std::string& line : vb::Split(text, "\r\n"))
        if (!vb::Trim(line).empty()) activity.AddAttachment(line);
}

void ChangeByPosition(const SheetEdit& edit, void (SendMail::*set)(std::int32_t), SendMail& activity) {
    if (const auto position = ListPosition(edit.row, edit.text)) (activity.*set)(*position);
}

bool SendMailChange(SheetEdit& edit) {
    const auto activity = SelectedActivityOf<SendMail>(edit.host);
    if (!activity) return true;
    const std::string& text = edit.text;
    switch (edit.index) {
    case Description: ChangeDescription(edit, *activity); break;
    case InputDocumentName: activity->SetInputDocumentName(text); break;
    case OutputDocumentName:
        CheckNewOutputDocument(edit.host, text);
        activity->SetOutputDocumentName(text);
        break;
    case DatasourceName: activity->SetDatasourceName(text); break;
    case To: activity->SetRecipientsTo(text); break;
    case CC: activity->SetRecipientsCC(text); break;
    case BCC: activity->SetRecipientsBCC(text); break;
    case Subject: activity->SetSubject(text); break;
    case SendMethod: ChangeByPosition(edit, &SendMail::SetSendMethod, *activity); break;
    case MailApplication: ChangeByPosition(edit, &SendMail::SetMailApplication, *activity); break;
    case Attachments: ChangeAttachments(*activity, text); break;
    default:
        if (edit.index >= SMTPServer && edit.index <= Charset) (*activity).*kServerMembers[edit.index - SMTPServer] = text;
        break;  // the body has its own tool
    }
    return true;
}

}  // namespace

std::string BodyShownText(const std::string& body) {
    if (FindNoCase(body, "<html") != std::string::npos && FindNoCase(body, "</html>") != std::string::npos)
        return "(HTML)";
    if (IsFieldReference(body)) return body;
    return "(Plain Text)";
}

bool IsFieldReference(std::string_view text) {
    return text.starts_with("[Field:") && text.ends_with("]") && text.find('\r') == std::string_view::npos;
}

void KeyDownEdit(int kind, int keyCode, SheetHost& host, grid::Property* selected) {
    if (keyCode != kDeleteKey || kind != kSendMailSheet || !selected || RowTag(*selected) != "Body") return;
    if (const auto activity = SelectedActivityOf<SendMail>(host)) activity->SetBody({});
    selected->SetValue({});
}

const SheetTable& SendMailSheetTable() {
    static constexpr SheetTable table{"SendMail",       "SetSendMailPropertiesValues", AddSendMailRows,
                                      SetSendMailPropertiesValues, "SendMailChange", SendMailChange};
    return table;
}

}  // namespace flowloom::sheets
