#pragma once

#include <optional>
#include <string_view>

namespace flowloom::designer {

// Files compiled into the program, found by name and type as resources are:
//   "FILES"    the cell pictures ADDRECORD, ARROWDOWN, CONVERT, DATABASE,
//              DATASOURCE, MAILMERGE, PRINTOUT, SAVEAS, SENDFAX, SENDMAIL (.ico)
//   "TOOLBAR"  the toolbar images by the button's key ("New", "Load", "Save",
//              "Save As", "Database", "Datasource", "ActivityMailMerge", ...)
//   "ICON"     "process", the window's icon
// Names compare without regard to case. nullopt for an unknown resource.
std::optional<std::string_view> LoadResourceData(std::string_view name, std::string_view type);

// ExtractResourceFile: writes the resource's bytes to a new file; true on success.
bool ExtractResourceFile(const std::string& path, std::string_view name, std::string_view type);

}  // namespace flowloom::designer
