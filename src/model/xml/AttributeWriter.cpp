#include "model/xml/AttributeWriter.h"

#include <string>

namespace flowloom::xmlw {

void Always(pugi::xml_node element, const char* name, std::string_view value) {
    element.append_attribute(name).set_value(value.data(), value.size());
}

void Text(pugi::xml_node element, const char* name, std::string_view value) {
    if (!value.empty()) Always(element, name, value);
}

void Tagged(pugi::xml_node element, const char* name, const TaggedValue& value) {
    if (value.IsEmpty() || value.IsObject()) return;
    Text(element, name, value.Text());
}

void Bool(pugi::xml_node element, const char* name, bool value) {
    element.append_attribute(name).set_value(value ? "-1" : "0");
}

void NonZero(pugi::xml_node element, const char* name, std::int32_t value) {
    if (value != 0) Always(element, name, std::to_string(value));
}

}  // namespace flowloom::xmlw
