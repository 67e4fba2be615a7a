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

std::string Activity::Key() const {
    if (!keyDrawn_) {
        keyNumber_ = vb::CLng(static_cast<double>(NextRandomFraction()) * 2147483648.0);
        keyDrawn_ = true;
    }
    const std::string_view type = ActivityTypeName(Kind());
    char digits[16];
    char* end = std::to_chars(digits, digits + sizeof digits, keyNumber_).ptr;
    std::string key;
    key.reserve(type.size() + static_cast<std::size_t>(end - digits));
    key.append(type).append(digits, static_cast<std::size_t>(end - digits));
    return key;
}

}  // namespace flowloom
