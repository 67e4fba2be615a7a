#include "app/XmlEncoding.h"

#include "app/XmlChars.h"

namespace flowloom {

namespace {

constexpr std::string_view kUtf8Bom = "\xEF\xBB\xBF";
constexpr std::string_view kUtf16LeBom = "\xFF\xFE";
constexpr std::string_view kUtf16BeBom = "\xFE\xFF";

bool EqualsNoCaseAscii(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if ((a[i] | 0x20) != (b[i] | 0x20)) return false;
    return true;
}

bool IsOneOf(std::string_view name, std::initializer_list<std::string_view> names) {
    for (std::string_view n : names)
        if (EqualsNoCaseAscii(name, n)) return true;
    return false;
}

// The encoding named in the declaration at the start of the text, read
// leniently (the well-formedness check judges the declaration itself).
std::string_view DeclaredEncoding(std::string_view text) {
    if (text.substr(0, 5) != "<?xml" || text.size() < 6 || !xmlchars::IsXmlSpace(static_cast<unsigned char>(text[5])))
        return {};
    const std::string_view declaration = text.substr(0, text.find("?>"));
    std::size_t pos = declaration.find("encoding");
    if (pos == std::string_view::npos) return {};
    pos = declaration.find_first_not_of(" \t\r\n", pos + 8);
    if (pos == std::string_view::npos || declaration[pos] != '=') return {};
    pos = declaration.find_first_not_of(" \t\r\n", pos + 1);
    if (pos == std::string_view::npos || (declaration[pos] != '"' && declaration[pos] != '\'')) return {};
    const std::size_t end = declaration.find(declaration[pos], pos + 1);
    if (end == std::string_view::npos) return {};
    return declaration.substr(pos + 1, end - pos - 1);
}

bool DecodeUtf16(std::string_view bytes, bool bigEndian, std::string& out, XmlSyntaxError& error) {
    out.clear();
    out.reserve(bytes.size() / 2 * 3);
    auto unit = [&](std::size_t i) {
        const auto hi = static_cast<unsigned char>(bytes[bigEndian ? i : i + 1]);
        const auto lo = static_cast<unsigned char>(bytes[bigEndian ? i + 1 : i]);
        return static_cast<char32_t>(hi << 8 | lo);
    };
    for (std::size_t i = 0; i < bytes.size(); i += 2) {
        if (bytes.size() - i < 2) break;
        char32_t c = unit(i);
        if (c >= 0xD800 && c <= 0xDBFF && bytes.size() - i >= 4) {
            const char32_t low = unit(i + 2);
            if (low >= 0xDC00 && low <= 0xDFFF) {
                c = 0x10000 + ((c - 0xD800) << 10) + (low - 0xDC00);
                i += 2;
            }
        }
        if (c >= 0xD800 && c <= 0xDFFF) {
            error = {out.size(), "The bytes are not UTF-16."};
            return false;
        }
        xmlchars::AppendUtf8(out, c);
    }
    if (bytes.size() % 2 != 0) {
        error = {out.size(), "The bytes are not UTF-16."};
        return false;
    }
    return true;
}

void DecodeLatin1(std::string_view bytes, std::string& out) {
    out.clear();
    out.reserve(bytes.size() + bytes.size() / 8);
    for (const char byte : bytes) xmlchars::AppendUtf8(out, static_cast<unsigned char>(byte));
}

XmlSyntaxError Unsupported(std::string_view text, std::string_view declared) {
    return {static_cast<std::size_t>(declared.data() - text.data()),
            "The encoding '" + std::string(declared) + "' is not supported or does not fit the document."};
}

}  // namespace

bool DecodeXmlText(std::string_view bytes, std::string& storage, std::string_view& text, XmlSyntaxError& error) {
    const bool utf16Le = bytes.substr(0, 2) == kUtf16LeBom;
    if (utf16Le || bytes.substr(0, 2) == kUtf16BeBom) {
        const bool decoded = DecodeUtf16(bytes.substr(2), !utf16Le, storage, error);
        text = storage;
        if (!decoded) return false;
        const std::string_view declared = DeclaredEncoding(text);
        if (declared.empty() || EqualsNoCaseAscii(declared, "UTF-16")) return true;
        error = Unsupported(text, declared);
        return false;
    }
    const bool bom = bytes.substr(0, 3) == kUtf8Bom;
    text = bom ? bytes.substr(3) : bytes;
    const std::string_view declared = DeclaredEncoding(text);
    if (declared.empty() || EqualsNoCaseAscii(declared, "UTF-8")) return true;
    if (!bom && IsOneOf(declared, {"ISO-8859-1", "ISO_8859-1", "latin1", "ISO-Latin-1"})) {
        DecodeLatin1(text, storage);
        text = storage;
        return true;
    }
    if (!bom && IsOneOf(declared, {"US-ASCII", "ASCII"})) {
        for (std::size_t i = 0; i < text.size(); ++i)
            if (static_cast<unsigned char>(text[i]) >= 0x80) {
                error = {i, "The document declares US-ASCII but holds other bytes."};
                return false;
            }
        return true;
    }
    error = Unsupported(text, declared);
    return false;
}

}  // namespace flowloom
