#include "model/Convert.h"

#include "app/ErrorNumbers.h"
#include "app/VbStrings.h"
#include "model/ActivityDocuments.h"
#include "model/Document.h"
#include "model/Process.h"
#include "model/xml/XmlDocument.h"

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

std::int32_t NumberOr(const char* text, std::int32_t fallback) {
    auto n = vb::ToNumber(text);
    return n ? vb::CLng(*n) : fallback;
}

}  // namespace

bool DistillerInstalled() { return false; }

std::shared_ptr<Document> Convert::InputDocument() {
    return ResolveInputDocument(inputDocument_, inputDocumentName_, ParentProcess(), errnum::DocumentNotCreatedConvert);
}

void Convert::SetOutputDocumentName(const std::string& name) {
    try {
        RenameOutputDocument(ParentProcess(), outputDocumentName_, name);
    } catch (...) {
    }
    outputDocumentName_ = name;
}

std::string Convert::FullName() {
    if (target_.HasFullName()) return target_.StoredFullName().Text();
    if (!target_.Folder().empty() && !target_.File().empty()) return target_.JoinedFullName();
    // A Convert without a target gets one now and keeps it, so that a later
    // read names the same file.
    target_.SetFullName(TaggedValue(TemporaryFolderWithSeparator() + "vlk" + vb::Right(vb::SerialNowText(), 9)));
    return target_.StoredFullName().Text();
}

std::int32_t Convert::Postscript2PDFConverter() {
    if (postscript2PDFConverter_ == 0) postscript2PDFConverter_ = DistillerInstalled() ? 1 : 2;
    return postscript2PDFConverter_;
}

void Convert::Dispose() {
    inputDocument_.reset();
    outputDocument_.reset();
    Activity::Dispose();
}

void Convert::LoadElement(const pugi::xml_node& node, const std::shared_ptr<Process>& process) {
    SetParentProcess(process);
    for (const pugi::xml_attribute& a : node.attributes()) {
        try {
            const char* value = a.value();
            if (NameIs(a, "InputDocumentName")) inputDocumentName_ = value;
            else if (NameIs(a, "OutputDocumentName")) {
                outputDocumentName_ = value;
                AddDocumentNamed(process, value);
            } else if (NameIs(a, "Folder")) SetFolder(value);
            else if (NameIs(a, "File")) SetFile(value);
            else if (NameIs(a, "FullName")) SetFullName(TaggedValue(value));
            else if (NameIs(a, "Description")) SetDescription(value);
            else if (NameIs(a, "OverwriteExistingFile")) {
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
