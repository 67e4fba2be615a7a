#pragma once

#include "app/Tracked.h"
#include <string>

namespace flowloom {

// A field with a fixed value; saved as Name and Value.
class FieldValue {
public:
    FieldValue() = default;
    FieldValue(std::string field_, std::string value_) : field(std::move(field_)), value(std::move(value_)) {}

    TrackedString field;
    TrackedString value;
};

}  // namespace flowloom
