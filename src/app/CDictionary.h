#pragma once

#include "app/TaggedValue.h"

#include <string>

namespace flowloom {

// One name and one value: attachments of a mail, attributes of an option group.
struct CDictionary {
    std::string name;
    TaggedValue value;
};

}  // namespace flowloom
