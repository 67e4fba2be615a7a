#pragma once

#include <atomic>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace flowloom {

// A compact copy of a text that is seldom read again. The text is packed in
// blocks, each on its own, as runs of literal bytes and references back to
// what came before (LZ77); the tags and names that repeat through an XML
// file shrink it to a small part of its size.
class PackedText {
public:
    PackedText() = default;

    // Packs `text`. With `packed`, the number of leading bytes packed so far
    // is published after each block (release order), so that another thread
    // may give back the text behind it.
    static PackedText Pack(std::string_view text, std::atomic<std::size_t>* packed = nullptr);
    // The text again; nullopt when the packed bytes are damaged.
    std::optional<std::string> Unpack() const;

    std::size_t TextSize() const noexcept { return textSize_; }
    std::size_t PackedSize() const noexcept { return bytes_.size(); }

    // The packed form, and a packed text made of one (checked on Unpack).
    const std::string& Bytes() const noexcept { return bytes_; }
    static PackedText FromBytes(std::string bytes, std::size_t textSize);

private:
    std::string bytes_;
    std::size_t textSize_ = 0;
};

}  // namespace flowloom
