#pragma once

#include "model/Activity.h"
#include "model/FileTarget.h"
#include "model/PassThroughValues.h"

#include <array>
#include <memory>
#include <string>

namespace flowloom {

class Document;

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
class SaveAs : public Activity {
public:
    std::string ActivityType() const override { return "SaveAs"; }

    // 0 "Yes", 1 "Confirm", 2 "No"; the file holds it only once it was set.
    std::int32_t OverwriteExistingFile() const noexcept { return overwrite_.Value(); }
    void SetOverwriteExistingFile(std::int32_t value) { overwrite_.Set(value); }
    bool OverwriteSet() const noexcept { return overwrite_.WasSet(); }

    FileTarget& Target() noexcept { return target_; }
    const FileTarget& Target() const noexcept { return target_; }
    const std::string& Folder() const noexcept { return target_.Folder(); }
    void SetFolder(const std::string& value) { target_.SetFolder(value); }
    const std::string& File() const noexcept { return target_.File(); }
    void SetFile(const std::string& value) { target_.SetFile(value); }
    std::string FullName() const { return target_.JoinedFullName(); }
    void SetFullName(const TaggedValue& value) { target_.SetFullName(value); }

    // Resolves InputDocumentName in the process; error 30047 when it does not.
    std::shared_ptr<Document> InputDocument();
    void SetInputDocument(std::shared_ptr<Document> document) { inputDocument_ = std::move(document); }
    std::shared_ptr<Document> OutputDocument() const { return outputDocument_; }
    const std::string& InputDocumentName() const noexcept { return inputDocumentName_; }
    void SetInputDocumentName(std::string value) { inputDocumentName_ = std::move(value); }
    const std::string& OutputDocumentName() const noexcept { return outputDocumentName_; }
    void SetOutputDocumentName(std::string value) { outputDocumentName_ = std::move(value); }

    const TaggedValue& Argument(SaveAsArg arg) const { return arguments_.Get(arg); }
    void SetArgument(SaveAsArg arg, TaggedValue value) { arguments_.Set(arg, std::move(value)); }

    // The kind of the producer of the input document: 1 Word, 2 Excel, ...
    std::int32_t InputDocumentKind() const;

    void Dispose() override;
    void LoadElement(const pugi::xml_node& node, const std::shared_ptr<Process>& process) override;
    std::optional<std::string> ProducedDocumentName() override { return outputDocumentName_; }

private:
    OverwriteMode overwrite_{0};
    FileTarget target_;
    std::shared_ptr<Document> inputDocument_;
    std::shared_ptr<Document> outputDocument_;
    std::string inputDocumentName_;
    std::string outputDocumentName_;
    PassThroughValues<SaveAsArg, static_cast<std::size_t>(SaveAsArg::Count)> arguments_;
};

}  // namespace flowloom
