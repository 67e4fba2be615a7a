#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace flowloom {

// The macro's procedure name: "Exec_" and the characters of the process name
// that are letters or digits in the Windows ANSI code page (1252), cut to 255
// characters. Names that differ only in other characters give the same name.
std::string ProcedureName(const std::string& processName);

// The byte of a code point in code page 1252; nullopt when it has none.
std::optional<std::uint8_t> ToCodePage1252(char32_t codePoint);

// Whether a byte of code page 1252 stands for a letter or a digit, as Windows
// classifies it (the superscript digits count as digits there).
bool IsAlphaNumeric1252(std::uint8_t byte);

}  // namespace flowloom
