#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace flowloom::test {

// libxml2 as the referee of well-formedness: the first error a conformant,
// namespace-aware parser reports on the text, or nothing when the text is a
// well-formed document. Warnings and validity errors do not count. libxml2
// stops at a nesting depth of 2048 ("Excessive depth in document"), a limit
// of its own and no rule of XML.
std::optional<std::string> ConformantParserFault(std::string_view text);

}  // namespace flowloom::test
