#pragma once

#include "model/Activity.h"
#include "model/FileTarget.h"

#include <cstdint>
#include <memory>
#include <string>

namespace flowloom {

class Document;

// Turns a document produced earlier into another format (PDF).
class Convert : public Activity {
public:
    std::string ActivityType() const override { return "Convert"; }

    bool ShowDocument() const noexcept { return showDocument_; }
    void SetShowDocument(bool value) { showDocument_ = value; }
    const std::string& GhostscriptExecutable() const noexcept { return ghostscriptExecutable_; }
    void SetGhostscriptExecutable(std::string value) { ghostscriptExecutable_ = std::move(value); }

    std::shared_ptr<Document> InputDocument();  // error 30074 when it does not resolve
    void SetInputDocument(std::shared_ptr<Document> document) { inputDocument_ = std::move(document); }
    std::shared_ptr<Document> OutputDocument() const { return outputDocument_; }
    const std::string& InputDocumentName() const noexcept { return inputDocumentName_; }
    void SetInputDocumentName(std::string value) { inputDocumentName_ = std::move(value); }
    const std::string& OutputDocumentName() const noexcept { return outputDocumentName_; }
    // Keeps the process's documents in step with the new name.
    void SetOutputDocumentName(const std::string& name);

    std::int32_t OverwriteExistingFile() const noexcept { return overwrite_.Value(); }
    void SetOverwriteExistingFile(std::int32_t value) { overwrite_.Set(value); }
    bool OverwriteSet() const noexcept { return overwrite_.WasSet(); }

    FileTarget& Target() noexcept { return target_; }
    const FileTarget& Target() const noexcept { return target_; }
    const std::string& Folder() const noexcept { return target_.Folder(); }
    void SetFolder(const std::string& value) { target_.SetFolder(value); }
    const std::string& File() const noexcept { return target_.File(); }
    void SetFile(const std::string& value) { target_.SetFile(value); }
    // The stored full name, else folder and file when both are given, else a
    // temporary name that is stored and kept from then on.
    std::string FullName();
    void SetFullName(const TaggedValue& value) { target_.SetFullName(value); }

    std::int32_t OutputFileFormat() const noexcept { return outputFileFormat_; }  // 1 PDF
    void SetOutputFileFormat(std::int32_t value) { outputFileFormat_ = value; }
    // 1 Microsoft Save as PDF, 2 PostScript to PDF.
    std::int32_t PDFConvertingMethod() const noexcept { return pdfConvertingMethod_; }
    void SetPDFConvertingMethod(std::int32_t value) { pdfConvertingMethod_ = value; }
    // 1 Acrobat Distiller, 2 Ghostscript; when 0, found out once and kept.
    std::int32_t Postscript2PDFConverter();
    void SetPostscript2PDFConverter(std::int32_t value) { postscript2PDFConverter_ = value; }
    const std::string& PostscriptPrinter() const noexcept { return postscriptPrinter_; }
    void SetPostscriptPrinter(std::string value) { postscriptPrinter_ = std::move(value); }

    void Dispose() override;
    void LoadElement(const pugi::xml_node& node, const std::shared_ptr<Process>& process) override;
    std::optional<std::string> ProducedDocumentName() override { return outputDocumentName_; }

private:
    bool showDocument_ = false;
    std::string ghostscriptExecutable_;
    std::shared_ptr<Document> inputDocument_;
    std::shared_ptr<Document> outputDocument_;
    std::string inputDocumentName_;
    std::string outputDocumentName_;
    OverwriteMode overwrite_{1};
    FileTarget target_;
    std::int32_t outputFileFormat_ = 0;
    std::int32_t pdfConvertingMethod_ = 0;
    std::int32_t postscript2PDFConverter_ = 0;
    std::string postscriptPrinter_;
};

// Whether Adobe's distiller can be created here; never on this platform.
bool DistillerInstalled();

}  // namespace flowloom
