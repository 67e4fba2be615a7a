#pragma once

#include <cstddef>
#include <string_view>

namespace flowloom {

// Compares a text that comes in pieces with a whole one, without regard to
// case as EqualsNoCase does, and stops at the first difference it can be
// sure of. Case folding maps code point by code point, so a difference
// between two ASCII bytes after equal beginnings is final, and so is one text
// going on where the other ends; two different bytes of which one is no
// ASCII leave the answer to the full comparison (Undecided).
class PrefixComparison {
public:
    enum Result { Equal, Different, Undecided };

    explicit PrefixComparison(std::string_view whole) : whole_(whole) {}
    // Takes the next piece; false once the answer is known.
    bool Next(std::string_view piece);
    // The answer after the last piece.
    Result Finish() const;

private:
    std::string_view whole_;
    std::size_t pos_ = 0;
    bool decided_ = false;
    Result result_ = Equal;
};

}  // namespace flowloom
