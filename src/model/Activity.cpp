#include "model/Activity.h"

#include "support/VbStrings.h"

#include <algorithm>
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
    KeyRoom room;
    return std::string(KeyIn(room));
}

std::string_view Activity::KeyIn(KeyRoom& room) const {
    if (!keyDrawn_) {
        keyNumber_ = vb::CLng(static_cast<double>(NextRandomFraction()) * 2147483648.0);
        keyDrawn_ = true;
    }
    const std::string_view type = ActivityTypeName(Kind());
    char* end = std::copy(type.begin(), type.end(), room.data());
    end = std::to_chars(end, room.data() + room.size(), keyNumber_).ptr;
    return {room.data(), static_cast<std::size_t>(end - room.data())};
}

}  // namespace flowloom
