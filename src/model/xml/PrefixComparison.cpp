#include "model/xml/PrefixComparison.h"

#include <algorithm>
#include <cstring>

namespace flowloom {

namespace {

unsigned char AsciiLower(unsigned char c) { return c >= 'A' && c <= 'Z' ? static_cast<unsigned char>(c + 32) : c; }

}  // namespace

bool PrefixComparison::Next(std::string_view piece) {
    if (decided_) return false;
    const std::size_t common = std::min(piece.size(), whole_.size() - pos_);
    const char* a = piece.data();
    const char* b = whole_.data() + pos_;
    if (common > 0 && std::memcmp(a, b, common) != 0) {
        for (std::size_t i = 0; i < common; ++i) {
            const auto x = static_cast<unsigned char>(a[i]);
            const auto y = static_cast<unsigned char>(b[i]);
            if (x == y) continue;
            if ((x | y) >= 0x80) result_ = Undecided;
            else if (AsciiLower(x) == AsciiLower(y)) continue;
            else result_ = Different;
            decided_ = true;
            return false;
        }
    }
    pos_ += common;
    if (common < piece.size()) {  // the piece goes on where the whole text ends
        result_ = Different;
        decided_ = true;
        return false;
    }
    return true;
}

PrefixComparison::Result PrefixComparison::Finish() const {
    if (decided_) return result_;
    return pos_ == whole_.size() ? Equal : Different;
}

}  // namespace flowloom
