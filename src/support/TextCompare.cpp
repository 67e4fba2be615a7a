#include "support/TextCompare.h"

#include <utf8proc.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <tuple>
#include <vector>

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
    // Byte by byte while both sides are ASCII; Unicode folding only when a
    // non-ASCII byte turns up (folding may change lengths, as "ß" and "ss").
    if (a.size() == b.size()) {
        std::size_t i = 0;
        for (; i < a.size(); ++i) {
            const unsigned char x = static_cast<unsigned char>(a[i]);
            const unsigned char y = static_cast<unsigned char>(b[i]);
            if ((x | y) >= 0x80) break;
            if (AsciiLower(static_cast<char>(x)) != AsciiLower(static_cast<char>(y))) return false;
        }
        if (i == a.size()) return true;
    } else if (IsAscii(a) && IsAscii(b)) {
        return false;
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

namespace {

// A text folded code point by code point, remembering for each folded byte
// where its code point starts in the original text.
struct FoldedText {
    std::string text;
    std::vector<std::size_t> origin;  // one per byte of text, plus the end
    std::vector<bool> boundary;       // a code point's folding starts here
};

FoldedText FoldWithOrigins(std::string_view original) {
    FoldedText folded;
    const auto* p = reinterpret_cast<const utf8proc_uint8_t*>(original.data());
    const auto size = static_cast<utf8proc_ssize_t>(original.size());
    utf8proc_ssize_t at = 0;
    while (at < size) {
        utf8proc_int32_t cp = 0;
        const utf8proc_ssize_t n = utf8proc_iterate(p + at, size - at, &cp);
        std::string piece;
        if (n <= 0) {
            piece.assign(1, static_cast<char>(p[at]));
        } else {
            utf8proc_int32_t buffer[8];
            int boundclass = 0;
            const utf8proc_ssize_t count = utf8proc_decompose_char(
                cp, buffer, 8, static_cast<utf8proc_option_t>(UTF8PROC_CASEFOLD), &boundclass);
            for (utf8proc_ssize_t i = 0; i < std::max<utf8proc_ssize_t>(count, 0) && i < 8; ++i) {
                utf8proc_uint8_t bytes[4];
                piece.append(reinterpret_cast<const char*>(bytes),
                             static_cast<std::size_t>(utf8proc_encode_char(buffer[i], bytes)));
            }
            if (count <= 0) piece.assign(reinterpret_cast<const char*>(p + at), static_cast<std::size_t>(n));
        }
        for (std::size_t i = 0; i < piece.size(); ++i) {
            folded.origin.push_back(static_cast<std::size_t>(at));
            folded.boundary.push_back(i == 0);
        }
        folded.text += piece;
        at += n <= 0 ? 1 : n;
    }
    folded.origin.push_back(original.size());
    folded.boundary.push_back(true);
    return folded;
}

}  // namespace

std::pair<std::size_t, std::size_t> FindNoCaseSpan(std::string_view haystack, std::string_view needle,
                                                   std::size_t from) {
    constexpr auto npos = std::string_view::npos;
    if (from > haystack.size()) return {npos, 0};
    if (IsAscii(haystack) && IsAscii(needle)) {
        if (needle.empty()) return {from, 0};
        for (std::size_t i = from; i + needle.size() <= haystack.size(); ++i) {
            std::size_t k = 0;
            while (k < needle.size() && AsciiLower(haystack[i + k]) == AsciiLower(needle[k])) ++k;
            if (k == needle.size()) return {i, needle.size()};
        }
        return {npos, 0};
    }
    const FoldedText folded = FoldWithOrigins(haystack);
    const std::string key = FoldCase(needle);
    for (std::size_t pos = folded.text.find(key); pos != std::string::npos; pos = folded.text.find(key, pos + 1)) {
        const std::size_t end = pos + key.size();
        if (!folded.boundary[pos] || !folded.boundary[end] || folded.origin[pos] < from) continue;
        return {folded.origin[pos], folded.origin[end] - folded.origin[pos]};
    }
    return {npos, 0};
}

std::size_t FindNoCase(std::string_view haystack, std::string_view needle, std::size_t from) {
    return FindNoCaseSpan(haystack, needle, from).first;
}

std::string ReplaceNoCase(std::string_view text, std::string_view find, std::string_view with) {
    if (find.empty()) return std::string(text);
    std::string out;
    std::size_t from = 0;
    for (auto [at, length] = FindNoCaseSpan(text, find); at != std::string_view::npos;
         std::tie(at, length) = FindNoCaseSpan(text, find, from)) {
        out.append(text.substr(from, at - from)).append(with);
        from = at + std::max<std::size_t>(length, 1);
    }
    out.append(text.substr(std::min(from, text.size())));
    return out;
}

}  // namespace flowloom
