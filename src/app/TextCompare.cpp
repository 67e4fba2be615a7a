#include "app/TextCompare.h"

#include <utf8proc.h>

#include <cstdlib>
#include <memory>

namespace flowloom {

namespace {

bool IsAscii(std::string_view text) {
    for (unsigned char c : text)
        if (c >= 0x80) return false;
    return true;
}

char AsciiLower(char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c; }
char AsciiUpper(char c) { return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 'a' + 'A') : c; }

// Maps every code point through `map`; bytes that are not valid UTF-8 are kept.
template <typename Map>
std::string MapCodePoints(std::string_view text, Map map) {
    std::string out;
    out.reserve(text.size());
    const auto* p = reinterpret_cast<const utf8proc_uint8_t*>(text.data());
    utf8proc_ssize_t left = static_cast<utf8proc_ssize_t>(text.size());
    while (left > 0) {
        utf8proc_int32_t cp = 0;
        utf8proc_ssize_t n = utf8proc_iterate(p, left, &cp);
        if (n <= 0) {  // invalid byte: keep it
            out.push_back(static_cast<char>(*p));
            ++p;
            --left;
            continue;
        }
        utf8proc_uint8_t buf[4];
        utf8proc_ssize_t len = utf8proc_encode_char(map(cp), buf);
        out.append(reinterpret_cast<const char*>(buf), static_cast<std::size_t>(len));
        p += n;
        left -= n;
    }
    return out;
}

std::string FoldUnicode(std::string_view text) {
    utf8proc_uint8_t* result = nullptr;
    utf8proc_ssize_t n = utf8proc_map(reinterpret_cast<const utf8proc_uint8_t*>(text.data()),
                                      static_cast<utf8proc_ssize_t>(text.size()), &result,
                                      static_cast<utf8proc_option_t>(UTF8PROC_CASEFOLD));
    if (n < 0) return MapCodePoints(text, [](utf8proc_int32_t c) { return utf8proc_tolower(c); });
    std::unique_ptr<utf8proc_uint8_t, decltype(&std::free)> owner(result, &std::free);
    return std::string(reinterpret_cast<const char*>(result), static_cast<std::size_t>(n));
}

}  // namespace

std::string FoldCase(std::string_view text) {
    if (!IsAscii(text)) return FoldUnicode(text);
    std::string out(text);
    for (char& c : out) c = AsciiLower(c);
    return out;
}

bool EqualsNoCase(std::string_view a, std::string_view b) {
    if (IsAscii(a) && IsAscii(b)) {
        if (a.size() != b.size()) return false;
        for (std::size_t i = 0; i < a.size(); ++i)
            if (AsciiLower(a[i]) != AsciiLower(b[i])) return false;
        return true;
    }
    return FoldCase(a) == FoldCase(b);
}

std::string ToUpper(std::string_view text) {
    if (IsAscii(text)) {
        std::string out(text);
        for (char& c : out) c = AsciiUpper(c);
        return out;
    }
    return MapCodePoints(text, [](utf8proc_int32_t c) { return utf8proc_toupper(c); });
}

std::string ToLower(std::string_view text) {
    if (IsAscii(text)) {
        std::string out(text);
        for (char& c : out) c = AsciiLower(c);
        return out;
    }
    return MapCodePoints(text, [](utf8proc_int32_t c) { return utf8proc_tolower(c); });
}

std::size_t FindNoCase(std::string_view haystack, std::string_view needle, std::size_t from) {
    if (from > haystack.size()) return std::string_view::npos;
    if (IsAscii(haystack) && IsAscii(needle)) {
        if (needle.empty()) return from;
        for (std::size_t i = from; i + needle.size() <= haystack.size(); ++i) {
            std::size_t k = 0;
            while (k < needle.size() && AsciiLower(haystack[i + k]) == AsciiLower(needle[k])) ++k;
            if (k == needle.size()) return i;
        }
        return std::string_view::npos;
    }
    // Lower-casing keeps code points one to one, so byte positions stay valid
    // as long as each code point keeps its encoded length; check candidates.
    for (std::size_t i = from; i + 1 <= haystack.size() + (needle.empty() ? 1 : 0); ++i) {
        if (needle.empty()) return i;
        for (std::size_t len = 1; i + len <= haystack.size(); ++len) {
            if (EqualsNoCase(haystack.substr(i, len), needle)) return i;
            if (len > needle.size() * 2 + 4) break;
        }
    }
    return std::string_view::npos;
}

}  // namespace flowloom
