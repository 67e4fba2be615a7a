#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

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

}  // namespace flowloom
