#include "app/XmlDocument.h"

#include "support/TextCompare.h"
#include "support/VbError.h"
#include "support/FileBytes.h"
#include "app/XmlCheck.h"
#include "app/XmlEncoding.h"

#include <algorithm>
#include <optional>

namespace flowloom {

namespace {

constexpr unsigned kParseOptions = pugi::parse_default | pugi::parse_declaration;

const char* ReasonText(pugi::xml_parse_status status) {
    switch (status) {
    case pugi::status_file_not_found: return "The system cannot locate the object specified.";
    case pugi::status_io_error: return "The file could not be read.";
    case pugi::status_out_of_memory: return "Not enough storage is available to complete this operation.";
    case pugi::status_no_document_element: return "XML document must have a top level element.";
    case pugi::status_end_element_mismatch: return "End tag does not match the start tag.";
    case pugi::status_unrecognized_tag: return "The element or tag is not well-formed.";
    case pugi::status_bad_attribute: return "A string literal or attribute is not well-formed.";
    case pugi::status_bad_start_element: return "The start tag is not well-formed.";
    case pugi::status_bad_end_element: return "The end tag is not well-formed.";
    case pugi::status_bad_pi: return "A processing instruction is not well-formed.";
    case pugi::status_bad_comment: return "A comment is not well-formed.";
    case pugi::status_bad_cdata: return "A CDATA section is not well-formed.";
    case pugi::status_bad_doctype: return "A document type declaration is not well-formed.";
    case pugi::status_bad_pcdata: return "Text content is not well-formed.";
    case pugi::status_append_invalid_root: return "Only one top level element is allowed in an XML document.";
    default: return "The document is not well-formed.";
    }
}

}  // namespace

bool XmlDocument::Load(const std::filesystem::path& path) {
    const std::optional<std::string> text = ReadFileBytes(path);
    if (!text) {
        document_.reset();
        error_ = {0, ReasonText(pugi::status_file_not_found), {}};
        return false;
    }
    return LoadXml(*text);
}

bool XmlDocument::LoadXml(std::string_view bytes) {
    error_ = {};
    document_.reset();
    // pugixml takes much that a conformant parser refuses (bytes that are no
    // UTF-8, forbidden characters, names that are no qualified names,
    // duplicate attributes, a second root). The run-time reads the file with
    // a conformant parser, so the text is checked first and pugixml only
    // builds the tree.
    std::string converted;
    std::string_view text;
    XmlSyntaxError syntax;
    if (!DecodeXmlText(bytes, converted, text, syntax)) {
        SetParseError(syntax.offset, syntax.reason, text);
        return false;
    }
    if (std::optional<XmlSyntaxError> error = CheckXmlDocument(text)) {
        SetParseError(error->offset, error->reason, text);
        return false;
    }
    pugi::xml_parse_result result = document_.load_buffer(text.data(), text.size(), kParseOptions, pugi::encoding_utf8);
    if (result && !document_.document_element()) result.status = pugi::status_no_document_element;
    if (!result) {
        SetParseError(static_cast<std::size_t>(std::max<std::ptrdiff_t>(result.offset, 0)), ReasonText(result.status), text);
        document_.reset();
        return false;
    }
    return true;
}

bool XmlDocument::LoadOutline(std::string_view bytes, std::string& storage, XmlOutline& outline) {
    error_ = {};
    document_.reset();
    outline = {};
    std::string_view text;
    XmlSyntaxError syntax;
    if (!DecodeXmlText(bytes, storage, text, syntax)) {
        SetParseError(syntax.offset, syntax.reason, text);
        return false;
    }
    if (std::optional<XmlSyntaxError> error = CheckXmlDocument(text, outline)) {
        SetParseError(error->offset, error->reason, text);
        return false;
    }
    // The root's start tag alone, closed at once.
    const std::string_view tag = outline.rootStartTag;
    std::string root(tag.substr(0, tag.size() - 1));  // without its ">"
    if (root.empty() || root.back() != '/') root += '/';
    root += '>';
    const pugi::xml_parse_result result = document_.load_buffer(root.data(), root.size(), kParseOptions, pugi::encoding_utf8);
    if (!result || !document_.document_element()) {
        // The check passed, so this does not happen; the whole text then
        // tells what went wrong as LoadXml would.
        outline = {};
        return LoadXml(text);
    }
    return true;
}

pugi::xml_node ParseChild(const XmlOutline::Child& child, pugi::xml_document& document) {
    if (!document.load_buffer(child.text.data(), child.text.size(), kParseOptions, pugi::encoding_utf8)) return {};
    return document.document_element();
}

void XmlDocument::SetParseError(std::size_t offset, std::string reason, std::string_view text) {
    offset = std::min(offset, text.size());
    int line = 1;
    std::size_t lineStart = 0;
    for (std::size_t i = 0; i < offset; ++i)
        if (text[i] == '\n') {
            ++line;
            lineStart = i + 1;
        }
    std::size_t lineEnd = text.find('\n', lineStart);
    if (lineEnd == std::string_view::npos) lineEnd = text.size();
    std::string src(text.substr(lineStart, lineEnd - lineStart));
    if (!src.empty() && src.back() == '\r') src.pop_back();
    error_ = {line, std::move(reason), std::move(src)};
}

void XmlDocument::AppendDeclaration() {
    pugi::xml_node decl = document_.append_child(pugi::node_declaration);
    decl.append_attribute("version").set_value("1.0");
    decl.append_attribute("encoding").set_value("UTF-8");
}

std::string XmlDocument::XML(std::size_t sizeHint) const { return SerializeNode(document_, sizeHint); }

namespace {

// Byte by byte while both sides are ASCII: a difference there, or one side
// going on where the other ends, settles it (case folding maps code point by
// code point and never to nothing). A byte beyond ASCII leaves it open
// (nullopt). `text` ends at `size` or at a NUL, whichever comes first.
std::optional<bool> AsciiFirstEquals(const char* text, std::size_t size, std::string_view name) {
    const auto ended = [&](std::size_t i) { return i >= size || text[i] == '\0'; };
    std::size_t i = 0;
    for (; i < name.size(); ++i) {
        if (ended(i)) return false;
        const auto c = static_cast<unsigned char>(text[i]);
        const auto e = static_cast<unsigned char>(name[i]);
        if ((c | e) >= 0x80) return std::nullopt;
        if (c == e) continue;
        const auto lower = static_cast<unsigned char>(c | 0x20);
        if (lower != (e | 0x20) || lower < 'a' || lower > 'z') return false;
    }
    if (ended(i)) return true;
    if (static_cast<unsigned char>(text[i]) >= 0x80) return std::nullopt;
    return false;
}

bool NameOfNodeIs(const char* text, std::string_view name) {
    if (const std::optional<bool> equal = AsciiFirstEquals(text, static_cast<std::size_t>(-1), name)) return *equal;
    return EqualsNoCase(text, name);
}

}  // namespace

bool NameIs(const pugi::xml_attribute& attribute, std::string_view name) { return NameOfNodeIs(attribute.name(), name); }

bool NameIs(const pugi::xml_node& node, std::string_view name) { return NameOfNodeIs(node.name(), name); }

bool NameIs(std::string_view text, std::string_view name) {
    // A NUL in the view is a byte like any other here: the full comparison.
    if (text.find('\0') == std::string_view::npos)
        if (const std::optional<bool> equal = AsciiFirstEquals(text.data(), text.size(), name)) return *equal;
    return EqualsNoCase(text, name);
}

}  // namespace flowloom
