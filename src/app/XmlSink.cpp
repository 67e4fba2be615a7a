#include "app/XmlSink.h"

#include "app/XmlDocument.h"

#include <algorithm>

namespace flowloom {

namespace {

// How far ahead of the writing the room is made: small enough that the
// zero-filling resize leaves it in the cache for the writes that follow.
constexpr std::size_t kRoomStep = 32 * 1024;

// The longest rest of a value escaped straight into the text: its room is
// made for the worst case, which a long value would make much too large.
constexpr std::size_t kEscapedInPlace = 4096;

}  // namespace

void PugiXmlSink::Start(std::string_view name) {
    stack_.push_back(stack_.back().append_child(std::string(name).c_str()));
}

void PugiXmlSink::Attribute(std::string_view name, std::string_view value) {
    stack_.back().append_attribute(std::string(name).c_str()).set_value(value.data(), value.size());
}

TextXmlSink::TextXmlSink(std::size_t sizeHint, Consumer consumer, std::size_t chunk)
    : consumer_(std::move(consumer)) {
    if (consumer_) handOverAt_ = chunk;
    buffer_.reserve(consumer_ ? chunk + chunk / 4 : sizeHint);
}

void TextXmlSink::Grow(std::size_t size) {
    const std::size_t needed = used_ + size;
    if (needed > buffer_.capacity()) buffer_.reserve(std::max(needed, 2 * buffer_.capacity()));
    buffer_.resize(std::min(buffer_.capacity(), std::max(needed, used_ + kRoomStep)));
}

void TextXmlSink::EscapedValueEnd(std::string_view rest) {
    if (rest.size() <= kEscapedInPlace) {
        char* const start = Room(kEscapedValueRoom * rest.size() + 1);
        char* end = WriteEscapedAttributeValue(start, rest);
        *end++ = '"';
        used_ += static_cast<std::size_t>(end - start);
        return;
    }
    escaped_.clear();
    AppendEscapedXml(escaped_, rest, true);
    escaped_ += '"';
    Append(escaped_);
}

void TextXmlSink::Subtree(const pugi::xml_node& element) {
    if (stopped_) return;
    if (startTagOpen_) {
        Append(">");
        startTagOpen_ = false;
    }
    Append(SerializeNode(element));
}

void TextXmlSink::HandOver() {
    stopped_ = !consumer_(std::string_view(buffer_.data(), used_));
    used_ = 0;
}

std::string TextXmlSink::Finish() {
    EndTo(0);
    if (consumer_ && !stopped_) HandOver();
    buffer_.resize(used_);
    return std::move(buffer_);
}

}  // namespace flowloom
