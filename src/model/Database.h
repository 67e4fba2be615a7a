#pragma once

#include "app/Tracked.h"
#include "app/XmlElements.h"

#include <string>

namespace flowloom {

// A database the file knows: a name, the path of the file and its type.
class Database {
public:
    TrackedString name;
    TrackedString Location;
    TrackedString Type_;  // saved as Type

    void LoadElement(const XmlElementView& node);
};

}  // namespace flowloom
