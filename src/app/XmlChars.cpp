#include "app/XmlChars.h"

namespace flowloom::xmlchars {

namespace {

bool IsContinuation(unsigned char byte) noexcept { return (byte & 0xC0) == 0x80; }

// The lead byte's count of bytes and its payload bits; 0 for no lead byte.
int SequenceLength(unsigned char lead, char32_t& bits) noexcept {
    if (lead < 0x80) {
        bits = lead;
        return 1;
    }
    if ((lead & 0xE0) == 0xC0) {
        bits = lead & 0x1F;
        return 2;
    }
    if ((lead & 0xF0) == 0xE0) {
        bits = lead & 0x0F;
        return 3;
    }
    if ((lead & 0xF8) == 0xF0) {
        bits = lead & 0x07;
        return 4;
    }
    return 0;
}

struct Range {
    char32_t first;
    char32_t last;
};

// NameStartChar without ':' and the ASCII letters and '_', which the callers test first.
constexpr Range kNameStart[] = {{0xC0, 0xD6},     {0xD8, 0xF6},     {0xF8, 0x2FF},    {0x370, 0x37D},
                                {0x37F, 0x1FFF},  {0x200C, 0x200D}, {0x2070, 0x218F}, {0x2C00, 0x2FEF},
                                {0x3001, 0xD7FF}, {0xF900, 0xFDCF}, {0xFDF0, 0xFFFD}, {0x10000, 0xEFFFF}};

bool InRanges(char32_t c) noexcept {
    for (const Range& r : kNameStart)
        if (c >= r.first && c <= r.last) return true;
    return false;
}

constexpr const AsciiNameTables& kAscii = kAsciiName;

// Whether every character of `text` is a name character and the first a start
// character; with `colons` false a colon is refused anywhere.
bool IsNameOf(std::string_view text, bool colons) noexcept {
    if (text.empty()) return false;
    std::size_t pos = 0;
    bool first = true;
    while (pos < text.size()) {
        const char32_t c = NextChar(text, pos);
        if (c == ':' && !colons) return false;
        if (first ? !IsNameStartChar(c) : !IsNameChar(c)) return false;
        first = false;
    }
    return true;
}

// The shape of a name with characters beyond ASCII.
NameShape ShapeOfAnyName(std::string_view text) noexcept {
    if (!IsNameOf(text, true)) return NameShape::NotName;
    const std::size_t colon = text.find(':');
    if (colon == std::string_view::npos) return NameShape::QName;
    return IsNameOf(text.substr(0, colon), false) && IsNameOf(text.substr(colon + 1), false) ? NameShape::QName
                                                                                              : NameShape::NotQName;
}

}  // namespace

char32_t NextChar(std::string_view text, std::size_t& pos) noexcept {
    const unsigned char lead = static_cast<unsigned char>(text[pos]);
    char32_t c = 0;
    const int length = SequenceLength(lead, c);
    if (length == 1) {
        ++pos;
        return c;
    }
    if (length == 0 || text.size() - pos < static_cast<std::size_t>(length)) {
        ++pos;
        return kNotUtf8;
    }
    for (int i = 1; i < length; ++i) {
        const unsigned char next = static_cast<unsigned char>(text[pos + i]);
        if (!IsContinuation(next)) {
            ++pos;
            return kNotUtf8;
        }
        c = (c << 6) | (next & 0x3F);
    }
    // Overlong forms, surrogates and code points beyond Unicode are no characters.
    constexpr char32_t kSmallest[] = {0, 0, 0x80, 0x800, 0x10000};
    if (c < kSmallest[length] || (c >= 0xD800 && c <= 0xDFFF) || c > 0x10FFFF) {
        ++pos;
        return kNotUtf8;
    }
    pos += static_cast<std::size_t>(length);
    return c;
}

void AppendUtf8(std::string& out, char32_t c) {
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        out += static_cast<char>(0xE0 | (c >> 12));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (c >> 18));
        out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
}

bool IsNameStartChar(char32_t c) noexcept {
    if (c < 0x80) return kAscii.start[c];
    return InRanges(c);
}

bool IsNameChar(char32_t c) noexcept {
    if (c < 0x80) return kAscii.name[c];
    return c == 0xB7 || (c >= 0x300 && c <= 0x36F) || (c >= 0x203F && c <= 0x2040) || InRanges(c);
}


NameShape ShapeOf(std::string_view text) noexcept {
    if (text.empty()) return NameShape::NotName;
    std::size_t colon = std::string_view::npos;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto c = static_cast<unsigned char>(text[i]);
        if (c >= 0x80) return ShapeOfAnyName(text);
        if (!(i == 0 ? kAscii.start[c] : kAscii.name[c])) return NameShape::NotName;
        if (c != ':') continue;
        if (colon != std::string_view::npos) return NameShape::NotQName;
        colon = i;
    }
    if (colon == std::string_view::npos) return NameShape::QName;
    if (colon == 0 || colon + 1 == text.size()) return NameShape::NotQName;
    return kAscii.start[static_cast<unsigned char>(text[colon + 1])] ? NameShape::QName : NameShape::NotQName;
}

bool IsName(std::string_view text) noexcept { return ShapeOf(text) != NameShape::NotName; }

bool IsNCName(std::string_view text) noexcept {
    return text.find(':') == std::string_view::npos && ShapeOf(text) == NameShape::QName;
}

bool IsQName(std::string_view text) noexcept { return ShapeOf(text) == NameShape::QName; }

std::string_view PrefixOf(std::string_view qname) noexcept {
    const std::size_t colon = qname.find(':');
    return colon == std::string_view::npos ? std::string_view() : qname.substr(0, colon);
}

std::string_view LocalPartOf(std::string_view qname) noexcept {
    const std::size_t colon = qname.find(':');
    return colon == std::string_view::npos ? qname : qname.substr(colon + 1);
}

}  // namespace flowloom::xmlchars
