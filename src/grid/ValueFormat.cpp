#include "grid/ValueFormat.h"

#include "support/TextCompare.h"
#include "support/VbError.h"
#include "support/VbStrings.h"

#include <algorithm>
#include <cctype>
#include <chrono>
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

struct Number {
    int value = 0;
    std::size_t digits = 0;
};

// The numbers of a date and the month it names, if any (1 to 12, else 0).
struct DateParts {
    std::vector<Number> numbers;
    int namedMonth = 0;
};

bool IsWordByte(char c) { return std::isalpha(static_cast<unsigned char>(c)) || static_cast<unsigned char>(c) >= 0x80; }

std::string WithoutDots(std::string text) {
    std::erase(text, '.');
    return text;
}

// 1 to 12 when the word is a month's name, short or long, in the given names or in English.
int MonthOfName(const std::string& word, const DateNames& names) {
    for (const DateNames* set : {&names, &EnglishDateNames()})
        for (std::size_t i = 0; i < 12; ++i)
            if (EqualsNoCase(word, WithoutDots(set->shortMonths[i])) || EqualsNoCase(word, WithoutDots(set->longMonths[i])))
                return static_cast<int>(i) + 1;
    return 0;
}

DateParts SplitDate(const std::string& text, const DateNames& names) {
    DateParts parts;
    for (std::size_t i = 0; i < text.size();) {
        std::size_t end = i;
        if (std::isdigit(static_cast<unsigned char>(text[i]))) {
            while (end < text.size() && std::isdigit(static_cast<unsigned char>(text[end]))) ++end;
            if (end - i > 9) RaiseStandardError(vberr::TypeMismatch);
            parts.numbers.push_back({std::stoi(text.substr(i, end - i)), end - i});
        } else if (IsWordByte(text[i])) {
            while (end < text.size() && IsWordByte(text[end])) ++end;
            if (!parts.namedMonth) parts.namedMonth = MonthOfName(text.substr(i, end - i), names);
        } else {
            ++end;
        }
        i = end;
    }
    return parts;
}

// True when the first part of the date that the format shows is the month;
// literal text does not count.
bool MonthFirst(const std::string& format) {
    for (std::size_t i = 0; i < format.size(); ++i) {
        if (format[i] == '"') {
            i = std::min(format.find('"', i + 1), format.size());
        } else if (format[i] == '\\') {
            ++i;
        } else {
            const char c = static_cast<char>(std::tolower(static_cast<unsigned char>(format[i])));
            if (c == 'd' || c == 'm' || c == 'y') return c == 'm';
        }
    }
    return false;
}

std::chrono::year_month_day CalendarDate(const DateTime& d) {
    using namespace std::chrono;
    return {year{d.year}, month{static_cast<unsigned>(d.month)}, day{static_cast<unsigned>(d.day)}};
}

bool Valid(const DateTime& d) {
    return d.year >= 100 && d.year <= 9999 && d.month >= 1 && d.day >= 1 && CalendarDate(d).ok() && d.hour < 24 &&
           d.minute < 60 && d.second < 60;
}

// Year first when the first number has four digits, else day and month in
// the order of the format; a day and month that only fit the other way
// round are swapped.
DateTime ParseDate(const std::string& value, const std::string& format, const DateNames& names) {
    const DateParts parts = SplitDate(value, names);
    const std::vector<Number>& n = parts.numbers;
    const std::size_t dateNumbers = parts.namedMonth ? 2 : 3;
    if (n.size() < dateNumbers) RaiseStandardError(vberr::TypeMismatch);
    DateTime d;
    const bool yearFirst = n[0].digits == 4;
    if (parts.namedMonth) {
        d.month = parts.namedMonth;
        d.year = yearFirst ? n[0].value : n[1].value;
        d.day = yearFirst ? n[1].value : n[0].value;
    } else if (yearFirst) {
        d.year = n[0].value, d.month = n[1].value, d.day = n[2].value;
    } else {
        const bool monthFirst = MonthFirst(format);
        d.month = n[monthFirst ? 0 : 1].value, d.day = n[monthFirst ? 1 : 0].value, d.year = n[2].value;
        if (d.month > 12 && d.day <= 12) std::swap(d.month, d.day);
    }
    if (!yearFirst && n[parts.namedMonth ? 1 : 2].digits <= 2) d.year += d.year < 30 ? 2000 : 1900;
    if (n.size() > dateNumbers) d.hour = n[dateNumbers].value;
    if (n.size() > dateNumbers + 1) d.minute = n[dateNumbers + 1].value;
    if (n.size() > dateNumbers + 2) d.second = n[dateNumbers + 2].value;
    if (!Valid(d)) RaiseStandardError(vberr::TypeMismatch);
    return d;
}

// 0 for Sunday.
int Weekday(const DateTime& d) {
    return static_cast<int>(std::chrono::weekday{std::chrono::sys_days{CalendarDate(d)}}.c_encoding());
}

std::string Pad(int value, std::size_t width) {
    std::string text = std::to_string(value);
    return text.size() >= width ? text : std::string(width - text.size(), '0') + text;
}

std::string FormatDate(const DateTime& d, const std::string& format, const DateNames& names) {
    std::string out;
    for (std::size_t i = 0; i < format.size();) {
        if (format[i] == '"') {  // literal text
            const std::size_t close = std::min(format.find('"', i + 1), format.size());
            out.append(format, i + 1, close - i - 1);
            i = close + 1;
            continue;
        }
        if (format[i] == '\\' && i + 1 < format.size()) {  // one literal character
            out += format[i + 1];
            i += 2;
            continue;
        }
        const char c = static_cast<char>(std::tolower(static_cast<unsigned char>(format[i])));
        std::size_t run = 1;
        while (i + run < format.size() && std::tolower(static_cast<unsigned char>(format[i + run])) == c) ++run;
        switch (c) {
        case 'y': out += run >= 4 ? Pad(d.year, 4) : Pad(d.year % 100, 2); break;
        case 'm':
            if (run >= 4) out += names.longMonths[static_cast<std::size_t>(d.month - 1)];
            else if (run == 3) out += names.shortMonths[static_cast<std::size_t>(d.month - 1)];
            else out += Pad(d.month, run);
            break;
        case 'd':
            if (run >= 4) out += names.longDays[static_cast<std::size_t>(Weekday(d))];
            else if (run == 3) out += names.shortDays[static_cast<std::size_t>(Weekday(d))];
            else out += Pad(d.day, run);
            break;
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

const DateNames& EnglishDateNames() {
    static const DateNames names{
        {"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"},
        {"January", "February", "March", "April", "May", "June", "July", "August", "September", "October", "November",
         "December"},
        {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"},
        {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"}};
    return names;
}

std::string FormatWithDataFormat(const std::string& value, const std::string& format, const DateNames& names) {
    if (IsDateFormat(format)) return FormatDate(ParseDate(value, format, names), format, names);
    const auto number = vb::ToNumber(value);
    if (!number) RaiseStandardError(vberr::TypeMismatch);
    return FormatNumber(*number, format);
}

}  // namespace flowloom::grid
