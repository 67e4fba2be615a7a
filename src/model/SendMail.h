#pragma once

#include "app/SparseMembers.h"
#include "app/Tracked.h"
#include "app/CDictionary.h"
#include "app/KeyedCollection.h"
#include "model/FileActivity.h"

#include <cstdint>
#include <memory>
#include <string>

namespace flowloom {

class List;

using Attachments = KeyedCollection<CDictionary>;

// Sends a document produced earlier, or a message of its own, by mail.
class SendMail : public FileActivity {
public:
    SendMail();
    static constexpr ActivityKind kKind = ActivityKind::SendMail;
    ActivityKind Kind() const noexcept override { return kKind; }

    // Falls back on the process's main datasource and keeps it.
    const std::string& DatasourceName() const;
    void SetDatasourceName(std::string value) { datasourceName_ = std::move(value); }
    // 0 Default, 1 Outlook, 2 CDO, 3 Groupwise.
    std::int32_t MailApplication() const noexcept { return mailApplication_; }
    void SetMailApplication(std::int32_t value) { mailApplication_ = value; }
    // 0 Send, 1 Display, 2 Draft.
    std::int32_t SendMethod() const noexcept { return sendMethod_; }
    void SetSendMethod(std::int32_t value) { sendMethod_ = value; }

    SparseString SMTPServer, SendUsername, SendPassword, SMTPServerPort, From, Charset;

    std::shared_ptr<List> To_() const { return to_; }
    void SetTo_(std::shared_ptr<List> list) { SetList(to_, std::move(list)); }
    std::shared_ptr<List> CC() const { return cc_; }
    void SetCC(std::shared_ptr<List> list) { SetList(cc_, std::move(list)); }
    std::shared_ptr<List> BCC() const { return bcc_; }
    void SetBCC(std::shared_ptr<List> list) { SetList(bcc_, std::move(list)); }
    // Fixed recipient texts that go before the lists.
    void SetRecipientsTo(std::string value) { recipientsTo_ = std::move(value); }
    void SetRecipientsCC(std::string value) { recipientsCC_ = std::move(value); }
    void SetRecipientsBCC(std::string value) { recipientsBCC_ = std::move(value); }
    const std::string& RecipientsTo() const noexcept { return recipientsTo_; }
    const std::string& RecipientsCC() const noexcept { return recipientsCC_; }
    const std::string& RecipientsBCC() const noexcept { return recipientsBCC_; }
    // The fixed text if any, else the list's text, else "".
    std::string RecipientsToText() const;
    std::string RecipientsCCText() const;
    std::string RecipientsBCCText() const;

    const std::string& Subject() const noexcept { return subject_; }
    void SetSubject(std::string value) { subject_ = std::move(value); }
    const std::string& Body() const noexcept { return body_; }
    void SetBody(std::string value) { body_ = std::move(value); }

    // Adds a file path or a placeholder; a name that exists is reported.
    void AddAttachment(const std::string& name);
    std::shared_ptr<flowloom::Attachments> Attachments() const { return attachments_; }
    void ClearAttachments() {
        attachments_ = std::make_shared<flowloom::Attachments>();
        ModelRevision::Bump();
    }

    void Dispose() override;
    void LoadElement(const XmlElementView& node, const std::shared_ptr<Process>& process) override;

private:
    static void SetList(std::shared_ptr<List>& member, std::shared_ptr<List> list) {
        member = std::move(list);
        ModelRevision::Bump();
    }

    mutable TrackedString datasourceName_;  // falls back on the main datasource
    Tracked<std::int32_t> mailApplication_ = 0;
    Tracked<std::int32_t> sendMethod_ = 0;
    std::shared_ptr<List> to_, cc_, bcc_;
    SparseString recipientsTo_, recipientsCC_, recipientsBCC_;
    TrackedString subject_;
    SparseString body_;
    std::shared_ptr<flowloom::Attachments> attachments_;
};

}  // namespace flowloom
