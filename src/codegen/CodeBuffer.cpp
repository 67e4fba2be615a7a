#include "codegen/CodeBuffer.h"

#include "support/VbStrings.h"

namespace flowloom {

void CodeBuffer::Line(int indent, std::string_view text) {
    text_.append(static_cast<std::size_t>(indent), ' ');
    text_ += text;
    text_ += "\r\n";
}

void CodeBuffer::Quoted(int indent, std::string_view member, std::string_view value) {
    std::string line(member);
    line += " = \"";
    line += value;
    line += '"';
    Line(indent, line);
}

void CodeBuffer::Plain(int indent, std::string_view member, std::string_view value) {
    std::string line(member);
    line += " = ";
    line += value;
    Line(indent, line);
}

void CodeBuffer::QuotedIfSet(int indent, std::string_view member, std::string_view value) {
    if (!value.empty()) Quoted(indent, member, value);
}

void CodeBuffer::PlainIfSet(int indent, std::string_view member, std::string_view value) {
    if (!value.empty()) Plain(indent, member, value);
}

std::string FieldValueText(std::string_view value) {
    const bool alreadyQuoted = value.size() >= 2 && value.front() == '"' && value.back() == '"';
    if (alreadyQuoted || vb::IsNumeric(value)) return std::string(value);
    std::string quoted = "\"";
    quoted += value;
    quoted += '"';
    return quoted;
}

}  // namespace flowloom
