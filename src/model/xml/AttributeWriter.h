#pragma once

#include "app/TaggedValue.h"

#include <pugixml.hpp>

#include <cstdint>
#include <string_view>

// The value rules of the writer, one function per rule.
namespace flowloom::xmlw {

// Always written, even when empty.
void Always(pugi::xml_node element, const char* name, std::string_view value);
// Written when the text is not empty.
void Text(pugi::xml_node element, const char* name, std::string_view value);
// A pass-through value: written as its text when that is not empty.
void Tagged(pugi::xml_node element, const char* name, const TaggedValue& value);
// "-1" or "0".
void Bool(pugi::xml_node element, const char* name, bool value);
// Written when not 0.
void NonZero(pugi::xml_node element, const char* name, std::int32_t value);

}  // namespace flowloom::xmlw
