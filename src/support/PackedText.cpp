#include "support/PackedText.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <memory>
#include <utility>

namespace flowloom {

namespace {

// A block's layout: its text size and packed size (4 bytes each, little
// end first), then sequences. A sequence is a token (high four bits: the
// literal count, low four: the match length less kMinMatch; 15 in either
// continues in bytes of 255 and a last smaller one), the literals, and,
// unless the block's text is complete, a 2-byte offset back.
constexpr std::size_t kBlock = std::size_t{1} << 20;
constexpr std::size_t kMinMatch = 4;
constexpr std::size_t kWindow = 65535;
constexpr int kHashBits = 14;

std::uint32_t Load32(const char* p) noexcept {
    std::uint32_t value;
    std::memcpy(&value, p, sizeof value);
    return value;
}

std::uint32_t Hash(std::uint32_t sequence) noexcept { return (sequence * 2654435761u) >> (32 - kHashBits); }

std::uint64_t Load64(const char* p) noexcept {
    std::uint64_t value;
    std::memcpy(&value, p, sizeof value);
    return value;
}

// How far the bytes at `at` repeat those at `from` (the first kMinMatch
// are known to), eight at a time.
std::size_t MatchLength(const char* base, std::size_t from, std::size_t at, std::size_t end) noexcept {
    std::size_t length = kMinMatch;
    while (at + length + 8 <= end) {
        const std::uint64_t difference = Load64(base + from + length) ^ Load64(base + at + length);
        if (difference) {
            // The first byte in memory that differs.
            const int bit = std::endian::native == std::endian::little ? std::countr_zero(difference)
                                                                         : std::countl_zero(difference);
            return length + static_cast<std::size_t>(bit) / 8;
        }
        length += 8;
    }
    while (at + length < end && base[from + length] == base[at + length]) ++length;
    return length;
}

void PutLength(std::string& out, std::size_t length) {
    for (; length >= 255; length -= 255) out.push_back(static_cast<char>(255));
    out.push_back(static_cast<char>(length));
}

void Put32(std::string& out, std::size_t value) {
    for (int i = 0; i < 4; ++i) out.push_back(static_cast<char>((value >> (8 * i)) & 0xFF));
}

void PutSequence(std::string& out, std::string_view literals, std::size_t matchLength, std::size_t offset) {
    const std::size_t extra = matchLength ? matchLength - kMinMatch : 0;
    const auto token = static_cast<unsigned char>((std::min<std::size_t>(literals.size(), 15) << 4) |
                                                  std::min<std::size_t>(extra, 15));
    out.push_back(static_cast<char>(token));
    if (literals.size() >= 15) PutLength(out, literals.size() - 15);
    out.append(literals);
    if (!matchLength) return;
    out.push_back(static_cast<char>(offset & 0xFF));
    out.push_back(static_cast<char>(offset >> 8));
    if (extra >= 15) PutLength(out, extra - 15);
}

void PackBlock(std::string_view block, std::string& out, std::uint32_t* table) {
    const std::size_t head = out.size();
    Put32(out, block.size());
    Put32(out, 0);  // the packed size, filled in below
    std::fill(table, table + (1u << kHashBits), 0u);
    const char* base = block.data();
    std::size_t anchor = 0;
    std::size_t at = 0;
    std::size_t misses = 0;
    while (block.size() >= kMinMatch && at <= block.size() - kMinMatch) {
        const std::uint32_t sequence = Load32(base + at);
        std::uint32_t& slot = table[Hash(sequence)];
        const std::size_t candidate = slot;  // position + 1; 0 for none
        slot = static_cast<std::uint32_t>(at + 1);
        if (candidate == 0 || at + 1 - candidate > kWindow || Load32(base + candidate - 1) != sequence) {
            at += 1 + (misses++ >> 6);  // text that does not repeat is passed over faster
            continue;
        }
        misses = 0;
        const std::size_t from = candidate - 1;
        const std::size_t length = MatchLength(base, from, at, block.size());
        PutSequence(out, block.substr(anchor, at - anchor), length, at - from);
        at += length;
        anchor = at;
    }
    PutSequence(out, block.substr(anchor), 0, 0);
    const std::size_t packed = out.size() - head - 8;
    for (int i = 0; i < 4; ++i) out[head + 4 + static_cast<std::size_t>(i)] = static_cast<char>((packed >> (8 * i)) & 0xFF);
}

class Reader {
public:
    explicit Reader(std::string_view bytes) : bytes_(bytes) {}
    bool AtEnd() const noexcept { return at_ == bytes_.size(); }
    bool Byte(std::size_t& value) {
        if (at_ >= bytes_.size()) return false;
        value = static_cast<unsigned char>(bytes_[at_++]);
        return true;
    }
    bool Number32(std::size_t& value) {
        value = 0;
        for (int i = 0; i < 4; ++i) {
            std::size_t byte = 0;
            if (!Byte(byte)) return false;
            value |= byte << (8 * i);
        }
        return true;
    }
    bool Length(std::size_t& value) {
        for (std::size_t byte = 255; byte == 255;) {
            if (!Byte(byte)) return false;
            value += byte;
        }
        return true;
    }
    bool Take(std::size_t count, std::string_view& taken) {
        if (bytes_.size() - at_ < count) return false;
        taken = bytes_.substr(at_, count);
        at_ += count;
        return true;
    }

private:
    std::string_view bytes_;
    std::size_t at_ = 0;
};

bool UnpackBlock(std::string_view packed, std::size_t textSize, std::string& out) {
    Reader in(packed);
    const std::size_t start = out.size();
    for (;;) {
        std::size_t token = 0;
        if (!in.Byte(token)) return false;
        std::size_t literals = token >> 4;
        if (literals == 15 && !in.Length(literals)) return false;
        std::string_view run;
        if (!in.Take(literals, run) || out.size() - start + literals > textSize) return false;
        out.append(run);
        if (out.size() - start == textSize) return in.AtEnd();
        std::size_t low = 0, high = 0;
        if (!in.Byte(low) || !in.Byte(high)) return false;
        const std::size_t offset = low | (high << 8);
        std::size_t length = (token & 15) + kMinMatch;
        if ((token & 15) == 15 && !in.Length(length)) return false;
        if (offset == 0 || offset > out.size() - start || out.size() - start + length > textSize) return false;
        const std::size_t from = out.size() - offset;
        if (offset >= length) {
            out.append(out, from, length);
        } else {
            // The match overlaps the bytes it makes: byte by byte.
            for (std::size_t i = 0; i < length; ++i) out.push_back(out[from + i]);
        }
    }
}

}  // namespace

PackedText PackedText::Pack(std::string_view text, std::atomic<std::size_t>* packed) {
    PackedText result;
    result.textSize_ = text.size();
    const auto table = std::make_unique<std::uint32_t[]>(std::size_t{1} << kHashBits);
    for (std::size_t at = 0; at < text.size(); at += kBlock) {
        PackBlock(text.substr(at, kBlock), result.bytes_, table.get());
        if (packed) packed->store(std::min(at + kBlock, text.size()), std::memory_order_release);
    }
    if (packed) packed->store(text.size(), std::memory_order_release);
    result.bytes_.shrink_to_fit();
    return result;
}

PackedText PackedText::FromBytes(std::string bytes, std::size_t textSize) {
    PackedText result;
    result.bytes_ = std::move(bytes);
    result.textSize_ = textSize;
    return result;
}

std::optional<std::string> PackedText::Unpack() const {
    std::string text;
    text.reserve(textSize_);
    Reader in(bytes_);
    while (!in.AtEnd()) {
        std::size_t textSize = 0, packedSize = 0;
        std::string_view block;
        if (!in.Number32(textSize) || !in.Number32(packedSize) || !in.Take(packedSize, block)) return std::nullopt;
        if (textSize == 0 || textSize > kBlock || !UnpackBlock(block, textSize, text)) return std::nullopt;
    }
    if (text.size() != textSize_) return std::nullopt;
    return text;
}

}  // namespace flowloom
