#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace flowloom::sheets {

// The file formats a SaveAs offers for the application of its input
// document (1 Word, 2 Excel, 3 mail body, 4 HTML, 5 text; one empty entry
// for any other).
std::vector<std::string> FileFormatList(std::int32_t application);

// The position in the list of a stored format. Excel's names stand in list
// order beside their codes, and two names share the code 39: the first,
// "Excel5", is the one shown. nullopt for a code Excel does not have.
std::optional<std::int32_t> ExcelFormatPosition(std::string_view storedCode);

// What an entry chosen at a list position stores: Word keeps the number of
// its first twelve formats and ignores the newer ones; Excel stores the
// format's code, but 0 for "Workbook normal"; the mail body its position;
// any other application 0, whatever was chosen. nullopt leaves the stored
// format as it was.
std::optional<std::int32_t> StoredFileFormat(std::int32_t application, std::optional<std::int32_t> position);

}  // namespace flowloom::sheets
