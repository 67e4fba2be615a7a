#include "model/PrintOut.h"

#include "app/ErrorNumbers.h"
#include "model/ActivityDocuments.h"
#include "model/Document.h"
#include "model/Process.h"
#include "model/xml/XmlDocument.h"

namespace flowloom {

const std::array<const char*, static_cast<std::size_t>(PrintOutArg::Count)> kPrintOutArgNames = {
    "OutputFileName", "From", "To", "Copies", "PrintToFile", "Collate", "FileName",
    "Preview", "IgnorePrintAreas",
    "Background", "Append", "Range", "Item", "Pages", "PageType", "ManualDuplexPrint",
    "PrintZoomColumn", "PrintZoomRow", "PrintZoomPaperWidth", "PrintZoomPaperHeight",
};

std::shared_ptr<Document> PrintOut::InputDocument() {
    return ResolveInputDocument(inputDocument_, inputDocumentName_, ParentProcess(),
                                errnum::DocumentNotCreatedPrintOut);
}

std::int32_t PrintOut::InputDocumentKind() const {
    auto process = ParentProcess();
    if (inputDocumentName_.empty() || !process) return dockind::Other;
    return process->DocumentKind(inputDocumentName_, false);
}

void PrintOut::Dispose() {
    inputDocument_.reset();
    outputDocument_.reset();
    Activity::Dispose();
}

void PrintOut::LoadElement(const pugi::xml_node& node, const std::shared_ptr<Process>& process) {
    SetParentProcess(process);
    for (const pugi::xml_attribute& a : node.attributes()) {
        try {
            const std::string value = a.value();
            if (NameIs(a, "InputDocumentName")) inputDocumentName_ = value;
            else if (NameIs(a, "Folder")) SetFolder(value);
            else if (NameIs(a, "File")) SetFile(value);
            else if (NameIs(a, "FullName")) SetFullName(TaggedValue(value));
            else if (NameIs(a, "Description")) SetDescription(value);
            else if (NameIs(a, "Printer")) {
                if (!value.empty()) printer_ = value;
            } else if (int arg = FindArgument(kPrintOutArgNames, a.name()); arg >= 0) {
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
