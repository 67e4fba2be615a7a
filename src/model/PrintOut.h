#pragma once

#include "app/Tracked.h"
#include "model/FileActivity.h"
#include "model/PassThroughValues.h"

#include <array>
#include <memory>
#include <string>

namespace flowloom {

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
class PrintOut : public FileActivity {
public:
    PrintOut();
    static constexpr ActivityKind kKind = ActivityKind::PrintOut;
    ActivityKind Kind() const noexcept override { return kKind; }

    const std::string& Printer() const noexcept { return printer_; }
    void SetPrinter(std::string value) { printer_ = std::move(value); }

    const TaggedValue& Argument(PrintOutArg arg) const { return arguments_.Get(arg); }
    void SetArgument(PrintOutArg arg, TaggedValue value) { arguments_.Set(arg, std::move(value)); }

    // Only Word (1) or Excel (2) count here; any other producer gives 0.
    std::int32_t InputDocumentKind() const;

    void LoadElement(const XmlElementView& node, const std::shared_ptr<Process>& process) override;

private:
    TrackedString printer_;
    PassThroughValues<PrintOutArg, static_cast<std::size_t>(PrintOutArg::Count)> arguments_;
};

}  // namespace flowloom
