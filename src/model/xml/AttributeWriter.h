#pragma once

#include "app/TaggedValue.h"
#include "app/XmlSink.h"

#include <cstdint>
#include <string_view>

// The value rules of the writer, one function per rule.
namespace flowloom::xmlw {

// Always written, even when empty.
void Always(XmlSink& out, std::string_view name, std::string_view value);
// Written when the text is not empty.
void Text(XmlSink& out, std::string_view name, std::string_view value);
// A pass-through value: written as its text when that is not empty.
void Tagged(XmlSink& out, std::string_view name, const TaggedValue& value);
// "-1" or "0".
void Bool(XmlSink& out, std::string_view name, bool value);
// Written when not 0.
void NonZero(XmlSink& out, std::string_view name, std::int32_t value);

}  // namespace flowloom::xmlw
