#include "support/VbStrings.h"

#include "support/TextCompare.h"
#include "support/VbError.h"

#include <charconv>
#include <chrono>
#include <cmath>
#include <ctime>
#include <limits>

namespace flowloom::vb {

std::string Trim(std::string_view text) { return LTrim(RTrim(text)); }

std::string LTrim(std::string_view text) {
    std::size_t i = 0;
    while (i < text.size() && text[i] == ' ') ++i;
    return std::string(text.substr(i));
}

std::string RTrim(std::string_view text) {
    std::size_t n = text.size();
    while (n > 0 && text[n - 1] == ' ') --n;
    return std::string(text.substr(0, n));
}

std::vector<std::string> Split(std::string_view text, std::string_view separator) {
    std::vector<std::string> parts;
    if (separator.empty()) {
        parts.emplace_back(text);
        return parts;
    }
    std::size_t start = 0;
    for (;;) {
        std::size_t pos = text.find(separator, start);
        if (pos == std::string_view::npos) {
            parts.emplace_back(text.substr(start));
            return parts;
        }
        parts.emplace_back(text.substr(start, pos - start));
        start = pos + separator.size();
    }
}

std::string Join(const std::vector<std::string>& parts, std::string_view separator) {
    std::string out;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (i) out += separator;
        out += parts[i];
    }
    return out;
}

std::string Replace(std::string_view text, std::string_view find, std::string_view with) {
    if (find.empty()) return std::string(text);
    std::string out;
    out.reserve(text.size());
    std::size_t start = 0;
    for (;;) {
        std::size_t pos = text.find(find, start);
        if (pos == std::string_view::npos) break;
        out.append(text.substr(start, pos - start));
        out.append(with);
        start = pos + find.size();
    }
    out.append(text.substr(start));
    return out;
}

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// The power of ten of a decimal text's first significant digit: "0.05" gives
// -2, "123e4" gives 6. Tells overflow from underflow when a number is out of
// the range of a double.
long DecimalMagnitude(std::string_view text) {
    long position = 0;  // of the first significant digit, relative to the point
    bool seenPoint = false, seenSignificant = false;
    std::size_t i = 0;
    for (; i < text.size() && (IsDigit(text[i]) || text[i] == '.'); ++i) {
        if (text[i] == '.') {
            seenPoint = true;
        } else if (!seenSignificant && text[i] != '0') {
            seenSignificant = true;
            if (seenPoint) --position;
        } else if (seenSignificant && !seenPoint) {
            ++position;
        } else if (!seenSignificant && seenPoint) {
            --position;
        }
    }
    if (!seenSignificant) return 0;
    long exponent = 0;
    if (i < text.size()) {
        const std::string_view digits = text.substr(i + 1);
        std::from_chars(digits.data() + (digits.starts_with('+') ? 1 : 0), digits.data() + digits.size(), exponent);
    }
    return position + exponent;
}

// A decimal number in the C notation, whatever the user's locale: the host's
// conversion never takes a comma for the point. Out of range gives infinity
// (too large) or zero (too small), as strtod does.
double ParseDecimal(std::string_view text) {
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+')) text.remove_prefix(1);
    double value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec == std::errc::result_out_of_range)
        value = DecimalMagnitude(text) > 0 ? std::numeric_limits<double>::infinity() : 0.0;
    return negative ? -value : value;
}

std::optional<double> RadixNumber(std::string_view body, int radix) {
    if (body.empty() || body.size() > 16) return std::nullopt;
    double value = 0;
    for (char c : body) {
        int d;
        if (IsDigit(c)) d = c - '0';
        else if (c >= 'a' && c <= 'f') d = c - 'a' + 10;
        else if (c >= 'A' && c <= 'F') d = c - 'A' + 10;
        else return std::nullopt;
        if (d >= radix) return std::nullopt;
        value = value * radix + d;
    }
    return value;
}

}  // namespace

