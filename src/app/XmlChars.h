#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// The characters and names XML 1.0 (fifth edition) and Namespaces in XML 1.0
// allow. The reader refuses what they forbid and the writer never makes it.
namespace flowloom::xmlchars {

// What NextChar gives for bytes that are no UTF-8 character (malformed,
// overlong, a surrogate, beyond U+10FFFF).
inline constexpr char32_t kNotUtf8 = 0xFFFFFFFF;
inline constexpr char32_t kReplacement = 0xFFFD;

// The character of UTF-8 text at `pos`, moving `pos` behind it; kNotUtf8 with
// `pos` one byte further when the bytes there are no character.
char32_t NextChar(std::string_view text, std::size_t& pos) noexcept;
void AppendUtf8(std::string& out, char32_t c);

// Char: tab, line feed, carriage return and U+0020 on, without surrogates,
// U+FFFE and U+FFFF.
constexpr bool IsXmlChar(char32_t c) noexcept {
    return c == 0x9 || c == 0xA || c == 0xD || (c >= 0x20 && c <= 0xD7FF) || (c >= 0xE000 && c <= 0xFFFD) ||
           (c >= 0x10000 && c <= 0x10FFFF);
}
constexpr bool IsXmlSpace(char32_t c) noexcept { return c == 0x20 || c == 0x9 || c == 0xA || c == 0xD; }

bool IsNameStartChar(char32_t c) noexcept;
bool IsNameChar(char32_t c) noexcept;

// ASCII characters that may start a name and that may stand in one: tables
// for the loops that read or write whole documents, inline for them.
struct AsciiNameTables {
    bool start[128] = {};
    bool name[128] = {};
    constexpr AsciiNameTables() {
        for (int c = 0; c < 128; ++c) {
            start[c] = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == ':';
            name[c] = start[c] || c == '-' || c == '.' || (c >= '0' && c <= '9');
        }
    }
};
inline constexpr AsciiNameTables kAsciiName;
inline bool IsAsciiNameStart(unsigned char c) noexcept { return c < 128 && kAsciiName.start[c]; }
inline bool IsAsciiNameChar(unsigned char c) noexcept { return c < 128 && kAsciiName.name[c]; }

// What a text is as a name: no Name at all, a Name that is no qualified name
// (a colon at an end, two colons, no name start behind the colon), or a QName.
enum class NameShape { NotName, NotQName, QName };
NameShape ShapeOf(std::string_view text) noexcept;

// Name: the names of elements, attributes and processing instructions.
bool IsName(std::string_view text) noexcept;
// NCName: a Name without a colon.
bool IsNCName(std::string_view text) noexcept;
// QName: an NCName, or two joined by one colon (prefix and local part).
bool IsQName(std::string_view text) noexcept;

// The prefix of a qualified name ("" when it has none) and its local part.
std::string_view PrefixOf(std::string_view qname) noexcept;
std::string_view LocalPartOf(std::string_view qname) noexcept;

}  // namespace flowloom::xmlchars
