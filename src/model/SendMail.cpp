#include "model/SendMail.h"

#include "support/ReportError.h"
#include "support/VbStrings.h"
#include "model/ActivityDocuments.h"
#include "model/List.h"
#include "model/Process.h"
#include "app/XmlDocument.h"

namespace flowloom {

namespace {

std::string RecipientsText(const std::string& fixed, const std::shared_ptr<List>& list) {
    if (!fixed.empty()) return fixed;
    return list ? list->ValueList() : std::string();
}

std::shared_ptr<List> ListOf(const std::string& text) {
    auto list = std::make_shared<List>();
    list->SetValueList(text);
    return list;
}

}  // namespace

SendMail::SendMail() : FileActivity(0, true), attachments_(std::make_shared<flowloom::Attachments>()) {}

const std::string& SendMail::DatasourceName() const {
    if (datasourceName_.empty())
        if (auto process = ParentProcess()) datasourceName_ = process->MainDataSourceName();
    return datasourceName_;
}

std::string SendMail::RecipientsToText() const { return RecipientsText(recipientsTo_, to_); }
std::string SendMail::RecipientsCCText() const { return RecipientsText(recipientsCC_, cc_); }
std::string SendMail::RecipientsBCCText() const { return RecipientsText(recipientsBCC_, bcc_); }

void SendMail::AddAttachment(const std::string& name) {
    Guarded("SendMail", "AddAttachment", [&] {
        attachments_->Add(std::make_shared<CDictionary>(CDictionary{name, {}}), name);
    });
}

void SendMail::Dispose() {
    attachments_ = std::make_shared<flowloom::Attachments>();
    to_.reset();
    cc_.reset();
    bcc_.reset();
    FileActivity::Dispose();
}

void SendMail::LoadElement(const XmlElementView& node, const std::shared_ptr<Process>& process) {
    SetParentProcess(process);
    for (const MeasuredAttribute a : MeasuredAttributes(node)) {
        try {
            if (ReadCommonAttribute(a)) continue;
            const std::string value(a.value());
            if (NameIs(a, "OutputDocumentName")) {
                SetOutputDocumentName(value);
                AddDocumentNamed(process, value);
            } else if (NameIs(a, "Subject")) subject_ = value;
            else if (NameIs(a, "Body")) body_ = value;
            else if (NameIs(a, "DatasourceName")) datasourceName_ = value;
            else if (NameIs(a, "SMTPServer")) SMTPServer = value;
            else if (NameIs(a, "SMTPServerPort")) SMTPServerPort = value;
            else if (NameIs(a, "SendUsername")) SendUsername = value;
            else if (NameIs(a, "SendPassword")) SendPassword = value;
            else if (NameIs(a, "From")) From = value;
            else if (NameIs(a, "Charset")) Charset = value;
            else if (NameIs(a, "To")) to_ = ListOf(value);
            else if (NameIs(a, "CC")) cc_ = ListOf(value);
            else if (NameIs(a, "BCC")) bcc_ = ListOf(value);
            else if (NameIs(a, "SendMethod")) {
                if (auto n = vb::ToNumber(value)) sendMethod_ = vb::CLng(*n);
            } else if (NameIs(a, "MailApplication")) {
                if (auto n = vb::ToNumber(value)) mailApplication_ = vb::CLng(*n);
            }
        } catch (...) {
            // a single attribute that fails is skipped
        }
    }
    // Each attachment is the value of its element's first attribute, whatever its name.
    for (const XmlElementView& child : node.child("Attachments").children()) {
        if (XmlElementAttribute first = child.first_attribute()) AddAttachment(std::string(first.value()));
    }
}

}  // namespace flowloom
