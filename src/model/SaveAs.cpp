#include "model/SaveAs.h"

#include "app/ErrorNumbers.h"
#include "model/Process.h"
#include "app/XmlDocument.h"

namespace flowloom {

const std::array<const char*, static_cast<std::size_t>(SaveAsArg::Count)> kSaveAsArgNames = {
    "FileFormat", "Password", "WritePassword", "ReadOnlyRecommended",
    "LockComments", "AddToRecentFiles", "EmbedTrueTypeFonts", "SaveNativePictureFormat", "SaveFormsData",
    "SaveAsAOCELetter", "Encoding", "InsertLineBreaks", "AllowSubstitutions", "LineEnding", "AddBiDiMarks",
    "CreateBackup", "AccessMode", "ConflictResolution", "AddToMru", "TextCodepage", "TextVisualLayout", "Local",
};

SaveAs::SaveAs() : FileActivity(errnum::DocumentNotCreatedSaveAs, false) {}

std::int32_t SaveAs::InputDocumentKind() const {
    auto process = ParentProcess();
    if (InputDocumentName().empty() || !process) return dockind::Other;
    return process->DocumentKind(InputDocumentName(), true);
}

void SaveAs::LoadElement(const XmlElementView& node, const std::shared_ptr<Process>& process) {
    SetParentProcess(process);
    for (const MeasuredAttribute a : MeasuredAttributes(node)) {
        try {
            if (ReadCommonAttribute(a)) continue;
            if (NameIs(a, "OverwriteExistingFile")) {
                if (auto mode = ReadOverwriteMode(a.value())) SetOverwriteExistingFile(*mode);
            } else if (int arg = FindArgument(kSaveAsArgNames, a); arg >= 0) {
                SetArgument(static_cast<SaveAsArg>(arg), TaggedValue(std::string(a.value())));
            }
        } catch (...) {
            // a single attribute that fails is skipped
        }
    }
}

}  // namespace flowloom
