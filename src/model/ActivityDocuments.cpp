#include "model/ActivityDocuments.h"

#include "app/ErrorNumbers.h"
#include "support/TextCompare.h"
#include "model/Document.h"
#include "model/Documents.h"
#include "model/Process.h"

namespace flowloom {

std::shared_ptr<Document> ResolveInputDocument(std::shared_ptr<Document>& held, const std::string& name,
                                               const std::shared_ptr<Process>& process, std::int32_t errorNumber) {
    if (!held && !name.empty() && process) {
        if (auto documents = process->Documents()) held = documents->Find(name);
    }
    if (!held && errorNumber != 0) errnum::Raise(errorNumber);
    return held;
}

void RenameOutputDocument(const std::shared_ptr<Process>& process, const std::string& oldName,
                          const std::string& newName) {
    // An empty new name makes no nameless document.
    if (EqualsNoCase(oldName, newName) || newName.empty() || !process) return;
    auto documents = process->Documents();
    if (!documents) return;
    try {
        if (auto document = oldName.empty() ? nullptr : documents->Find(oldName)) {
            documents->Remove(CollectionPosition{oldName});
            document->name = newName;
            documents->Add(document, newName);
        } else {
            AddDocumentNamed(process, newName);
        }
    } catch (...) {
    }
}

void AddDocumentNamed(const std::shared_ptr<Process>& process, const std::string& name) {
    if (name.empty() || !process || !process->Documents()) return;
    // A name that exists is ignored by the collection anyway.
    if (process->Documents()->Contains(name)) return;
    auto document = std::make_shared<Document>();
    document->name = name;
    process->Documents()->Add(document, name);
}

}  // namespace flowloom
