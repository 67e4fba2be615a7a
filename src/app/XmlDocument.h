#pragma once

#include "app/XmlCheck.h"
#include "app/XmlElements.h"

#include <pugixml.hpp>

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace flowloom {

// What a failed parse tells: the line (1-based), the reason, and the text of
// that line.
struct XmlParseError {
    int line = 0;
    std::string reason;
    std::string srcText;
};

// The XML document object of the system, on pugixml: load with a parse
// error, the document element, serialisation and save. Loading is as strict
// as a conformant parser (see CheckXmlDocument): what it refuses is a parse
// error like any other. Serialised text is the declaration followed by the
// root element, with no white space between elements and no line break
// anywhere; in attribute values &, <, > and " are entities and tabs and line
// breaks character references. It is always well-formed (see SerializeNode).
class XmlDocument {
public:
    XmlDocument() = default;

    // Parses a file; false when it cannot be read or does not parse.
    bool Load(const std::filesystem::path& path);
    // Parses the bytes of a document: UTF-8, UTF-16 with a byte order mark,
    // or the 8-bit encoding its declaration names (ISO-8859-1, US-ASCII).
    bool LoadXml(std::string_view bytes);
    // As LoadXml, but the tree holds the root element alone, with its
    // attributes; its children stay text in `outline` (pieces of `bytes`, or
    // of `storage` when the bytes had to be converted) for ParseChild.
    bool LoadOutline(std::string_view bytes, std::string& storage, XmlOutline& outline);

    // The root element; a null node after a failed parse or for a new document.
    pugi::xml_node DocumentElement() const { return document_.document_element(); }
    const XmlParseError& ParseError() const noexcept { return error_; }

    // Appends the declaration <?xml version="1.0" encoding="UTF-8"?>.
    void AppendDeclaration();
    pugi::xml_document& Native() noexcept { return document_; }
    const pugi::xml_document& Native() const noexcept { return document_; }

    // The serialised text ("xml" of the document object); a good guess of
    // its size saves the copies of a growing string.
    std::string XML(std::size_t sizeHint = 0) const;

private:
    void SetParseError(std::size_t offset, std::string reason, std::string_view text);

    pugi::xml_document document_;
    XmlParseError error_;
};

// Parses one child of an outline into `document` (replacing what it held);
// its element, or a null node when the text does not parse.
pugi::xml_node ParseChild(const XmlOutline::Child& child, pugi::xml_document& document);
// The serialised text of one node (an element or a whole document). It is
// well-formed whatever the tree holds: characters XML does not allow, and
// bytes that are no UTF-8, become U+FFFD; an attribute whose name is no
// qualified name with a declared prefix, or that repeats another, is left
// out, and so is such an element with its content.
std::string SerializeNode(const pugi::xml_node& node, std::size_t sizeHint = 0);

// Attribute-name comparison of the readers: without regard to case, with
// the result of EqualsNoCase, but left at the first ASCII difference (the
// full case folding only for text beyond ASCII).
bool NameIs(const pugi::xml_attribute& attribute, std::string_view name);
bool NameIs(const pugi::xml_node& node, std::string_view name);
bool NameIs(std::string_view text, std::string_view name);

// An attribute as the readers walk it: its name measured once, so that the
// many names a reader tries on it are mostly told apart by their length.
class MeasuredAttribute {
public:
    explicit MeasuredAttribute(const XmlElementAttribute& attribute)
        : name_(attribute.name()), value_(attribute.value()), ascii_(IsAsciiText(name_)) {}
    std::string_view name() const noexcept { return name_; }
    std::string_view value() const noexcept { return value_; }
    // NameIs for this attribute and an ASCII name. Two ASCII names are equal
    // without regard to case only at the same length; beyond ASCII, folding
    // may change lengths.
    bool IsAscii(std::string_view name) const {
        if (!ascii_) return NameIs(name_, name);
        if (name.size() != name_.size()) return false;
        for (std::size_t i = 0; i < name.size(); ++i)
            if (((name_[i] ^ name[i]) & ~0x20) != 0 || (name_[i] != name[i] && !IsAsciiLetter(name[i]))) return false;
        return true;
    }

private:
    static constexpr bool IsAsciiText(std::string_view text) noexcept {
        for (const char c : text)
            if (static_cast<unsigned char>(c) >= 0x80) return false;
        return true;
    }
    static constexpr bool IsAsciiLetter(char c) noexcept { return (c | 0x20) >= 'a' && (c | 0x20) <= 'z'; }

    std::string_view name_;
    std::string_view value_;
    bool ascii_;
};
// An attribute name that the readers spell out: known to be ASCII when the
// program is compiled, so that no comparison has to look at it first.
class AsciiName {
public:
    template <std::size_t N>
    consteval AsciiName(const char (&name)[N]) : name_(name, N - 1) {  // NOLINT: made from a literal
        for (const char c : name_)
            if (static_cast<unsigned char>(c) >= 0x80) throw "an attribute name of a reader must be ASCII";
    }
    std::string_view View() const noexcept { return name_; }

private:
    std::string_view name_;
};
inline bool NameIs(const MeasuredAttribute& attribute, AsciiName name) { return attribute.IsAscii(name.View()); }

// The attributes of an element, measured: for (const MeasuredAttribute a : MeasuredAttributes(element)).
class MeasuredAttributes {
public:
    explicit MeasuredAttributes(const XmlElementView& element) : attributes_(element.attributes()) {}
    class iterator {
    public:
        explicit iterator(XmlElementView::AttributeIterator at) : at_(at) {}
        MeasuredAttribute operator*() const { return MeasuredAttribute(*at_); }
        iterator& operator++() {
            ++at_;
            return *this;
        }
        bool operator!=(const iterator& other) const { return at_ != other.at_; }

    private:
        XmlElementView::AttributeIterator at_;
    };
    iterator begin() const { return iterator(attributes_.begin()); }
    iterator end() const { return iterator(attributes_.end()); }

private:
    XmlElementView::Attributes attributes_;
};

}  // namespace flowloom
