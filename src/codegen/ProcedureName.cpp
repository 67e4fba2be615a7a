#include "codegen/ProcedureName.h"

#include <utf8proc.h>

#include <array>

namespace flowloom {

namespace {

constexpr std::size_t kMaxProcedureName = 255;

// One flag per byte of code page 1252: letters and digits as Windows sees
// them, independent of the C locale of this machine.
constexpr std::array<bool, 256> MakeAlphaNumericTable() {
    std::array<bool, 256> table{};
    for (int c = '0'; c <= '9'; ++c) table[c] = true;
    for (int c = 'A'; c <= 'Z'; ++c) table[c] = true;
    for (int c = 'a'; c <= 'z'; ++c) table[c] = true;
    // f with hook, S/s caron, OE/oe, Z/z caron, Y diaeresis.
    for (int c : {0x83, 0x8A, 0x8C, 0x8E, 0x9A, 0x9C, 0x9E, 0x9F}) table[c] = true;
    // Feminine and masculine ordinals, micro sign, superscript digits.
    for (int c : {0xAA, 0xBA, 0xB5, 0xB2, 0xB3, 0xB9}) table[c] = true;
    // Latin-1 letters, without the multiplication and division signs.
    for (int c = 0xC0; c <= 0xFF; ++c) table[c] = c != 0xD7 && c != 0xF7;
    return table;
}

constexpr std::array<bool, 256> kAlphaNumeric = MakeAlphaNumericTable();

// The characters that code page 1252 puts at 0x80..0x9F.
struct HighMapping {
    char32_t codePoint;
    std::uint8_t byte;
};
constexpr std::array<HighMapping, 27> kHighMappings{{
    {U'\u20AC', 0x80}, {U'\u201A', 0x82}, {U'\u0192', 0x83}, {U'\u201E', 0x84}, {U'\u2026', 0x85},
    {U'\u2020', 0x86}, {U'\u2021', 0x87}, {U'\u02C6', 0x88}, {U'\u2030', 0x89}, {U'\u0160', 0x8A},
    {U'\u2039', 0x8B}, {U'\u0152', 0x8C}, {U'\u017D', 0x8E}, {U'\u2018', 0x91}, {U'\u2019', 0x92},
    {U'\u201C', 0x93}, {U'\u201D', 0x94}, {U'\u2022', 0x95}, {U'\u2013', 0x96}, {U'\u2014', 0x97},
    {U'\u02DC', 0x98}, {U'\u2122', 0x99}, {U'\u0161', 0x9A}, {U'\u203A', 0x9B}, {U'\u0153', 0x9C},
    {U'\u017E', 0x9E}, {U'\u0178', 0x9F},
}};

}  // namespace

std::optional<std::uint8_t> ToCodePage1252(char32_t codePoint) {
    if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint <= 0xFF)) return static_cast<std::uint8_t>(codePoint);
    for (const auto& mapping : kHighMappings)
        if (mapping.codePoint == codePoint) return mapping.byte;
    return std::nullopt;
}

bool IsAlphaNumeric1252(std::uint8_t byte) { return kAlphaNumeric[byte]; }

std::string ProcedureName(const std::string& processName) {
    std::string result = "Exec_";
    std::size_t characters = result.size();
    const auto* bytes = reinterpret_cast<const utf8proc_uint8_t*>(processName.data());
    for (std::size_t i = 0; i < processName.size() && characters < kMaxProcedureName;) {
        utf8proc_int32_t codePoint = -1;
        const utf8proc_ssize_t read =
            utf8proc_iterate(bytes + i, static_cast<utf8proc_ssize_t>(processName.size() - i), &codePoint);
        // A byte that starts no valid sequence stands alone and is dropped.
        const std::size_t length = read > 0 ? static_cast<std::size_t>(read) : 1;
        const auto byte = read > 0 ? ToCodePage1252(static_cast<char32_t>(codePoint)) : std::nullopt;
        if (byte && IsAlphaNumeric1252(*byte)) {
            result.append(processName, i, length);
            ++characters;
        }
        i += length;
    }
    return result;
}

}  // namespace flowloom
