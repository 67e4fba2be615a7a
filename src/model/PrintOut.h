#pragma once

#include "model/Activity.h"
#include "model/FileTarget.h"
#include "model/PassThroughValues.h"

#include <array>
#include <memory>
#include <string>

namespace flowloom {

class Document;

// Arguments of the print call: general ones, then Excel's (Preview,
// IgnorePrintAreas), then Word's, in the order the file writes them.
enum class PrintOutArg {
    OutputFileName, From, To_, Copies, PrintToFile, Collate, FileName,
    Preview, IgnorePrintAreas,
    Background, Append, Range, Item, Pages, PageType, ManualDuplexPrint,
    PrintZoomColumn, PrintZoomRow, PrintZoomPaperWidth, PrintZoomPaperHeight,
    Count
};

// The attribute names of the arguments (To_ is saved as To).
extern const std::array<const char*, static_cast<std::size_t>(PrintOutArg::Count)> kPrintOutArgNames;

// The label that stands for "no particular printer".
inline constexpr const char* kDefaultPrinterLabel = "(Default printer)";

// Prints a document produced earlier.
class PrintOut : public Activity {
public:
    std::string ActivityType() const override { return "PrintOut"; }

    const std::string& Printer() const noexcept { return printer_; }
    void SetPrinter(std::string value) { printer_ = std::move(value); }

    const TaggedValue& Argument(PrintOutArg arg) const { return arguments_.Get(arg); }
    void SetArgument(PrintOutArg arg, TaggedValue value) { arguments_.Set(arg, std::move(value)); }

    FileTarget& Target() noexcept { return target_; }
    const FileTarget& Target() const noexcept { return target_; }
    const std::string& Folder() const noexcept { return target_.Folder(); }
    void SetFolder(const std::string& value) { target_.SetFolder(value); }
    const std::string& File() const noexcept { return target_.File(); }
    void SetFile(const std::string& value) { target_.SetFile(value); }
    std::string FullName() const { return target_.JoinedFullName(); }
    void SetFullName(const TaggedValue& value) { target_.SetFullName(value); }

    // Resolves InputDocumentName in the process; error 30048 when it does not.
    std::shared_ptr<Document> InputDocument();
    void SetInputDocument(std::shared_ptr<Document> document) { inputDocument_ = std::move(document); }
    std::shared_ptr<Document> OutputDocument() const { return outputDocument_; }
    const std::string& InputDocumentName() const noexcept { return inputDocumentName_; }
    void SetInputDocumentName(std::string value) { inputDocumentName_ = std::move(value); }
    const std::string& OutputDocumentName() const noexcept { return outputDocumentName_; }
    void SetOutputDocumentName(std::string value) { outputDocumentName_ = std::move(value); }

    // Only Word (1) or Excel (2) count here; any other producer gives 0.
    std::int32_t InputDocumentKind() const;

    void Dispose() override;
    void LoadElement(const pugi::xml_node& node, const std::shared_ptr<Process>& process) override;
    std::optional<std::string> ProducedDocumentName() override { return outputDocumentName_; }

private:
    std::string printer_;
    PassThroughValues<PrintOutArg, static_cast<std::size_t>(PrintOutArg::Count)> arguments_;
    FileTarget target_;
    std::shared_ptr<Document> inputDocument_;
    std::shared_ptr<Document> outputDocument_;
    std::string inputDocumentName_;
    std::string outputDocumentName_;
};

}  // namespace flowloom
