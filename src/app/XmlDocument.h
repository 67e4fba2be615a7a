#pragma once

#include <pugixml.hpp>

#include <filesystem>
#include <string>
#include <string_view>

namespace flowloom {

// What a failed parse tells: the line (1-based), the reason, and the text of
// that line.
struct XmlParseError {
    int line = 0;
    std::string reason;
    std::string srcText;
};

// The XML document object of the system, on pugixml: load with a parse
// error, the document element, serialisation and save. Serialised text is
// the declaration followed by the root element, with no white space between
// elements and no line break anywhere; in attribute values &, <, > and " are
// entities and control characters (line breaks, tabs) character references.
class XmlDocument {
public:
    XmlDocument() = default;

    // Parses a file; false when it cannot be read or does not parse.
    bool Load(const std::filesystem::path& path);
    bool LoadXml(std::string_view text);

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
    void SetParseError(const pugi::xml_parse_result& result, std::string_view text);

    pugi::xml_document document_;
    XmlParseError error_;
};

// The serialised text of one node (an element or a whole document).
std::string SerializeNode(const pugi::xml_node& node, std::size_t sizeHint = 0);

// Attribute-name comparison of the readers: without regard to case.
bool NameIs(const pugi::xml_attribute& attribute, std::string_view name);
bool NameIs(const pugi::xml_node& node, std::string_view name);

}  // namespace flowloom
