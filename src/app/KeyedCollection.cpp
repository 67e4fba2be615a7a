#include "app/KeyedCollection.h"

#include <cstdint>
#include <cstring>

namespace flowloom {

namespace {

constexpr std::uint64_t kOnes = 0x0101010101010101u;

// 0x80 in each byte of `word` that is an ASCII capital; the bytes are ASCII.
constexpr std::uint64_t AsciiCapitals(std::uint64_t word) noexcept {
    const std::uint64_t atLeastA = word + (0x80 - 'A') * kOnes;
    const std::uint64_t beyondZ = word + (0x7F - 'Z') * kOnes;
    return atLeastA & ~beyondZ & (0x80 * kOnes);
}

}  // namespace

FoldedKey::FoldedKey(std::string_view key) {
    if (key.size() <= kShort) {
        // As FoldCase folds ASCII, eight bytes at a time: the capitals become
        // small letters (0x20 set where a capital stands).
        std::uint64_t words[3] = {};
        std::memcpy(words, key.data(), key.size());
        if (((words[0] | words[1] | words[2]) & (0x80 * kOnes)) == 0) {
            for (std::uint64_t& word : words) word |= AsciiCapitals(word) >> 2;
            std::memcpy(short_, words, key.size());
            size_ = static_cast<std::uint8_t>(key.size());
            return;
        }
    }
    long_ = std::make_unique<std::string>(FoldCase(key));
}

}  // namespace flowloom
