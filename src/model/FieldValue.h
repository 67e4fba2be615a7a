#pragma once

#include <string>

namespace flowloom {

// A field with a fixed value; saved as Name and Value.
class FieldValue {
public:
    std::string field;
    std::string value;
};

}  // namespace flowloom
