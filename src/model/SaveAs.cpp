#include "model/SaveAs.h"

#include "app/ErrorNumbers.h"
#include "model/ActivityDocuments.h"
#include "model/Document.h"
#include "model/Process.h"
#include "model/xml/XmlDocument.h"

namespace flowloom {

const std::array<const char*, static_cast<std::size_t>(SaveAsArg::Count)> kSaveAsArgNames = {
    "FileFormat", "Password", "WritePassword", "ReadOnlyRecommended",
    "LockComments", "AddToRecentFiles", "EmbedTrueTypeFonts", "SaveNativePictureFormat", "SaveFormsData",
    "SaveAsAOCELetter", "Encoding", "InsertLineBreaks", "AllowSubstitutions", "LineEnding", "AddBiDiMarks",
    "CreateBackup", "AccessMode", "ConflictResolution", "AddToMru", "TextCodepage", "TextVisualLayout", "Local",
};

std::shared_ptr<Document> SaveAs::InputDocument() {
    return ResolveInputDocument(inputDocument_, inputDocumentName_, ParentProcess(), errnum::DocumentNotCreatedSaveAs);
}

std::int32_t SaveAs::InputDocumentKind() const {
    auto process = ParentProcess();
    if (inputDocumentName_.empty() || !process) return dockind::Other;
    return process->DocumentKind(inputDocumentName_, true);
}

void SaveAs::Dispose() {
    inputDocument_.reset();
    outputDocument_.reset();
    Activity::Dispose();
}

void SaveAs::LoadElement(const pugi::xml_node& node, const std::shared_ptr<Process>& process) {
    SetParentProcess(process);
    for (const pugi::xml_attribute& a : node.attributes()) {
        try {
            if (NameIs(a, "Folder")) SetFolder(a.value());
            else if (NameIs(a, "File")) SetFile(a.value());
            else if (NameIs(a, "FullName")) SetFullName(TaggedValue(a.value()));
            else if (NameIs(a, "Description")) SetDescription(a.value());
            else if (NameIs(a, "InputDocumentName")) inputDocumentName_ = a.value();
            else if (NameIs(a, "OverwriteExistingFile")) {
                if (auto mode = ReadOverwriteMode(a.value())) SetOverwriteExistingFile(*mode);
            } else if (int arg = FindArgument(kSaveAsArgNames, a.name()); arg >= 0) {
                SetArgument(static_cast<SaveAsArg>(arg), TaggedValue(a.value()));
            }
        } catch (...) {
            // a single attribute that fails is skipped
        }
    }
}

}  // namespace flowloom
