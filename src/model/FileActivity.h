#pragma once

#include "app/Tracked.h"
#include "app/XmlDocument.h"
#include "model/Activity.h"
#include "model/FileTarget.h"

#include <cstdint>
#include <memory>
#include <string>

namespace flowloom {

class Document;

// The shape shared by the activities that take a document produced earlier
// and may produce one (SaveAs, PrintOut, Convert, SendMail): the input and
// output documents with their names, and the target file.
class FileActivity : public Activity {
public:
    FileTarget& Target() noexcept { return target_; }
    const FileTarget& Target() const noexcept { return target_; }
    const std::string& Folder() const noexcept { return target_.Folder(); }
    void SetFolder(const std::string& value) { target_.SetFolder(value); }
    const std::string& File() const noexcept { return target_.File(); }
    void SetFile(const std::string& value) { target_.SetFile(value); }
    // The stored full name, else folder and file joined with one backslash.
    virtual std::string FullName() { return target_.JoinedFullName(); }
    void SetFullName(const TaggedValue& value) { target_.SetFullName(value); }

    // The held document, else the one of InputDocumentName in the process
    // (kept once found); raises the activity's error when none resolves,
    // if it has one.
    std::shared_ptr<Document> InputDocument();
    void SetInputDocument(std::shared_ptr<Document> document);
    std::shared_ptr<Document> OutputDocument() const;
    const std::string& InputDocumentName() const noexcept { return inputDocumentName_; }
    void SetInputDocumentName(std::string value) { inputDocumentName_ = std::move(value); }
    const std::string& OutputDocumentName() const noexcept { return outputDocumentName_; }
    // Activities that produce documents keep the process's documents in step.
    void SetOutputDocumentName(const std::string& name);

    void Dispose() override;
    const std::string* ProducedDocumentName() const override { return &outputDocumentName_; }

protected:
    // `inputError`: the number raised when the input does not resolve (0: none);
    // `producesDocuments`: whether a new output name renames the document.
    FileActivity(std::int32_t inputError, bool producesDocuments)
        : inputError_(inputError), producesDocuments_(producesDocuments) {}

    // Stores the name without renaming any document.
    void StoreOutputDocumentName(std::string name) { outputDocumentName_ = std::move(name); }
    // Takes InputDocumentName, Folder, File, FullName and Description;
    // false for any other attribute.
    bool ReadCommonAttribute(const MeasuredAttribute& attribute);

private:
    std::int32_t inputError_;
    bool producesDocuments_;
    FileTarget target_;
    // The documents of a run; the designer never holds any.
    struct HeldDocuments {
        std::shared_ptr<Document> input;
        std::shared_ptr<Document> output;
    };
    LazyPart<HeldDocuments> held_;
    TrackedString inputDocumentName_;
    TrackedString outputDocumentName_;
};

}  // namespace flowloom
