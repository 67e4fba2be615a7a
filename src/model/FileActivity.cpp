#include "model/FileActivity.h"

#include "model/ActivityDocuments.h"
#include "model/Document.h"
#include "app/XmlDocument.h"

namespace flowloom {

std::shared_ptr<Document> FileActivity::InputDocument() {
    const HeldDocuments* held = held_.Find();
    std::shared_ptr<Document> input = held ? held->input : nullptr;
    const bool wasHeld = input != nullptr;
    auto document = ResolveInputDocument(input, inputDocumentName_, ParentProcess(), inputError_);
    if (!wasHeld && input) held_.Get().input = std::move(input);
    return document;
}

void FileActivity::SetInputDocument(std::shared_ptr<Document> document) {
    if (!document && !held_.Find()) return;
    held_.Get().input = std::move(document);
}

std::shared_ptr<Document> FileActivity::OutputDocument() const {
    const HeldDocuments* held = held_.Find();
    return held ? held->output : nullptr;
}

void FileActivity::SetOutputDocumentName(const std::string& name) {
    if (producesDocuments_) RenameOutputDocument(ParentProcess(), outputDocumentName_, name);
    outputDocumentName_ = name;
}

void FileActivity::Dispose() {
    held_.Reset();
    Activity::Dispose();
}

bool FileActivity::ReadCommonAttribute(const MeasuredAttribute& a) {
    if (NameIs(a, "InputDocumentName")) inputDocumentName_ = a.value();
    else if (NameIs(a, "Folder")) SetFolder(std::string(a.value()));
    else if (NameIs(a, "File")) SetFile(std::string(a.value()));
    else if (NameIs(a, "FullName")) SetFullName(TaggedValue(std::string(a.value())));
    else if (NameIs(a, "Description")) SetDescription(std::string(a.value()));
    else return false;
    return true;
}

}  // namespace flowloom
