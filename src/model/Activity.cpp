#include "model/Activity.h"

#include "support/VbStrings.h"

#include <charconv>
#include <random>

namespace flowloom {

float NextRandomFraction() {
    // One generator for the whole program, never seeded: the host's Rnd
    // without Randomize gives the same sequence on every start as well.
    static std::mt19937 generator;
    static std::uniform_real_distribution<float> fraction(0.0f, 1.0f);
    float value = fraction(generator);
    return value < 1.0f ? value : 0.0f;
}

const std::string& Activity::Key() const {
    if (key_.empty()) {
        // Every activity of a file makes one: built in place, in one allocation.
        const std::string_view type = ActivityTypeName(Kind());
        char digits[16];
        const auto number = vb::CLng(static_cast<double>(NextRandomFraction()) * 2147483648.0);
        char* end = std::to_chars(digits, digits + sizeof digits, number).ptr;
        key_.reserve(type.size() + static_cast<std::size_t>(end - digits));
        key_.append(type).append(digits, static_cast<std::size_t>(end - digits));
    }
    return key_;
}

}  // namespace flowloom
