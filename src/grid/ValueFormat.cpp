#include "grid/ValueFormat.h"

#include "support/TextCompare.h"
#include "support/VbError.h"
#include "support/VbStrings.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace flowloom::grid {

namespace {

struct DateTime {
    int year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0;
};

bool IsDateFormat(const std::string& format) {
    const std::string f = ToLower(format);
    return f.find('y') != std::string::npos || f.find('d') != std::string::npos ||
           f.find('n') != std::string::npos || f.find('h') != std::string::npos;
}

std::vector<int> Numbers(const std::string& text) {
    std::vector<int> numbers;
    int current = -1;
    for (char c : text) {
        if (c >= '0' && c <= '9') current = (current < 0 ? 0 : current * 10) + (c - '0');
        else if (current >= 0) {
            numbers.push_back(current);
            current = -1;
        }
    }
    if (current >= 0) numbers.push_back(current);
    return numbers;
}

bool Valid(const DateTime& d) {
    return d.month >= 1 && d.month <= 12 && d.day >= 1 && d.day <= 31 && d.hour < 24 && d.minute < 60 && d.second < 60;
}

// Year first when the first number has four digits, else day first.
DateTime ParseDate(const std::string& value) {
    const std::vector<int> n = Numbers(value);
    if (n.size() < 3) RaiseStandardError(vberr::TypeMismatch);
    DateTime d;
    const bool yearFirst = value.find_first_of("0123456789") != std::string::npos &&
                           value.substr(value.find_first_of("0123456789")).find_first_not_of("0123456789") == 4;
    if (yearFirst) {
        d.year = n[0], d.month = n[1], d.day = n[2];
    } else {
        d.day = n[0], d.month = n[1], d.year = n[2];
        if (d.year < 100) d.year += d.year < 30 ? 2000 : 1900;
    }
    if (n.size() > 3) d.hour = n[3];
    if (n.size() > 4) d.minute = n[4];
    if (n.size() > 5) d.second = n[5];
    if (!Valid(d)) RaiseStandardError(vberr::TypeMismatch);
    return d;
}

std::string Pad(int value, std::size_t width) {
    std::string text = std::to_string(value);
    return text.size() >= width ? text : std::string(width - text.size(), '0') + text;
}

std::string FormatDate(const DateTime& d, const std::string& format) {
    std::string out;
    for (std::size_t i = 0; i < format.size();) {
        const char c = static_cast<char>(std::tolower(static_cast<unsigned char>(format[i])));
        std::size_t run = 1;
        while (i + run < format.size() && std::tolower(static_cast<unsigned char>(format[i + run])) == c) ++run;
        switch (c) {
        case 'y': out += run >= 4 ? Pad(d.year, 4) : Pad(d.year % 100, 2); break;
        case 'm': out += Pad(d.month, run >= 2 ? 2 : 1); break;
        case 'd': out += Pad(d.day, run >= 2 ? 2 : 1); break;
        case 'h': out += Pad(d.hour, run >= 2 ? 2 : 1); break;
        case 'n': out += Pad(d.minute, run >= 2 ? 2 : 1); break;
        case 's': out += Pad(d.second, run >= 2 ? 2 : 1); break;
        default: out.append(format, i, run);
        }
        i += run;
    }
    return out;
}

std::string FormatNumber(double value, const std::string& format) {
    const std::size_t point = format.find('.');
    const std::size_t decimals = point == std::string::npos ? 0 : format.size() - point - 1;
    const bool grouped = format.find(',') != std::string::npos;
    std::string text = vb::FixedText(std::fabs(value), static_cast<int>(decimals));
    if (grouped) {
        const std::size_t dot = std::min(text.find('.'), text.size());
        text = vb::GroupDigits(std::string_view(text).substr(0, dot)) + text.substr(dot);
    }
    return (value < 0 ? "-" : "") + text;
}

}  // namespace

std::string FormatWithDataFormat(const std::string& value, const std::string& format) {
    if (IsDateFormat(format)) return FormatDate(ParseDate(value), format);
    const auto number = vb::ToNumber(value);
    if (!number) RaiseStandardError(vberr::TypeMismatch);
    return FormatNumber(*number, format);
}

}  // namespace flowloom::grid
