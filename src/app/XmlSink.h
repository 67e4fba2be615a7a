#pragma once

#include <pugixml.hpp>

#include <cassert>
#include <cstddef>
#include <cstring>
#include <functional>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace flowloom {

// Where a writer of XML puts elements and attributes, in document order: a
// pugixml tree, or text straight away. Element and attribute names given to
// Start and Attribute must be valid names without a prefix (the writers use
// fixed names); anything else goes through Subtree. Both sinks are final, so
// a writer that takes the sink's own type calls them without dispatch (and
// the text sink's short operations are inlined there).
class XmlSink {
public:
    virtual ~XmlSink() = default;
    virtual void Start(std::string_view name) = 0;
    virtual void Attribute(std::string_view name, std::string_view value) = 0;
    virtual void End() = 0;
    // A whole element made elsewhere, as the serialiser of the layer writes it.
    virtual void Subtree(const pugi::xml_node& element) = 0;
    // Elements open now.
    virtual std::size_t Depth() const noexcept = 0;
    // Whether the reader of the output wants no more (see TextXmlSink).
    virtual bool Stopped() const noexcept { return false; }

    // Ends the elements opened since Depth() was `depth`.
    void EndTo(std::size_t depth) {
        while (Depth() > depth) End();
    }
};

// An element of a writer: started at once, and ended with whatever it holds
// however the writer's block is left (an error ends it with what it has).
// `Sink` is XmlSink or one of the sinks below.
template <typename Sink>
class XmlElement {
public:
    XmlElement(Sink& out, std::string_view name) : out_(out), depth_(out.Depth()) { out.Start(name); }
    ~XmlElement() {
        while (out_.Depth() > depth_) out_.End();
    }
    XmlElement(const XmlElement&) = delete;
    XmlElement& operator=(const XmlElement&) = delete;

private:
    Sink& out_;
    std::size_t depth_;
};

// Appends to a pugixml node.
class PugiXmlSink final : public XmlSink {
public:
    explicit PugiXmlSink(pugi::xml_node parent) : stack_{parent} {}
    void Start(std::string_view name) override;
    void Attribute(std::string_view name, std::string_view value) override;
    void End() override { stack_.pop_back(); }
    void Subtree(const pugi::xml_node& element) override { stack_.back().append_copy(element); }
    std::size_t Depth() const noexcept override { return stack_.size() - 1; }

private:
    std::vector<pugi::xml_node> stack_;
};

// Writes the text the serialiser of the layer (SerializeNode) would make of
// the same elements, into one buffer. With a consumer, the buffer is handed
// over whenever it holds `chunk` bytes and at Finish; when the consumer
// answers false, the sink stops: Stopped() turns true and it writes nothing
// more.
class TextXmlSink final : public XmlSink {
public:
    using Consumer = std::function<bool(std::string_view)>;
    explicit TextXmlSink(std::size_t sizeHint = 0, Consumer consumer = {}, std::size_t chunk = 1 << 16);

    void Declaration() { Append(R"(<?xml version="1.0" encoding="UTF-8"?>)"); }
    void Start(std::string_view name) override;
    void Attribute(std::string_view name, std::string_view value) override;
    void End() override;
    void Subtree(const pugi::xml_node& element) override;
    std::size_t Depth() const noexcept override { return open_.size(); }
    bool Stopped() const noexcept override { return stopped_; }

    // Ends what is open; the text (what was not handed to the consumer).
    std::string Finish();

private:
    // Room for `size` bytes at the end of the text.
    char* Room(std::size_t size) {
        if (buffer_.size() - used_ < size) Grow(size);
        return buffer_.data() + used_;
    }
    void Grow(std::size_t size);
    void Append(std::string_view text) {
        std::memcpy(Room(text.size()), text.data(), text.size());
        used_ += text.size();
    }
    // The rest of an attribute value from its first byte that needs escaping,
    // and the closing quote.
    void EscapedValueEnd(std::string_view rest);
    void HandOver();

    // The text is buffer_'s first used_ bytes; the rest is room to write,
    // made (and so zero-filled) a little at a time ahead of the writing.
    std::string buffer_;
    std::size_t used_ = 0;
    std::size_t handOverAt_ = std::numeric_limits<std::size_t>::max();
    std::string escaped_;  // reused for the escaped part of a value
    std::vector<std::string_view> open_;
    bool startTagOpen_ = false;
    bool stopped_ = false;
    Consumer consumer_;
};

// Appends text escaped as the serialiser escapes attribute values (`attribute`)
// or element text: characters XML does not allow become U+FFFD.
void AppendEscapedXml(std::string& out, std::string_view text, bool attribute);
// Copies the bytes at the start of an attribute value that go out as they
// are to `out` (room for value.size() bytes); how many.
std::size_t CopyPlainAttributeValue(char* out, std::string_view value) noexcept;
// Writes an attribute value escaped as AppendEscapedXml escapes it to `out`,
// which has room for kEscapedValueRoom bytes for each of the value's; the
// end of what it wrote.
inline constexpr std::size_t kEscapedValueRoom = 6;  // "&quot;"
char* WriteEscapedAttributeValue(char* out, std::string_view value) noexcept;

inline void TextXmlSink::Start(std::string_view name) {
    open_.push_back(name);
    if (stopped_) return;
    if (startTagOpen_) {
        Append(">");
        startTagOpen_ = false;
    }
    if (used_ >= handOverAt_) {
        HandOver();
        if (stopped_) return;
    }
    char* p = Room(name.size() + 1);
    *p = '<';
    std::memcpy(p + 1, name.data(), name.size());
    used_ += name.size() + 1;
    startTagOpen_ = true;
}

inline void TextXmlSink::Attribute(std::string_view name, std::string_view value) {
    if (stopped_) return;
    assert(startTagOpen_ && "attributes go before the children");
    // Name and value go out in one piece, unless the value needs escaping.
    char* const start = Room(name.size() + value.size() + 4);
    char* p = start;
    *p++ = ' ';
    std::memcpy(p, name.data(), name.size());
    p += name.size();
    *p++ = '=';
    *p++ = '"';
    const std::size_t plain = CopyPlainAttributeValue(p, value);
    p += plain;
    if (plain < value.size()) {
        used_ += static_cast<std::size_t>(p - start);
        return EscapedValueEnd(value.substr(plain));
    }
    *p++ = '"';
    used_ += static_cast<std::size_t>(p - start);
}

inline void TextXmlSink::End() {
    const std::string_view name = open_.back();
    open_.pop_back();
    if (stopped_) return;
    if (startTagOpen_) {
        Append("/>");
        startTagOpen_ = false;
        return;
    }
    char* p = Room(name.size() + 3);
    p[0] = '<';
    p[1] = '/';
    std::memcpy(p + 2, name.data(), name.size());
    p[name.size() + 2] = '>';
    used_ += name.size() + 3;
}

}  // namespace flowloom
