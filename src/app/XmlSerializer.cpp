// The serialiser of the XML layer. Whatever a document holds, the text it
// makes is well-formed: a character XML does not allow (or bytes that are no
// UTF-8) is written as U+FFFD, an attribute whose name cannot stand is left
// out, and so is an element whose name cannot stand, with its content.
#include "app/XmlDocument.h"

#include "app/XmlChars.h"
#include "app/XmlSink.h"
#include "app/XmlNamespaces.h"

#include <bit>
#include <cstdint>
#include <cstring>
#include <vector>

namespace flowloom {

namespace {

constexpr std::string_view kReplacementUtf8 = "\xEF\xBF\xBD";

// ASCII bytes written as they are: in text, and in attribute values.
struct PlainBytes {
    bool text[256] = {};
    bool value[256] = {};
    constexpr PlainBytes() {
        for (int c = 0x20; c < 0x80; ++c) text[c] = value[c] = c != '&' && c != '<' && c != '>';
        value[static_cast<unsigned char>('"')] = false;
        text[static_cast<unsigned char>('\t')] = text[static_cast<unsigned char>('\n')] = true;
    }
};
constexpr PlainBytes kPlain;

// The high bit of each byte of an attribute value's eight bytes that need
// escaping: below 0x20, from 0x80 on, and " & < >. The lowest bit set is
// exact; bits above it may not be (a borrow only runs upwards from a byte
// that is flagged anyway).
std::uint64_t EscapeFlags(std::uint64_t word) noexcept {
    constexpr std::uint64_t kOnes = 0x0101010101010101;
    constexpr std::uint64_t kHigh = 0x8080808080808080;
    const auto zeroBytes = [](std::uint64_t w) { return (w - kOnes) & ~w; };
    // '"' and '&' differ in bit 0x04 only, '<' and '>' in bit 0x02 only.
    const std::uint64_t quoteOrAmpersand = zeroBytes((word | 0x04 * kOnes) ^ ('&' * kOnes));
    const std::uint64_t angle = zeroBytes((word | 0x02 * kOnes) ^ ('>' * kOnes));
    return ((word - 0x20 * kOnes) | word | quoteOrAmpersand | angle) & kHigh;
}

// Eight bytes of plain text, to fill a word behind a short value.
constexpr std::uint64_t kPlainPadding = 0x4141414141414141;

template <typename T>
T Load(const char* at) noexcept {
    T value;
    std::memcpy(&value, at, sizeof value);
    return value;
}

template <typename T>
void Store(char* at, T value) noexcept {
    std::memcpy(at, &value, sizeof value);
}

// The byte of the lowest flag (little-endian words).
std::size_t FirstFlagged(std::uint64_t flags) noexcept { return static_cast<std::size_t>(std::countr_zero(flags)) / 8; }

// The length of the plain start of an attribute value (see EscapeFlags),
// copied to `out` as well when kCopy (bytes behind it may be copied too).
template <bool kCopy>
std::size_t ScanPlainValue(char* out, std::string_view value) noexcept {
    const char* const data = value.data();
    const std::size_t size = value.size();
    if constexpr (std::endian::native != std::endian::little) {
        std::size_t i = 0;
        for (; i < size && kPlain.value[static_cast<unsigned char>(data[i])]; ++i)
            if constexpr (kCopy) out[i] = data[i];
        return i;
    }
    if (size >= 8) {
        std::size_t i = 0;
        for (; size - i > 8; i += 8) {
            const std::uint64_t word = Load<std::uint64_t>(data + i);
            if constexpr (kCopy) Store(out + i, word);
            if (const std::uint64_t flags = EscapeFlags(word)) return i + FirstFlagged(flags);
        }
        // The last eight bytes, of which those before i are known plain.
        const std::uint64_t word = Load<std::uint64_t>(data + size - 8);
        if constexpr (kCopy) Store(out + size - 8, word);
        const std::uint64_t flags = EscapeFlags(word) & (~std::uint64_t{0} << 8 * (i + 8 - size));
        return flags ? size - 8 + FirstFlagged(flags) : size;
    }
    if (size == 0) return 0;
    // Fewer than eight bytes: gathered into one word (by overlapping loads
    // and stores), and the bytes behind them made plain.
    std::uint64_t word = kPlainPadding << 8 * size;
    if (size >= 4) {
        const auto head = Load<std::uint32_t>(data);
        const auto tail = Load<std::uint32_t>(data + size - 4);
        if constexpr (kCopy) Store(out, head);
        if constexpr (kCopy) Store(out + size - 4, tail);
        word |= head | std::uint64_t{tail} << 8 * (size - 4);
    } else {
        const std::size_t middle = size / 2;
        if constexpr (kCopy) {
            out[0] = data[0];
            out[middle] = data[middle];
            out[size - 1] = data[size - 1];
        }
        word |= std::uint64_t{static_cast<unsigned char>(data[0])} |
                std::uint64_t{static_cast<unsigned char>(data[middle])} << 8 * middle |
                std::uint64_t{static_cast<unsigned char>(data[size - 1])} << 8 * (size - 1);
    }
    const std::uint64_t flags = EscapeFlags(word);
    return flags ? FirstFlagged(flags) : size;
}

// Escapes for attribute values and text: the markup characters as entities;
// tab, line feed and carriage return in attribute values (and carriage
// return in text) as character references, so that a parser hands back
// exactly what was written; characters XML does not allow as U+FFFD. The
// escape of what stands at `pos`, which is no plain ASCII, moving `pos`
// behind it; "" for a character beyond ASCII that goes out as it is.
std::string_view EscapeAt(std::string_view text, std::size_t& pos) {
    const unsigned char byte = static_cast<unsigned char>(text[pos]);
    if (byte >= 0x80) {
        const char32_t c = xmlchars::NextChar(text, pos);
        return c != xmlchars::kNotUtf8 && xmlchars::IsXmlChar(c) ? std::string_view() : kReplacementUtf8;
    }
    ++pos;
    switch (byte) {
    case '&': return "&amp;";
    case '<': return "&lt;";
    case '>': return "&gt;";
    case '"': return "&quot;";
    case '\t': return "&#9;";
    case '\n': return "&#10;";
    case '\r': return "&#13;";
    default: return kReplacementUtf8;  // the control characters
    }
}

void AppendEscaped(std::string& out, std::string_view text, bool attribute) {
    const bool(&plain)[256] = attribute ? kPlain.value : kPlain.text;
    std::size_t run = 0;  // start of the characters that go out as they are
    std::size_t pos = 0;
    while (pos < text.size()) {
        if (attribute) pos += ScanPlainValue<false>(nullptr, text.substr(pos));
        else
            while (pos < text.size() && plain[static_cast<unsigned char>(text[pos])]) ++pos;
        if (pos == text.size()) break;
        const std::size_t at = pos;
        const std::string_view escape = EscapeAt(text, pos);
        if (escape.empty()) continue;
        out.append(text, run, at - run);
        out += escape;
        run = pos;
    }
    out.append(text, run, text.size() - run);
}

// Text that needs no escapes (comments, CDATA, processing instructions), with
// the characters XML does not allow replaced.
std::string Allowed(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t pos = 0; pos < text.size();) {
        const std::size_t at = pos;
        const char32_t c = xmlchars::NextChar(text, pos);
        if (c != xmlchars::kNotUtf8 && xmlchars::IsXmlChar(c)) out.append(text, at, pos - at);
        else out += kReplacementUtf8;
    }
    return out;
}

std::string ReplaceAll(std::string text, std::string_view what, std::string_view with) {
    for (std::size_t pos = 0; (pos = text.find(what, pos)) != std::string::npos; pos += with.size())
        text.replace(pos, what.size(), with);
    return text;
}

bool IsReservedTarget(std::string_view target) {
    return target.size() == 3 && (target[0] | 0x20) == 'x' && (target[1] | 0x20) == 'm' && (target[2] | 0x20) == 'l';
}

// Walks a tree without recursion, so that nesting depth costs no machine stack.
class Serializer {
public:
    explicit Serializer(std::string& out) : out_(out) {}
    void Write(const pugi::xml_node& top);

private:
    // Writes the node, or the start of it when its children follow (true).
    bool Open(const pugi::xml_node& node);
    bool OpenElement(const pugi::xml_node& node);
    void Close(const pugi::xml_node& node);
    void Declaration(const pugi::xml_node& node);
    void Misc(const pugi::xml_node& node);

