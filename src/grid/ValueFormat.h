#pragma once

#include <string>

namespace flowloom::grid {

// Formats a row's value with its DataFormat, as the host's Format does for
// the formats a grid uses: dates ("dd.mm.yyyy", "yyyy-mm-dd hh:nn:ss", ...)
// and numbers ("0.00", "#,##0"). A value that the format cannot take is
// error 13.
std::string FormatWithDataFormat(const std::string& value, const std::string& format);

}  // namespace flowloom::grid
