#pragma once

#include "app/Tracked.h"
#include <pugixml.hpp>

#include <string>

namespace flowloom {

// A database the file knows: a name, the path of the file and its type.
class Database {
public:
    TrackedString name;
    TrackedString Location;
    TrackedString Type_;  // saved as Type

    void LoadElement(const pugi::xml_node& node);
};

}  // namespace flowloom
