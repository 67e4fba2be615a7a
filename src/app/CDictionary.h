#pragma once

#include "app/TaggedValue.h"
#include "app/Tracked.h"

#include <string>

namespace flowloom {

// One name and one value: attachments of a mail, attributes of an option group.
struct CDictionary {
    CDictionary() = default;
    CDictionary(std::string name_, TaggedValue value_) : name(std::move(name_)), value(std::move(value_)) {}

    TrackedString name;
    TrackedObject<TaggedValue> value;
};

}  // namespace flowloom
