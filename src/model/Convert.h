#pragma once

#include "app/Tracked.h"
#include "model/FileActivity.h"

#include <cstdint>
#include <memory>
#include <string>

namespace flowloom {

// Turns a document produced earlier into another format (PDF).
class Convert : public FileActivity {
public:
    Convert();
    static constexpr ActivityKind kKind = ActivityKind::Convert;
    ActivityKind Kind() const noexcept override { return kKind; }

    bool ShowDocument() const noexcept { return showDocument_; }
    void SetShowDocument(bool value) { showDocument_ = value; }
    const std::string& GhostscriptExecutable() const noexcept { return ghostscriptExecutable_; }
    void SetGhostscriptExecutable(std::string value) { ghostscriptExecutable_ = std::move(value); }

    std::int32_t OverwriteExistingFile() const noexcept { return overwrite_.Value(); }
    void SetOverwriteExistingFile(std::int32_t value) { overwrite_.Set(value); }
    bool OverwriteSet() const noexcept { return overwrite_.WasSet(); }

    // The stored full name, else folder and file when both are given, else a
    // temporary name that is stored and kept from then on.
    std::string FullName() override;

    std::int32_t OutputFileFormat() const noexcept { return outputFileFormat_; }  // 1 PDF
    void SetOutputFileFormat(std::int32_t value) { outputFileFormat_ = value; }
    // 1 Microsoft Save as PDF, 2 PostScript to PDF.
    std::int32_t PDFConvertingMethod() const noexcept { return pdfConvertingMethod_; }
    void SetPDFConvertingMethod(std::int32_t value) { pdfConvertingMethod_ = value; }
    // 1 Acrobat Distiller, 2 Ghostscript; when 0, found out once and kept.
    std::int32_t Postscript2PDFConverter() const;
    void SetPostscript2PDFConverter(std::int32_t value) { postscript2PDFConverter_ = value; }
    const std::string& PostscriptPrinter() const noexcept { return postscriptPrinter_; }
    void SetPostscriptPrinter(std::string value) { postscriptPrinter_ = std::move(value); }

    void LoadElement(const XmlElementView& node, const std::shared_ptr<Process>& process) override;

private:
    Tracked<bool> showDocument_ = false;
    SparseString ghostscriptExecutable_;
    OverwriteMode overwrite_{1};
    Tracked<std::int32_t> outputFileFormat_ = 0;
    Tracked<std::int32_t> pdfConvertingMethod_ = 0;
    mutable Tracked<std::int32_t> postscript2PDFConverter_ = 0;  // chosen on first read
    SparseString postscriptPrinter_;
};

// Whether Adobe's distiller can be created here; never on this platform.
bool DistillerInstalled();

}  // namespace flowloom
