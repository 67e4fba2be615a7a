#include "model/SendFax.h"

#include "app/ErrorNumbers.h"
#include "model/ActivityDocuments.h"
#include "model/Document.h"
#include "app/XmlDocument.h"

namespace flowloom {

std::shared_ptr<Document> SendFax::InputDocument() {
    return ResolveInputDocument(inputDocument_, inputDocumentName_, ParentProcess(), errnum::DocumentNotCreatedSendFax);
}

void SendFax::Dispose() {
    inputDocument_.reset();
    Activity::Dispose();
}

void SendFax::LoadElement(const XmlElementView& node, const std::shared_ptr<Process>& process) {
    SetParentProcess(process);
    for (const MeasuredAttribute a : MeasuredAttributes(node)) {
        if (NameIs(a, "InputDocumentName")) inputDocumentName_ = a.value();
        else if (NameIs(a, "Subject")) subject_ = a.value();
        else if (NameIs(a, "Address")) address_ = a.value();
        else if (NameIs(a, "Description")) SetDescription(std::string(a.value()));
    }
}

}  // namespace flowloom
