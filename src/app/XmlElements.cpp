#include "app/XmlElements.h"

#include "app/XmlChars.h"

#include <charconv>
#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace flowloom {

namespace {

bool IsSpace(char c) noexcept { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

// Bytes that end a name in a tag: blanks, "=", "/", ">".
struct NameEnds {
    bool table[256] = {};
    constexpr NameEnds() {
        for (const unsigned char c : {' ', '\t', '\r', '\n', '=', '/', '>'}) table[c] = true;
    }
};
constexpr NameEnds kNameEnds;

// The first byte from pos on that is the quote, "&" or a control character
// (the check lets only tab, CR and LF through), or the end of the text.
std::size_t ValueStop(std::string_view text, std::size_t pos, char quote) noexcept {
#if defined(__SSE2__)
    const __m128i quotes = _mm_set1_epi8(quote);
    const __m128i ampersands = _mm_set1_epi8('&');
    const __m128i control = _mm_set1_epi8(0x1F);
    for (; pos + 16 <= text.size(); pos += 16) {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(text.data() + pos));
        const __m128i stop = _mm_or_si128(_mm_or_si128(_mm_cmpeq_epi8(bytes, quotes), _mm_cmpeq_epi8(bytes, ampersands)),
                                          _mm_cmpeq_epi8(_mm_max_epu8(bytes, control), control));
        if (const int mask = _mm_movemask_epi8(stop)) return pos + static_cast<std::size_t>(__builtin_ctz(static_cast<unsigned>(mask)));
    }
#endif
    for (; pos < text.size(); ++pos) {
        const auto c = static_cast<unsigned char>(text[pos]);
        if (c == static_cast<unsigned char>(quote) || c == '&' || c < 0x20) return pos;
    }
    return pos;
}

std::size_t NameEnd(std::string_view text, std::size_t pos) noexcept {
    while (pos < text.size() && !kNameEnds.table[static_cast<unsigned char>(text[pos])]) ++pos;
    return pos;
}

void SkipSpace(std::string_view text, std::size_t& pos) noexcept {
    while (pos < text.size() && IsSpace(text[pos])) ++pos;
}

// Moves past the next `end` from pos; false when there is none.
bool SkipPast(std::string_view text, std::size_t& pos, std::string_view end) noexcept {
    const std::size_t at = text.find(end, pos);
    if (at == std::string_view::npos) return false;
    pos = at + end.size();
    return true;
}

bool StartsWith(std::string_view text, std::size_t pos, std::string_view prefix) noexcept {
    return text.substr(pos, prefix.size()) == prefix;
}

// The character of a reference's name ("amp", "#38", "#x26"); false for none.
bool AppendReference(std::string& out, std::string_view name) {
    if (name == "amp") out += '&';
    else if (name == "lt") out += '<';
    else if (name == "gt") out += '>';
    else if (name == "quot") out += '"';
    else if (name == "apos") out += '\'';
    else if (name.size() > 1 && name[0] == '#') {
        const bool hex = name[1] == 'x';
        const std::string_view digits = name.substr(hex ? 2 : 1);
        std::uint32_t code = 0;
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), code, hex ? 16 : 10);
        if (digits.empty() || error != std::errc() || end != digits.data() + digits.size() || code > 0x10FFFF)
            return false;
        xmlchars::AppendUtf8(out, code);
    } else {
        return false;
    }
    return true;
}

}  // namespace

XmlElementView XmlElementView::child(std::string_view name) const noexcept {
    for (const XmlElementView element : children(name)) return element;
    return {};
}

XmlElementAttribute XmlElementView::first_attribute() const noexcept {
    if (!elements_ || elements_->elements_[at_].attributeCount == 0) return {};
    return XmlElementAttribute(&elements_->attributes_[elements_->elements_[at_].firstAttribute]);
}

XmlElementView::Children XmlElementView::children(std::string_view name) const noexcept {
    const std::uint32_t first = elements_ ? elements_->elements_[at_].firstChild : XmlElements::kNone;
    return {ChildIterator(elements_, first, name), ChildIterator(elements_, XmlElements::kNone, name)};
}

XmlElementView::Attributes XmlElementView::attributes() const noexcept {
    if (!elements_ || elements_->elements_[at_].attributeCount == 0) return {AttributeIterator(nullptr), AttributeIterator(nullptr)};
    const XmlElements::Element& element = elements_->elements_[at_];
    const XmlElementAttribute::Stored* first = &elements_->attributes_[element.firstAttribute];
    return {AttributeIterator(first), AttributeIterator(first + element.attributeCount)};
}

XmlElementView XmlElements::Root() const noexcept {
    return elements_.empty() ? XmlElementView() : XmlElementView(this, 0);
}

bool XmlElements::Read(std::string_view text) {
    elements_.clear();
    attributes_.clear();
    decoded_.clear();
    pendingValues_.clear();
    open_.clear();
    lastChild_.clear();
    if (!ReadElements(text)) {
        elements_.clear();
        attributes_.clear();
        return false;
    }
    for (const auto& [index, offset] : pendingValues_)
        attributes_[index].value = std::string_view(decoded_).substr(offset, attributes_[index].value.size());
    return true;
}

