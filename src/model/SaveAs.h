#pragma once

#include "model/FileActivity.h"
#include "model/PassThroughValues.h"

#include <array>
#include <memory>
#include <string>

namespace flowloom {

// Arguments of the Word save (FileFormat to AddBiDiMarks) and of the Excel
// save (CreateBackup to Local_), in the order the file writes them.
enum class SaveAsArg {
    FileFormat, Password, WritePassword, ReadOnlyRecommended,
    LockComments, AddToRecentFiles, EmbedTrueTypeFonts, SaveNativePictureFormat, SaveFormsData,
    SaveAsAOCELetter, Encoding, InsertLineBreaks, AllowSubstitutions, LineEnding, AddBiDiMarks,
    CreateBackup, AccessMode, ConflictResolution, AddToMru, TextCodepage, TextVisualLayout, Local_,
    Count
};

// The attribute names of the arguments (Local_ is saved as Local).
extern const std::array<const char*, static_cast<std::size_t>(SaveAsArg::Count)> kSaveAsArgNames;

// Saves a document produced earlier.
class SaveAs : public FileActivity {
public:
    SaveAs();
    static constexpr ActivityKind kKind = ActivityKind::SaveAs;
    ActivityKind Kind() const noexcept override { return kKind; }

    // 0 "Yes", 1 "Confirm", 2 "No"; the file holds it only once it was set.
    std::int32_t OverwriteExistingFile() const noexcept { return overwrite_.Value(); }
    void SetOverwriteExistingFile(std::int32_t value) { overwrite_.Set(value); }
    bool OverwriteSet() const noexcept { return overwrite_.WasSet(); }
    void ForgetOverwriteSet() noexcept { overwrite_.ClearSet(); }

    const TaggedValue& Argument(SaveAsArg arg) const { return arguments_.Get(arg); }
    void SetArgument(SaveAsArg arg, TaggedValue value) { arguments_.Set(arg, std::move(value)); }

    // The kind of the producer of the input document: 1 Word, 2 Excel, ...
    std::int32_t InputDocumentKind() const;

    void LoadElement(const XmlElementView& node, const std::shared_ptr<Process>& process) override;

private:
    OverwriteMode overwrite_{0};
    PassThroughValues<SaveAsArg, static_cast<std::size_t>(SaveAsArg::Count)> arguments_;
};

}  // namespace flowloom
