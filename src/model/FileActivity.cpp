#include "model/FileActivity.h"

#include "model/ActivityDocuments.h"
#include "model/Document.h"
#include "app/XmlDocument.h"

namespace flowloom {

std::shared_ptr<Document> FileActivity::InputDocument() {
    return ResolveInputDocument(inputDocument_, inputDocumentName_, ParentProcess(), inputError_);
}

void FileActivity::SetOutputDocumentName(const std::string& name) {
    if (producesDocuments_) RenameOutputDocument(ParentProcess(), outputDocumentName_, name);
    outputDocumentName_ = name;
}

void FileActivity::Dispose() {
    inputDocument_.reset();
    outputDocument_.reset();
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