    std::string& out_;
    XmlNamespaceScope namespaces_;
    std::vector<XmlAttributeView> attributes_;
    std::vector<const char*> faults_;
};

void Serializer::Write(const pugi::xml_node& top) {
    if (!Open(top)) return;
    pugi::xml_node node = top.first_child();
    while (node) {
        if (Open(node)) {
            node = node.first_child();
            continue;
        }
        while (!node.next_sibling()) {
            node = node.parent();
            Close(node);
            if (node == top) return;
        }
        node = node.next_sibling();
    }
}

bool Serializer::Open(const pugi::xml_node& node) {
    switch (node.type()) {
    case pugi::node_document: return static_cast<bool>(node.first_child());
    case pugi::node_element: return OpenElement(node);
    case pugi::node_declaration: Declaration(node); return false;
    case pugi::node_pcdata: AppendEscaped(out_, node.value(), false); return false;
    default: Misc(node); return false;
    }
}

bool Serializer::OpenElement(const pugi::xml_node& node) {
    attributes_.clear();
    for (const pugi::xml_attribute& a : node.attributes()) attributes_.push_back({a.name(), a.value()});
    if (namespaces_.Open(node.name(), attributes_, faults_)) {
        namespaces_.Close();
        return false;
    }
    out_ += '<';
    out_ += node.name();
    for (std::size_t i = 0; i < attributes_.size(); ++i) {
        if (faults_[i]) continue;
        out_ += ' ';
        out_ += attributes_[i].name;
        out_ += "=\"";
        AppendEscaped(out_, attributes_[i].value, true);
        out_ += '"';
    }
    if (node.first_child()) {
        out_ += '>';
        return true;
    }
    out_ += "/>";
    namespaces_.Close();
    return false;
}

void Serializer::Close(const pugi::xml_node& node) {
    if (node.type() != pugi::node_element) return;
    out_ += "</";
    out_ += node.name();
    out_ += '>';
    namespaces_.Close();
}

// The text is UTF-8 and follows the rules of version 1.0, whatever the
// declaration of a loaded document said.
void Serializer::Declaration(const pugi::xml_node& node) {
    out_ += "<?xml version=\"1.0\"";
    if (node.attribute("encoding")) out_ += " encoding=\"UTF-8\"";
    const std::string_view standalone = node.attribute("standalone").value();
    if (standalone == "yes" || standalone == "no") out_.append(" standalone=\"").append(standalone).append("\"");
    out_ += "?>";
}

void Serializer::Misc(const pugi::xml_node& node) {
    const std::string_view name = node.name();
    switch (node.type()) {
    case pugi::node_cdata:
        out_.append("<![CDATA[").append(ReplaceAll(Allowed(node.value()), "]]>", "]]]]><![CDATA[>")).append("]]>");
        break;
    case pugi::node_comment: {
        std::string text = ReplaceAll(Allowed(node.value()), "--", "- -");
        if (!text.empty() && text.back() == '-') text += ' ';
        out_.append("<!--").append(text).append("-->");
        break;
    }
    case pugi::node_pi:
        if (!xmlchars::IsNCName(name) || IsReservedTarget(name)) break;
        out_ += "<?";
        out_ += name;
        if (*node.value()) out_.append(" ").append(ReplaceAll(Allowed(node.value()), "?>", "? >"));
        out_ += "?>";
        break;
    case pugi::node_doctype:
        if (xmlchars::IsName(node.value())) out_.append("<!DOCTYPE ").append(node.value()).append(">");
        break;
    default: break;
    }
}

}  // namespace

void AppendEscapedXml(std::string& out, std::string_view text, bool attribute) { AppendEscaped(out, text, attribute); }

std::size_t CopyPlainAttributeValue(char* out, std::string_view value) noexcept {
    return ScanPlainValue<true>(out, value);
}

char* WriteEscapedAttributeValue(char* out, std::string_view value) noexcept {
    // No byte becomes more than kEscapedValueRoom bytes, so the room left
    // always holds the rest of the value, which the plain copy may write.
    for (std::size_t pos = 0;;) {
        const std::size_t plain = ScanPlainValue<true>(out, value.substr(pos));
        out += plain;
        pos += plain;
        if (pos == value.size()) return out;
        const std::size_t at = pos;
        std::string_view escape = EscapeAt(value, pos);
        if (escape.empty()) escape = value.substr(at, pos - at);
        std::memcpy(out, escape.data(), escape.size());
        out += escape.size();
    }
}

std::string SerializeNode(const pugi::xml_node& node, std::size_t sizeHint) {
    std::string out;
    out.reserve(sizeHint);
    Serializer(out).Write(node);
    return out;
}

}  // namespace flowloom
