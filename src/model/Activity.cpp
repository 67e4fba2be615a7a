#include "model/Activity.h"

#include "support/VbStrings.h"

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
    if (key_.empty())
        key_ = ActivityType() + std::to_string(vb::CLng(static_cast<double>(NextRandomFraction()) * 2147483648.0));
    return key_;
}

}  // namespace flowloom
