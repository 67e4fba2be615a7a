#pragma once

#include <pugixml.hpp>

#include <cstddef>
#include <string_view>

namespace flowloom {

// The child elements of a node (of one name, when given): what a reader
// reserves before it reads them.
inline std::size_t ElementCount(const pugi::xml_node& node, const char* name = nullptr) {
    std::size_t count = 0;
    for (pugi::xml_node child = node.first_child(); child; child = child.next_sibling())
        if (child.type() == pugi::node_element && (!name || std::string_view(child.name()) == name)) ++count;
    return count;
}

}  // namespace flowloom
