#pragma once

#include <pugixml.hpp>

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace flowloom {

// Where a writer of XML puts elements and attributes, in document order: a
// pugixml tree, or text straight away. Element and attribute names given to
// Start and Attribute must be valid names without a prefix (the writers use
// fixed names); anything else goes through Subtree.
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
class XmlElement {
public:
    XmlElement(XmlSink& out, std::string_view name) : out_(out), depth_(out.Depth()) { out.Start(name); }
    ~XmlElement() { out_.EndTo(depth_); }
    XmlElement(const XmlElement&) = delete;
    XmlElement& operator=(const XmlElement&) = delete;

private:
    XmlSink& out_;
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

    void Declaration() { out_ += R"(<?xml version="1.0" encoding="UTF-8"?>)"; }
    void Start(std::string_view name) override;
    void Attribute(std::string_view name, std::string_view value) override;
    void End() override;
    void Subtree(const pugi::xml_node& element) override;
    std::size_t Depth() const noexcept override { return open_.size(); }
    bool Stopped() const noexcept override { return stopped_; }

    // Ends what is open; the text (what was not handed to the consumer).
    std::string Finish();

private:
    void CloseStartTag() {
        if (!startTagOpen_) return;
        out_ += '>';
        startTagOpen_ = false;
    }
    void MaybeHandOver();

    std::string out_;
    std::vector<std::string_view> open_;
    bool startTagOpen_ = false;
    bool stopped_ = false;
    Consumer consumer_;
    std::size_t chunk_;
};

// Appends text escaped as the serialiser escapes attribute values (`attribute`)
// or element text: characters XML does not allow become U+FFFD.
void AppendEscapedXml(std::string& out, std::string_view text, bool attribute);
// How many bytes at the start of an attribute value go out as they are.
std::size_t PlainAttributeLength(std::string_view value) noexcept;

}  // namespace flowloom
