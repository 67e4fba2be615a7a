#include "model/Convert.h"

#include "app/ErrorNumbers.h"
#include "support/VbStrings.h"
#include "model/ActivityDocuments.h"
#include "model/Process.h"
#include "app/XmlDocument.h"

#include <filesystem>

namespace flowloom {

namespace {

std::string TemporaryFolderWithSeparator() {
    std::error_code ec;
    std::string folder = std::filesystem::temp_directory_path(ec).string();
    if (ec) return {};
    if (!folder.empty() && folder.back() != '/') folder += '/';
    return folder;
}

std::int32_t NumberOr(std::string_view text, std::int32_t fallback) {
    auto n = vb::ToNumber(text);
    return n ? vb::CLng(*n) : fallback;
}

}  // namespace

bool DistillerInstalled() { return false; }

Convert::Convert() : FileActivity(errnum::DocumentNotCreatedConvert, true) {}

std::string Convert::FullName() {
    if (Target().HasFullName()) return Target().StoredFullName().Text();
    if (!Target().Folder().empty() && !Target().File().empty()) return Target().JoinedFullName();
    // A Convert without a target gets one now and keeps it, so that a later
    // read names the same file.
    Target().SetFullName(TaggedValue(TemporaryFolderWithSeparator() + "vlk" + vb::Right(vb::SerialNowText(), 9)));
    return Target().StoredFullName().Text();
}

std::int32_t Convert::Postscript2PDFConverter() const {
    if (postscript2PDFConverter_ == 0) postscript2PDFConverter_ = DistillerInstalled() ? 1 : 2;
    return postscript2PDFConverter_;
}

void Convert::LoadElement(const XmlElementView& node, const std::shared_ptr<Process>& process) {
    SetParentProcess(process);
    for (const MeasuredAttribute a : MeasuredAttributes(node)) {
        try {
            if (ReadCommonAttribute(a)) continue;
            const std::string value(a.value());
            if (NameIs(a, "OutputDocumentName")) {
                // Stored as read; the document of that name is added once more, which an existing one makes idle.
                StoreOutputDocumentName(value);
                AddDocumentNamed(process, value);
            } else if (NameIs(a, "OverwriteExistingFile")) {
                if (auto mode = ReadOverwriteMode(value)) SetOverwriteExistingFile(*mode);
            } else if (NameIs(a, "Show")) showDocument_ = vb::ReadBool(value);
            else if (NameIs(a, "OutputConvertFormat")) outputFileFormat_ = NumberOr(value, outputFileFormat_);
            else if (NameIs(a, "PDFConvertingMethod")) pdfConvertingMethod_ = NumberOr(value, pdfConvertingMethod_);
            else if (NameIs(a, "PostscriptToPDFConverter"))
                postscript2PDFConverter_ = NumberOr(value, postscript2PDFConverter_);
            else if (NameIs(a, "PostScriptPrinter")) postscriptPrinter_ = value;
        } catch (...) {
            // a single attribute that fails is skipped
        }
    }
}

}  // namespace flowloom
