#pragma once

#include "app/SparseMembers.h"
#include "app/Tracked.h"
#include "model/Activity.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace flowloom {

class Datasource;
class Document;

// Creates a document from a template and a datasource.
class MailMerge : public Activity {
public:
    static constexpr ActivityKind kKind = ActivityKind::MailMerge;
    ActivityKind Kind() const noexcept override { return kKind; }

    std::vector<std::string>& Pictures();  // created on first read

    const std::string& Iteration() const noexcept { return iteration_; }
    void SetIteration(std::string value) { iteration_ = std::move(value); }
    const std::string& PrecededBy() const noexcept { return precededBy_; }
    void SetPrecededBy(std::string value) { precededBy_ = std::move(value); }
    const std::string& SucceededBy() const noexcept { return succeededBy_; }
    void SetSucceededBy(std::string value) { succeededBy_ = std::move(value); }
    bool InsertPagebreak() const noexcept { return insertPagebreak_; }
    void SetInsertPagebreak(bool value) { insertPagebreak_ = value; }
    // 0 Document, 1 Listing, 2 Labels, 3 Email, 4 Directory, 5 Envelope.
    std::int32_t MailMergeType() const noexcept { return mailMergeType_; }
    void SetMailMergeType(std::int32_t value) { mailMergeType_ = value; }

    // Never gives an object back: code that asks goes by DatasourceName.
    std::shared_ptr<flowloom::Datasource> Datasource() const { return nullptr; }
    void SetDatasource(std::shared_ptr<flowloom::Datasource> datasource);
    // Falls back on the held datasource's name.
    const std::string& DatasourceName() const;
    void SetDatasourceName(std::string value) { datasourceName_ = std::move(value); }

    std::shared_ptr<Document> OutputDocument() const;
    const std::string& OutputDocumentName() const noexcept { return outputDocumentName_; }
    // Keeps the process's documents in step with the new name.
    void SetOutputDocumentName(const std::string& name);

    // "Microsoft Word" when empty, and kept.
    const std::string& InvokedApplication() const;
    void SetInvokedApplication(std::string value) { invokedApplication_ = std::move(value); }
    const std::string& Template() const noexcept { return template_; }
    void SetTemplate(std::string value) { template_ = std::move(value); }
    bool ShowDocument() const noexcept { return showDocument_; }
    void SetShowDocument(bool value) { showDocument_ = value; }

    void Dispose() override;
    void LoadElement(const XmlElementView& node, const std::shared_ptr<Process>& process) override;
    const std::string* ProducedDocumentName() const override { return &outputDocumentName_; }

private:
    // What a run holds; the designer seldom sets any of it.
    struct Held {
        std::vector<std::string> pictures;
        std::shared_ptr<flowloom::Datasource> datasource;
        std::shared_ptr<Document> outputDocument;
    };
    LazyPart<Held> held_;
    SparseString iteration_;
    SparseString precededBy_;
    SparseString succeededBy_;
    Tracked<bool> insertPagebreak_ = true;
    Tracked<std::int32_t> mailMergeType_ = 0;
    mutable TrackedString datasourceName_;  // falls back on the datasource's name
    TrackedString outputDocumentName_;
    mutable TrackedString invokedApplication_;  // "Microsoft Word" on first read when empty
    TrackedString template_;
    Tracked<bool> showDocument_ = true;
};

}  // namespace flowloom
