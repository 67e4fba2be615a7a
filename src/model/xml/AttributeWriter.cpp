#include "model/xml/AttributeWriter.h"

#include <charconv>
#include <string>

namespace flowloom::xmlw {

void Always(XmlSink& out, std::string_view name, std::string_view value) { out.Attribute(name, value); }

void Text(XmlSink& out, std::string_view name, std::string_view value) {
    if (!value.empty()) out.Attribute(name, value);
}

void Tagged(XmlSink& out, std::string_view name, const TaggedValue& value) {
    if (value.IsEmpty() || value.IsObject()) return;
    if (const std::string* text = value.TextIf()) return Text(out, name, *text);
    Text(out, name, value.Text());
}

void Bool(XmlSink& out, std::string_view name, bool value) { out.Attribute(name, value ? "-1" : "0"); }

void NonZero(XmlSink& out, std::string_view name, std::int32_t value) {
    if (value == 0) return;
    char digits[16];
    const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    out.Attribute(name, std::string_view(digits, static_cast<std::size_t>(end - digits)));
}

}  // namespace flowloom::xmlw
