#include "app/XmlSink.h"

#include "app/XmlDocument.h"

#include <cassert>
#include <cstring>

namespace flowloom {

void PugiXmlSink::Start(std::string_view name) {
    stack_.push_back(stack_.back().append_child(std::string(name).c_str()));
}

void PugiXmlSink::Attribute(std::string_view name, std::string_view value) {
    stack_.back().append_attribute(std::string(name).c_str()).set_value(value.data(), value.size());
}

TextXmlSink::TextXmlSink(std::size_t sizeHint, Consumer consumer, std::size_t chunk)
    : consumer_(std::move(consumer)), chunk_(chunk) {
    out_.reserve(consumer_ ? chunk_ + chunk_ / 4 : sizeHint);
}

void TextXmlSink::Start(std::string_view name) {
    if (stopped_) return open_.push_back(name);
    CloseStartTag();
    MaybeHandOver();
    out_ += '<';
    out_ += name;
    open_.push_back(name);
    startTagOpen_ = true;
}

void TextXmlSink::Attribute(std::string_view name, std::string_view value) {
    if (stopped_) return;
    assert(startTagOpen_ && "attributes go before the children");
    // The plain start of the value goes out with the name in one piece.
    const std::size_t plain = PlainAttributeLength(value);
    const std::size_t at = out_.size();
    out_.resize(at + name.size() + plain + 4);
    char* p = out_.data() + at;
    *p++ = ' ';
    std::memcpy(p, name.data(), name.size());
    p += name.size();
    *p++ = '=';
    *p++ = '"';
    std::memcpy(p, value.data(), plain);
    p[plain] = '"';
    if (plain == value.size()) return;
    out_.pop_back();
    AppendEscapedXml(out_, value.substr(plain), true);
    out_ += '"';
}

void TextXmlSink::End() {
    const std::string_view name = open_.back();
    open_.pop_back();
    if (stopped_) return;
    if (startTagOpen_) {
        out_ += "/>";
        startTagOpen_ = false;
        return;
    }
    out_ += "</";
    out_ += name;
    out_ += '>';
}

void TextXmlSink::Subtree(const pugi::xml_node& element) {
    if (stopped_) return;
    CloseStartTag();
    out_ += SerializeNode(element);
}

void TextXmlSink::MaybeHandOver() {
    if (!consumer_ || out_.size() < chunk_) return;
    stopped_ = !consumer_(out_);
    out_.clear();
}

std::string TextXmlSink::Finish() {
    EndTo(0);
    if (consumer_ && !stopped_) {
        stopped_ = !consumer_(out_);
        out_.clear();
    }
    return std::move(out_);
}

}  // namespace flowloom
