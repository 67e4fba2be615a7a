#include "app/XmlDocument.h"

#include "support/TextCompare.h"
#include "support/VbError.h"
#include "support/FileBytes.h"


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

bool XmlDocument::LoadXml(std::string_view text) {
    error_ = {};
    pugi::xml_parse_result result = document_.load_buffer(text.data(), text.size(), kParseOptions, pugi::encoding_auto);
    if (result && !document_.document_element()) result.status = pugi::status_no_document_element;
    if (!result) {
        SetParseError(result, text);
        document_.reset();
        return false;
    }
    return true;
}

void XmlDocument::SetParseError(const pugi::xml_parse_result& result, std::string_view text) {
    std::size_t offset = std::min<std::size_t>(static_cast<std::size_t>(std::max<std::ptrdiff_t>(result.offset, 0)), text.size());
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
    error_ = {line, ReasonText(result.status), std::move(src)};
}

void XmlDocument::AppendDeclaration() {
    pugi::xml_node decl = document_.append_child(pugi::node_declaration);
    decl.append_attribute("version").set_value("1.0");
    decl.append_attribute("encoding").set_value("UTF-8");
}

std::string XmlDocument::XML(std::size_t sizeHint) const { return SerializeNode(document_, sizeHint); }

namespace {

// Escapes for attribute values: the markup characters as entities, control
// characters (line breaks, tabs) as character references, so that every
// value survives a round trip unchanged.
void AppendEscaped(std::string& out, const char* text, bool attribute) {
    const char* run = text;  // start of the characters that need no escape
    for (const char* p = text;; ++p) {
        const unsigned char c = static_cast<unsigned char>(*p);
        const bool special = c == '&' || c == '<' || c == '>' || (c == '"' && attribute) ||
                             (c < 0x20 && c != 0 && (attribute || (c != '\n' && c != '\t' && c != '\r')));
        if (!special && c != 0) continue;
        out.append(run, static_cast<std::size_t>(p - run));
        if (c == 0) return;
        switch (c) {
        case '&': out += "&amp;"; break;
        case '<': out += "&lt;"; break;
        case '>': out += "&gt;"; break;
        case '"': out += "&quot;"; break;
        default:
            out += "&#";
            out += std::to_string(c);
            out += ';';
        }
        run = p + 1;
    }
}

void AppendAttributes(std::string& out, const pugi::xml_node& node) {
    for (const pugi::xml_attribute& a : node.attributes()) {
        out += ' ';
        out += a.name();
        out += "=\"";
        AppendEscaped(out, a.value(), true);
        out += '"';
    }
}

void AppendNode(std::string& out, const pugi::xml_node& node);

void AppendChildren(std::string& out, const pugi::xml_node& node) {
    for (const pugi::xml_node& child : node.children()) AppendNode(out, child);
}

void AppendElement(std::string& out, const pugi::xml_node& node) {
    out += '<';
    out += node.name();
    AppendAttributes(out, node);
    if (!node.first_child()) {
        out += "/>";
        return;
    }
    out += '>';
    AppendChildren(out, node);
    out += "</";
    out += node.name();
    out += '>';
}

void AppendNode(std::string& out, const pugi::xml_node& node) {
    switch (node.type()) {
    case pugi::node_document: AppendChildren(out, node); break;
    case pugi::node_element: AppendElement(out, node); break;
    case pugi::node_declaration:
        out += "<?";
        out += node.name();
        AppendAttributes(out, node);
        out += "?>";
        break;
    case pugi::node_pi:
        out += "<?";
        out += node.name();
        if (*node.value()) {
            out += ' ';
            out += node.value();
        }
        out += "?>";
        break;
    case pugi::node_pcdata: AppendEscaped(out, node.value(), false); break;
    case pugi::node_cdata:
        out += "<![CDATA[";
        out += node.value();
        out += "]]>";
        break;
    case pugi::node_comment:
        out += "<!--";
        out += node.value();
        out += "-->";
        break;
    case pugi::node_doctype:
        out += "<!DOCTYPE ";
        out += node.value();
        out += '>';
        break;
    default: break;
    }
}

}  // namespace

std::string SerializeNode(const pugi::xml_node& node, std::size_t sizeHint) {
    std::string out;
    out.reserve(sizeHint);
    AppendNode(out, node);
    return out;
}

bool NameIs(const pugi::xml_attribute& attribute, std::string_view name) {
    return EqualsNoCase(attribute.name(), name);
}

bool NameIs(const pugi::xml_node& node, std::string_view name) { return EqualsNoCase(node.name(), name); }

}  // namespace flowloom