std::optional<double> ToNumber(std::string_view raw) {
    std::string text = Trim(raw);
    std::string_view s = text;
    while (!s.empty() && (s.front() == '\t')) s.remove_prefix(1);
    while (!s.empty() && (s.back() == '\t')) s.remove_suffix(1);
    if (s.empty()) return std::nullopt;
    if (s.size() > 2 && s[0] == '&') {
        if (s[1] == 'H' || s[1] == 'h') return RadixNumber(s.substr(2), 16);
        if (s[1] == 'O' || s[1] == 'o') return RadixNumber(s.substr(2), 8);
    }
    std::size_t i = 0;
    bool negative = false;
    if (s[i] == '+' || s[i] == '-') {
        negative = s[i] == '-';
        ++i;
    }
    std::string digits;
    bool anyDigit = false;
    while (i < s.size() && IsDigit(s[i])) {
        digits += s[i++];
        anyDigit = true;
    }
    if (i < s.size() && s[i] == '.') {
        digits += s[i++];
        while (i < s.size() && IsDigit(s[i])) {
            digits += s[i++];
            anyDigit = true;
        }
    }
    if (!anyDigit) return std::nullopt;
    if (i < s.size() && (s[i] == 'e' || s[i] == 'E' || s[i] == 'd' || s[i] == 'D')) {
        std::string exponent = "e";
        ++i;
        if (i < s.size() && (s[i] == '+' || s[i] == '-')) exponent += s[i++];
        bool expDigit = false;
        while (i < s.size() && IsDigit(s[i])) {
            exponent += s[i++];
            expDigit = true;
        }
        if (!expDigit) return std::nullopt;
        digits += exponent;
    }
    if (i != s.size()) return std::nullopt;
    const double value = ParseDecimal(digits);
    if (!std::isfinite(value)) return std::nullopt;
    return negative ? -value : value;
}

bool IsNumeric(std::string_view text) { return ToNumber(text).has_value(); }

double Val(std::string_view text) {
    std::string compact;
    for (char c : text)
        if (c != ' ' && c != '\t' && c != '\n' && c != '\r') compact += c;
    std::size_t i = 0;
    std::string number;
    if (i < compact.size() && (compact[i] == '+' || compact[i] == '-')) number += compact[i++];
    bool seenPoint = false;
    while (i < compact.size() && (IsDigit(compact[i]) || (compact[i] == '.' && !seenPoint))) {
        seenPoint = seenPoint || compact[i] == '.';
        number += compact[i++];
    }
    if (number.empty() || number == "+" || number == "-" || number == ".") return 0;
    const double value = ParseDecimal(number);
    return std::isfinite(value) ? value : 0;
}

std::int32_t CLng(double value) {
    double rounded = std::nearbyint(value);  // default rounding mode: half to even
    if (!std::isfinite(rounded) || rounded < std::numeric_limits<std::int32_t>::min() ||
        rounded > std::numeric_limits<std::int32_t>::max())
        RaiseStandardError(vberr::Overflow);
    return static_cast<std::int32_t>(rounded);
}

std::optional<bool> ToBool(std::string_view text) {
    std::string t = Trim(text);
    if (EqualsNoCase(t, "true")) return true;
    if (EqualsNoCase(t, "false")) return false;
    if (auto n = ToNumber(t)) return *n != 0;
    return std::nullopt;
}

bool ReadBool(std::string_view text) { return ToBool(text).value_or(false); }

std::string NumberText(double value) {
    if (std::floor(value) == value && std::fabs(value) < 1e15) return FixedText(value, 0);
    char buf[32];
    const auto result = std::to_chars(buf, buf + sizeof buf, value, std::chars_format::general, 15);
    return std::string(buf, result.ptr);
}

std::string FixedText(double value, int decimals) {
    char buf[400];  // the widest double in fixed notation, with room for decimals
    const auto result = std::to_chars(buf, buf + sizeof buf, value, std::chars_format::fixed, decimals);
    if (result.ec != std::errc()) return NumberText(value);
    return std::string(buf, result.ptr);
}

std::string SerialNowText() {
    using namespace std::chrono;
    const auto now = system_clock::now();
    const std::time_t t = system_clock::to_time_t(now);
    std::tm local{};
    localtime_r(&t, &local);
    const auto micros = duration_cast<microseconds>(now.time_since_epoch()).count() % 1000000;
    // Days since 30 December 1899, as the host's date serial counts them.
    std::tm epoch{};
    epoch.tm_year = -1;  // 1899
    epoch.tm_mon = 11;
    epoch.tm_mday = 30;
    epoch.tm_hour = 12;  // noon avoids daylight-saving edges in the day count
    std::tm today = local;
    today.tm_hour = 12;
    today.tm_min = today.tm_sec = 0;
    const double days = std::round(std::difftime(timegm(&today), timegm(&epoch)) / 86400.0);
    const double seconds = local.tm_hour * 3600.0 + local.tm_min * 60.0 + local.tm_sec + micros / 1e6;
    return FixedText(days + seconds / 86400.0, 10);
}

std::string GroupDigits(std::string_view digits) {
    std::string out;
    out.reserve(digits.size() + digits.size() / 3);
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (i > 0 && (digits.size() - i) % 3 == 0) out += ',';
        out += digits[i];
    }
    return out;
}

std::string Right(std::string_view text, std::size_t n) {
    return std::string(n >= text.size() ? text : text.substr(text.size() - n));
}

}  // namespace flowloom::vb
