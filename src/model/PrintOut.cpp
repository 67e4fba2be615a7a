#include "model/PrintOut.h"

#include "app/ErrorNumbers.h"
#include "model/Process.h"
#include "app/XmlDocument.h"

namespace flowloom {

const std::array<const char*, static_cast<std::size_t>(PrintOutArg::Count)> kPrintOutArgNames = {
    "OutputFileName", "From", "To", "Copies", "PrintToFile", "Collate", "FileName",
    "Preview", "IgnorePrintAreas",
    "Background", "Append", "Range", "Item", "Pages", "PageType", "ManualDuplexPrint",
    "PrintZoomColumn", "PrintZoomRow", "PrintZoomPaperWidth", "PrintZoomPaperHeight",
};

PrintOut::PrintOut() : FileActivity(errnum::DocumentNotCreatedPrintOut, false) {}

std::int32_t PrintOut::InputDocumentKind() const {
    auto process = ParentProcess();
    if (InputDocumentName().empty() || !process) return dockind::Other;
    return process->DocumentKind(InputDocumentName(), false);
}

void PrintOut::LoadElement(const XmlElementView& node, const std::shared_ptr<Process>& process) {
    SetParentProcess(process);
    for (const MeasuredAttribute a : MeasuredAttributes(node)) {
        try {
            if (ReadCommonAttribute(a)) continue;
            const std::string value(a.value());
            if (NameIs(a, "Printer")) {
                if (!value.empty()) printer_ = value;
            } else if (int arg = FindArgument(kPrintOutArgNames, a); arg >= 0) {
                const auto which = static_cast<PrintOutArg>(arg);
                const bool onlyWhenGiven = which == PrintOutArg::Preview || which == PrintOutArg::IgnorePrintAreas;
                if (!onlyWhenGiven || !value.empty()) SetArgument(which, TaggedValue(value));
            }
        } catch (...) {
            // a single attribute that fails is skipped
        }
    }
}

}  // namespace flowloom
