#pragma once

#include "app/Tracked.h"
#include "app/XmlElements.h"

#include <string>

namespace flowloom {

// A group that may use a process; only its name is kept.
class Group {
public:
    TrackedString name;

    // Takes the Name attribute; failures are ignored.
    void LoadElement(const XmlElementView& node);
};

}  // namespace flowloom
