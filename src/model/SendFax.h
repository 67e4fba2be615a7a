#pragma once

#include "app/Tracked.h"
#include "model/Activity.h"

#include <memory>
#include <string>

namespace flowloom {

class Document;

// Sends a document produced earlier by fax.
class SendFax : public Activity {
public:
    static constexpr ActivityKind kKind = ActivityKind::SendFax;
    ActivityKind Kind() const noexcept override { return kKind; }

    std::shared_ptr<Document> InputDocument();  // error 30050 when it does not resolve
    void SetInputDocument(std::shared_ptr<Document> document) { inputDocument_ = std::move(document); }
    const std::string& InputDocumentName() const noexcept { return inputDocumentName_; }
    void SetInputDocumentName(std::string value) { inputDocumentName_ = std::move(value); }
    const std::string& Address() const noexcept { return address_; }
    void SetAddress(std::string value) { address_ = std::move(value); }
    const std::string& Subject() const noexcept { return subject_; }
    void SetSubject(std::string value) { subject_ = std::move(value); }

    void Dispose() override;
    void LoadElement(const XmlElementView& node, const std::shared_ptr<Process>& process) override;

private:
    std::shared_ptr<Document> inputDocument_;
    TrackedString inputDocumentName_;
    TrackedString address_;
    TrackedString subject_;
};

}  // namespace flowloom
