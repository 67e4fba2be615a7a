#pragma once

#include "app/XmlElements.h"

#include <cstddef>
#include <string_view>

namespace flowloom {

// How many child elements the element has (of that name, when one is given):
// collections reserve their room before reading them.
inline std::size_t ElementCount(const XmlElementView& element, std::string_view name = {}) {
    std::size_t count = 0;
    for ([[maybe_unused]] const XmlElementView child : element.children(name)) ++count;
    return count;
}

}  // namespace flowloom
