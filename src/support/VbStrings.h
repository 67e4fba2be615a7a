#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Numbers are read and written in the C notation whatever the user's locale:
// the processes file and generated macros must not change with it.
//
// String operations with the semantics of the host language that the
// processes file and the run-time library share: blanks-only trimming,
// Split that gives one empty element for an empty text, a numeric test that
// accepts what the host's conversion accepts, and Val's leading number.
namespace flowloom::vb {

std::string Trim(std::string_view text);   // blanks (U+0020) only
std::string LTrim(std::string_view text);
std::string RTrim(std::string_view text);

std::vector<std::string> Split(std::string_view text, std::string_view separator);
std::string Join(const std::vector<std::string>& parts, std::string_view separator);

// Replaces every occurrence, comparing bytes exactly.
std::string Replace(std::string_view text, std::string_view find, std::string_view with);

// The number a text converts to, if it converts at all: optional blanks, sign,
// digits with an optional decimal point, optional exponent; or &H / &O forms.
std::optional<double> ToNumber(std::string_view text);
bool IsNumeric(std::string_view text);

// The leading number of a text ("2abc" gives 2, "abc" gives 0).
double Val(std::string_view text);

// Rounds half to even, as the host's integer conversion does; out of range is
// error 6 (overflow).
std::int32_t CLng(double value);

// The boolean reading rule of the processes file: true for a text that
// converts to true ("True", any non-zero number such as "-1"), false otherwise.
bool ReadBool(std::string_view text);
// The host's CBool of a text: nullopt when it does not convert.
std::optional<bool> ToBool(std::string_view text);

// CStr of a number: integers without a decimal point, others shortest form.
std::string NumberText(double value);
// A number with a fixed count of decimals and a point, whatever the locale.
std::string FixedText(double value, int decimals);

// Format(value, "0.0000000000") of a serial day number: the fraction of the
// present day, as used in backup and temporary names.
std::string SerialNowText();
// Digits with a comma between each group of three ("1234567" gives "1,234,567").
std::string GroupDigits(std::string_view digits);
// The last n characters of a text (the whole text when shorter).
std::string Right(std::string_view text, std::size_t n);

}  // namespace flowloom::vb
