#pragma once

// Where a user gets the converters that a conversion to PDF needs.
namespace flowloom::downloads {

inline constexpr const char* kGhostscript = "https://ghostscript.com/releases/gsdnld.html";
// The Office 2007 add-ins: Save as PDF alone, and Save as PDF or XPS. The
// XPS-only add-in is no longer offered on its own page, so the combined
// add-in stands for it as well.
inline constexpr const char* kSaveAsPdf = "https://www.microsoft.com/en-us/download/details.aspx?id=7";
inline constexpr const char* kSaveAsPdfOrXps = "https://www.microsoft.com/en-us/download/details.aspx?id=9943";
inline constexpr const char* kSaveAsXps = kSaveAsPdfOrXps;

}  // namespace flowloom::downloads
