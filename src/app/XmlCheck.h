#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace flowloom {

// Where a document stops being well-formed, and why.
struct XmlSyntaxError {
    std::size_t offset = 0;  // in the text that was checked
    std::string reason;
};

// Checks UTF-8 text as a conformant parser reads a document: XML 1.0 (fifth
// edition) well-formedness and Namespaces in XML 1.0. Every character must be
// one XML allows, also through a character reference; names must be names and
// qualified names with declared prefixes; attributes must be unique; there is
// one root element and nothing but markup around it. Entities other than the
// five predefined ones, and document type declarations with an internal
// subset (whose declarations could change what the document says), are
// refused. The first violation, or nothing when the text is a document.
std::optional<XmlSyntaxError> CheckXmlDocument(std::string_view text);

// The outline of a document that passed the check: the root's start tag and
// each child element of the root, as pieces of the checked text, so that a
// reader can parse and read one child at a time instead of the whole tree.
struct XmlOutline {
    struct Child {
        std::string_view name;
        std::string_view text;  // from its "<" to the end of its end tag
    };
    std::string_view rootName;
    std::string_view rootStartTag;  // "<Name ...>" or "<Name .../>"
    std::vector<Child> children;
};

// As above; when the text is a document, `outline` gets its outline.
std::optional<XmlSyntaxError> CheckXmlDocument(std::string_view text, XmlOutline& outline);

}  // namespace flowloom
