#pragma once

#include <pugixml.hpp>

#include <string>

namespace flowloom {

// A database the file knows: a name, the path of the file and its type.
class Database {
public:
    std::string name;
    std::string Location;
    std::string Type_;  // saved as Type

    void LoadElement(const pugi::xml_node& node);
};

}  // namespace flowloom