bool XmlElements::ReadElements(std::string_view text) {
    std::size_t pos = 0;
    if (!StartsWith(text, 0, "<")) return false;
    while (pos < text.size()) {
        if (text[pos] != '<') {  // text between tags
            pos = text.find('<', pos);
            if (pos == std::string_view::npos) return false;
            continue;
        }
        const char next = pos + 1 < text.size() ? text[pos + 1] : '\0';
        if (next == '/') {
            if (open_.empty() || !SkipPast(text, pos, ">")) return false;
            open_.pop_back();
            lastChild_.pop_back();
            if (open_.empty()) return pos == text.size();
        } else if (next == '!' && StartsWith(text, pos, "<!--")) {
            if (!SkipPast(text, pos, "-->")) return false;
        } else if (next == '!' && StartsWith(text, pos, "<![CDATA[")) {
            if (!SkipPast(text, pos, "]]>")) return false;
        } else if (next == '?') {
            if (!SkipPast(text, pos, "?>")) return false;
        } else {
            if (open_.empty() && !elements_.empty()) return false;  // a second element at the top
            ++pos;
            bool empty = false;
            if (!ReadStartTag(text, pos, empty)) return false;
            if (empty && open_.empty()) return pos == text.size();
        }
    }
    return false;  // an element left open
}

bool XmlElements::ReadStartTag(std::string_view text, std::size_t& pos, bool& empty) {
    const std::size_t nameStart = pos;
    pos = NameEnd(text, pos);
    if (pos == nameStart || pos >= text.size() || text[pos] == '=') return false;
    const auto index = static_cast<std::uint32_t>(elements_.size());
    Element element;
    element.name = text.substr(nameStart, pos - nameStart);
    element.firstAttribute = static_cast<std::uint32_t>(attributes_.size());
    if (!open_.empty()) {
        std::uint32_t& last = lastChild_.back();
        if (last == kNone) elements_[open_.back()].firstChild = index;
        else elements_[last].nextSibling = index;
        last = index;
    }
    elements_.push_back(element);
    for (;;) {
        SkipSpace(text, pos);
        if (pos >= text.size()) return false;
        if (text[pos] == '>') {
            ++pos;
            open_.push_back(index);
            lastChild_.push_back(kNone);
            empty = false;
            break;
        }
        if (text[pos] == '/') {
            if (!StartsWith(text, pos, "/>")) return false;
            pos += 2;
            empty = true;
            break;
        }
        if (!ReadAttribute(text, pos)) return false;
    }
    elements_[index].attributeCount = static_cast<std::uint32_t>(attributes_.size()) - elements_[index].firstAttribute;
    return true;
}

bool XmlElements::ReadAttribute(std::string_view text, std::size_t& pos) {
    const std::size_t nameStart = pos;
    pos = NameEnd(text, pos);
    const std::string_view name = text.substr(nameStart, pos - nameStart);
    SkipSpace(text, pos);
    if (name.empty() || pos >= text.size() || text[pos] != '=') return false;
    ++pos;
    SkipSpace(text, pos);
    if (pos >= text.size() || (text[pos] != '"' && text[pos] != '\'')) return false;
    const char quote = text[pos++];
    const std::size_t start = pos;
    pos = ValueStop(text, pos, quote);
    const bool plain = pos < text.size() && text[pos] == quote;
    if (!plain) pos = text.find(quote, pos);
    if (pos == std::string_view::npos) return false;
    const std::string_view raw = text.substr(start, pos - start);
    ++pos;
    if (plain) {
        attributes_.push_back({name, raw});
        return true;
    }
    const std::size_t offset = decoded_.size();
    if (!Decode(raw)) return false;
    // The view's length is kept; it points into decoded_ once reading is done.
    pendingValues_.emplace_back(static_cast<std::uint32_t>(attributes_.size()), static_cast<std::uint32_t>(offset));
    attributes_.push_back({name, std::string_view(raw.data(), decoded_.size() - offset)});
    return true;
}

bool XmlElements::Decode(std::string_view raw) {
    for (std::size_t i = 0; i < raw.size(); ++i) {
        const char c = raw[i];
        if (c == '&') {
            const std::size_t semicolon = raw.find(';', i);
            if (semicolon == std::string_view::npos || !AppendReference(decoded_, raw.substr(i + 1, semicolon - i - 1)))
                return false;
            i = semicolon;
        } else if (c == '\r') {
            // A line end in a value is one space, however it was written.
            decoded_ += ' ';
            if (i + 1 < raw.size() && raw[i + 1] == '\n') ++i;
        } else if (c == '\t' || c == '\n') {
            decoded_ += ' ';
        } else {
            decoded_ += c;
        }
    }
    return true;
}

}  // namespace flowloom
