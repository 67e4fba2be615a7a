#include "model/xml/PrefixComparison.h"

#include <utf8proc.h>

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

bool IsContinuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

// The length of the UTF-8 sequence a byte starts; 0 when it starts none.
std::size_t SequenceLength(unsigned char lead) {
    if (lead < 0x80) return 1;
    if (lead < 0xC2) return 0;
    if (lead < 0xE0) return 2;
    if (lead < 0xF0) return 3;
    return lead < 0xF5 ? 4 : 0;
}

// The character at the start of valid UTF-8, as the folding reads it; its length.
std::size_t Decode(std::string_view text, char32_t& c) {
    utf8proc_int32_t code = 0;
    const utf8proc_ssize_t n = utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(text.data()),
                                                static_cast<utf8proc_ssize_t>(text.size()), &code);
    c = static_cast<char32_t>(code);
    return n > 0 ? static_cast<std::size_t>(n) : 0;
}

bool IsUtf8(std::string_view text) {
    for (std::size_t i = 0; i < text.size();) {
        if (text.size() - i >= 8) {
            std::uint64_t word;
            std::memcpy(&word, text.data() + i, 8);
            if ((word & kHigh) == 0) {
                i += 8;
                continue;
            }
        }
        char32_t c;
        const std::size_t n = Decode(text.substr(i, 4), c);
        if (n == 0) return false;
        i += n;
    }
    return true;
}

// Appends the character folded as EqualsNoCase folds UTF-8 (code point by
// code point); false if it cannot be.
bool AppendFolded(char32_t c, std::u32string& out) {
    if (c < 0x80) {
        out += static_cast<char32_t>(AsciiLower(static_cast<unsigned char>(c)));
        return true;
    }
    utf8proc_int32_t folded[8];
    int boundary = 0;
    const utf8proc_ssize_t n = utf8proc_decompose_char(static_cast<utf8proc_int32_t>(c), folded, 8,
                                                       UTF8PROC_CASEFOLD, &boundary);
    if (n <= 0 || n > 8) return false;
    for (utf8proc_ssize_t i = 0; i < n; ++i) out += static_cast<char32_t>(folded[i]);
    return true;
}

}  // namespace

bool PrefixComparison::Next(std::string_view piece) {
    while (!decided_ && !piece.empty()) {
        if (folding_) CompareFolded(piece);
        else CompareBytes(piece);
    }
    return !decided_;
}

void PrefixComparison::CompareBytes(std::string_view& piece) {
    const std::size_t common = std::min(piece.size(), whole_.size() - pos_);
    const std::size_t i = FirstDifference(piece.data(), whole_.data() + pos_, common);
    if (i == common) {
        pos_ += common;
        piece.remove_prefix(common);
        if (!piece.empty()) Decide(Different);  // the piece goes on where the whole text ends
        return;
    }
    if ((static_cast<unsigned char>(piece[i]) | static_cast<unsigned char>(whole_[pos_ + i])) < 0x80)
        return Decide(Different);
    if (!WholeIsUtf8()) return Decide(Undecided);
    // From the start of the character there, which the streamed text shares.
    const std::size_t at = pos_ + i;
    std::size_t start = at;
    while (start > bytesFrom_ && IsContinuation(whole_[start])) --start;
    partial_.assign(whole_.substr(start, at - start));
    pos_ = start;
    piece.remove_prefix(i);
    folding_ = true;
}

void PrefixComparison::CompareFolded(std::string_view& piece) {
    while (!piece.empty()) {
        char32_t c = 0;
        switch (TakeStreamedChar(piece, c)) {
        case Take::NeedMore: return;
        case Take::Fault: return Decide(Undecided);
        case Take::Char: break;
        }
        if (!AppendFolded(c, streamedFolded_)) return Decide(Undecided);
        if (const Result match = MatchFolded(); match != Equal) return Decide(match);
        if (streamedFolded_.empty() && wholeFolded_.empty()) {  // both sides meet again
            folding_ = false;
            bytesFrom_ = pos_;
            return;
        }
    }
}

PrefixComparison::Take PrefixComparison::TakeStreamedChar(std::string_view& piece, char32_t& c) {
    const auto lead = static_cast<unsigned char>(partial_.empty() ? piece.front() : partial_.front());
    const std::size_t length = SequenceLength(lead);
    if (length == 0) return Take::Fault;
    const std::size_t take = std::min(length - partial_.size(), piece.size());
    partial_.append(piece.substr(0, take));
    piece.remove_prefix(take);
    if (partial_.size() < length) return Take::NeedMore;
    const bool whole = Decode(partial_, c) == length;
    partial_.clear();
    return whole ? Take::Char : Take::Fault;
}

PrefixComparison::Result PrefixComparison::MatchFolded() {
    while (wholeFolded_.size() < streamedFolded_.size() && pos_ < whole_.size()) {
        char32_t c = 0;
        const std::size_t length = Decode(whole_.substr(pos_, 4), c);
        if (length == 0 || !AppendFolded(c, wholeFolded_)) return Undecided;
        pos_ += length;
    }
    const std::size_t common = std::min(streamedFolded_.size(), wholeFolded_.size());
    if (streamedFolded_.compare(0, common, wholeFolded_, 0, common) != 0) return Different;
    streamedFolded_.erase(0, common);
    wholeFolded_.erase(0, common);
    return streamedFolded_.empty() ? Equal : Different;  // else the whole text ended first
}

bool PrefixComparison::WholeIsUtf8() {
    if (!wholeIsUtf8_) wholeIsUtf8_ = IsUtf8(whole_);
    return *wholeIsUtf8_;
}

PrefixComparison::Result PrefixComparison::Finish() const {
    if (decided_) return result_;
    if (!partial_.empty()) return Undecided;  // the streamed text ends inside a character
    // Every character folds to at least one: what is left of the whole text differs.
    return streamedFolded_.empty() && wholeFolded_.empty() && pos_ == whole_.size() ? Equal : Different;
}

}  // namespace flowloom
