#pragma once

#include <string>
#include <vector>

namespace flowloom {

// Where the names of the machine's printers come from. The system's printing
// service by default; tests install their own.
class PrinterSource {
public:
    virtual ~PrinterSource() = default;
    // Appends the names of the printers; false when they could not be read.
    virtual bool Enumerate(std::vector<std::string>& names) = 0;
};

// The source in use (never null) and its replacement (nullptr restores the
// printing service); returns the previous one.
PrinterSource& CurrentPrinterSource();
PrinterSource* SetPrinterSource(PrinterSource* source);

// Installs a source for the lifetime of a scope.
class ScopedPrinterSource {
public:
    explicit ScopedPrinterSource(PrinterSource& source) : previous_(SetPrinterSource(&source)) {}
    ~ScopedPrinterSource() { SetPrinterSource(previous_); }
    ScopedPrinterSource(const ScopedPrinterSource&) = delete;
    ScopedPrinterSource& operator=(const ScopedPrinterSource&) = delete;

private:
    PrinterSource* previous_;
};

// The printers of the machine. A source that fails gives the message "Could
// not successfully enumerate the printes." and an empty list; a machine
// without a printing service simply has no printers.
std::vector<std::string> GetPrinters();

// The list a property sheet offers: "(Default printer)" and then the printers.
std::vector<std::string> GetPrinterChoices();

// Whether a printer of that name exists (names compared without regard to case).
bool PrinterExists(const std::string& name);

}  // namespace flowloom
