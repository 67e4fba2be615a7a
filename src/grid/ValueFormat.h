#pragma once

#include <array>
#include <string>

namespace flowloom::grid {

// The names a date format shows for "mmm", "mmmm", "ddd" and "dddd", and
// that a date may spell its month with.
struct DateNames {
    std::array<std::string, 12> shortMonths;
    std::array<std::string, 12> longMonths;
    std::array<std::string, 7> shortDays;  // Sunday first
    std::array<std::string, 7> longDays;
};

const DateNames& EnglishDateNames();

// Formats a row's value with its DataFormat, as the host's Format does for
// the formats a grid uses: dates ("dd.mm.yyyy", "d mmm yyyy", "yyyy-mm-dd
// hh:nn:ss", with literal text in double quotes) and numbers ("0.00",
// "#,##0"). A date is read year first when it starts with four digits, else
// in the order of day and month in the format, and may name its month. A
// value that the format cannot take is error 13.
std::string FormatWithDataFormat(const std::string& value, const std::string& format,
                                 const DateNames& names = EnglishDateNames());

}  // namespace flowloom::grid
