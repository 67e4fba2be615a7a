#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace flowloom {

class XmlElements;

// An attribute of an XmlElements tree: its name as written and its value as
// a parser delivers it (references replaced, white space characters turned
// into spaces).
class XmlElementAttribute {
public:
    XmlElementAttribute() = default;
    explicit operator bool() const noexcept { return at_ != nullptr; }
    std::string_view name() const noexcept;
    std::string_view value() const noexcept;

private:
    friend class XmlElementView;
    friend class XmlElements;
    struct Stored;
    explicit XmlElementAttribute(const Stored* at) : at_(at) {}
    const Stored* at_ = nullptr;
};

// An element of an XmlElements tree; a null view stands for no element.
// Names are compared exactly, as written.
class XmlElementView {
public:
    XmlElementView() = default;
    explicit operator bool() const noexcept { return elements_ != nullptr; }
    std::string_view name() const noexcept;

    // The first child element of that name, or a null view.
    XmlElementView child(std::string_view name) const noexcept;
    XmlElementAttribute first_attribute() const noexcept;

    // Child elements in document order, all of them or those of one name.
    class ChildIterator {
    public:
        ChildIterator(const XmlElements* elements, std::uint32_t at, std::string_view name)
            : elements_(elements), at_(at), name_(name) {
            Skip();
        }
        XmlElementView operator*() const noexcept { return XmlElementView(elements_, at_); }
        ChildIterator& operator++() noexcept;
        bool operator!=(const ChildIterator& other) const noexcept { return at_ != other.at_; }

    private:
        void Skip() noexcept;  // to the next child of the name, when one is given
        const XmlElements* elements_;
        std::uint32_t at_;
        std::string_view name_;
    };
    struct Children {
        ChildIterator first;
        ChildIterator last;
        ChildIterator begin() const noexcept { return first; }
        ChildIterator end() const noexcept { return last; }
    };
    Children children() const noexcept { return children({}); }
    Children children(std::string_view name) const noexcept;

    class AttributeIterator {
    public:
        explicit AttributeIterator(const XmlElementAttribute::Stored* at) : at_(at) {}
        XmlElementAttribute operator*() const noexcept { return XmlElementAttribute(at_); }
        AttributeIterator& operator++() noexcept;
        bool operator!=(const AttributeIterator& other) const noexcept { return at_ != other.at_; }

    private:
        const XmlElementAttribute::Stored* at_;
    };
    struct Attributes {
        AttributeIterator first;
        AttributeIterator last;
        AttributeIterator begin() const noexcept { return first; }
        AttributeIterator end() const noexcept { return last; }
    };
    Attributes attributes() const noexcept;

private:
    friend class XmlElements;
    XmlElementView(const XmlElements* elements, std::uint32_t at) : elements_(elements), at_(at) {}
    const XmlElements* elements_ = nullptr;
    std::uint32_t at_ = 0;
};

// The elements and attributes of one element of a document that passed
// CheckXmlDocument (the text from its start tag to its end tag, as an
// outline gives it), read in one pass without building a document: the
// readers of the model walk it as they would a parser's tree. Text,
// comments and processing instructions are skipped. Names and plain values
// are views of the text, which must outlive the tree; values with
// references or white space characters are decoded into the tree.
class XmlElements {
public:
    // Reads `text`, replacing what the tree held; false (and an empty tree)
    // when the text is not one element as the check lets it pass.
    bool Read(std::string_view text);
    // The element read, or a null view.
    XmlElementView Root() const noexcept;

private:
    friend class XmlElementView;
    friend class XmlElementAttribute;
    static constexpr std::uint32_t kNone = UINT32_MAX;

    struct Element {
        std::string_view name;
        std::uint32_t firstAttribute = 0;
        std::uint32_t attributeCount = 0;
        std::uint32_t firstChild = kNone;
        std::uint32_t nextSibling = kNone;
    };

    bool ReadElements(std::string_view text);
    // The start tag at `pos` (after its "<"); pos ends after its ">".
    bool ReadStartTag(std::string_view text, std::size_t& pos, bool& empty);
    bool ReadAttribute(std::string_view text, std::size_t& pos);
    // Appends the value as a parser delivers it to decoded_; false for a
    // reference that is none.
    bool Decode(std::string_view raw);

    std::vector<Element> elements_;
    std::vector<XmlElementAttribute::Stored> attributes_;
    std::string decoded_;
    // Attributes whose values live in decoded_: index and offset, made views
    // once decoded_ stops growing.
    std::vector<std::pair<std::uint32_t, std::uint32_t>> pendingValues_;
    std::vector<std::uint32_t> open_;       // elements whose end tag is still to come
    std::vector<std::uint32_t> lastChild_;  // per open element, its last child so far
};

struct XmlElementAttribute::Stored {
    std::string_view name;
    std::string_view value;
};

// The walk of a tree is the readers' inner loop: its steps are inline.
inline std::string_view XmlElementAttribute::name() const noexcept { return at_ ? at_->name : std::string_view(); }
inline std::string_view XmlElementAttribute::value() const noexcept { return at_ ? at_->value : std::string_view(); }

inline std::string_view XmlElementView::name() const noexcept {
    return elements_ ? elements_->elements_[at_].name : std::string_view();
}

inline XmlElementView::ChildIterator& XmlElementView::ChildIterator::operator++() noexcept {
    at_ = elements_->elements_[at_].nextSibling;
    Skip();
    return *this;
}

inline void XmlElementView::ChildIterator::Skip() noexcept {
    if (name_.empty()) return;
    while (at_ != XmlElements::kNone && elements_->elements_[at_].name != name_) at_ = elements_->elements_[at_].nextSibling;
}

inline XmlElementView::AttributeIterator& XmlElementView::AttributeIterator::operator++() noexcept {
    ++at_;
    return *this;
}

}  // namespace flowloom
