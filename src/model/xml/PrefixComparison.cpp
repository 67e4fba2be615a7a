#include "model/xml/PrefixComparison.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>

namespace flowloom {

namespace {

constexpr std::uint64_t kOnes = 0x0101010101010101;
constexpr std::uint64_t kHigh = 0x8080808080808080;

unsigned char AsciiLower(unsigned char c) { return c >= 'A' && c <= 'Z' ? static_cast<unsigned char>(c + 32) : c; }

// Whether two bytes are equal, or ASCII letters that differ in case only.
bool SameNoCase(unsigned char x, unsigned char y) { return x == y || ((x | y) < 0x80 && AsciiLower(x) == AsciiLower(y)); }

// Eight ASCII bytes with their capital letters made small (no carry crosses
// a byte, as every byte is below 0x80).
std::uint64_t LowerAscii(std::uint64_t word) {
    const std::uint64_t fromA = word + (0x80 - 'A') * kOnes;
    const std::uint64_t beyondZ = word + (0x80 - 'Z' - 1) * kOnes;
    return word | ((fromA & ~beyondZ & kHigh) >> 2);
}

// The first position at which the bytes are not SameNoCase; size if none.
std::size_t FirstDifferenceIn(const char* a, const char* b, std::size_t size) {
    std::size_t i = 0;
    if constexpr (std::endian::native == std::endian::little) {
        for (; size - i >= 8; i += 8) {
            std::uint64_t x, y;
            std::memcpy(&x, a + i, 8);
            std::memcpy(&y, b + i, 8);
            if (x == y) continue;
            if (((x | y) & kHigh) != 0) {  // beyond ASCII: byte by byte
                for (std::size_t j = i; j < i + 8; ++j)
                    if (!SameNoCase(static_cast<unsigned char>(a[j]), static_cast<unsigned char>(b[j]))) return j;
                continue;
            }
            if (const std::uint64_t differs = LowerAscii(x) ^ LowerAscii(y))
                return i + static_cast<std::size_t>(std::countr_zero(differs)) / 8;
        }
    }
    for (; i < size; ++i)
        if (!SameNoCase(static_cast<unsigned char>(a[i]), static_cast<unsigned char>(b[i]))) return i;
    return size;
}

// The same, comparing whole blocks first: most of the text is equal byte for byte.
std::size_t FirstDifference(const char* a, const char* b, std::size_t size) {
    constexpr std::size_t kBlock = 256;
    for (std::size_t at = 0; at < size; at += kBlock) {
        const std::size_t n = std::min(kBlock, size - at);
        if (std::memcmp(a + at, b + at, n) == 0) continue;
        if (const std::size_t i = FirstDifferenceIn(a + at, b + at, n); i < n) return at + i;
    }
    return size;
}

}  // namespace

bool PrefixComparison::Next(std::string_view piece) {
    if (decided_) return false;
    const std::size_t common = std::min(piece.size(), whole_.size() - pos_);
    const char* a = piece.data();
    const char* b = whole_.data() + pos_;
    if (const std::size_t i = FirstDifference(a, b, common); i < common) {
        const auto x = static_cast<unsigned char>(a[i]);
        const auto y = static_cast<unsigned char>(b[i]);
        result_ = (x | y) >= 0x80 ? Undecided : Different;
        decided_ = true;
        return false;
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
