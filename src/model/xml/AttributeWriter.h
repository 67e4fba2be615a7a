#pragma once

#include "app/TaggedValue.h"
#include "app/XmlSink.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

// The value rules of the writer, one function per rule. `Sink` is the
// writer's sink (see XmlSink).
namespace flowloom::xmlw {

// Always written, even when empty.
template <typename Sink>
void Always(Sink& out, std::string_view name, std::string_view value) {
    out.Attribute(name, value);
}

// Written when the text is not empty.
template <typename Sink>
void Text(Sink& out, std::string_view name, std::string_view value) {
    if (!value.empty()) out.Attribute(name, value);
}

// A pass-through value: written as its text when that is not empty.
template <typename Sink>
void Tagged(Sink& out, std::string_view name, const TaggedValue& value) {
    if (value.IsEmpty() || value.IsObject()) return;
    if (const std::string* text = value.TextIf()) return Text(out, name, *text);
    Text(out, name, value.Text());
}

// "-1" or "0".
template <typename Sink>
void Bool(Sink& out, std::string_view name, bool value) {
    out.Attribute(name, value ? "-1" : "0");
}

// The decimal digits of a number, without a buffer on the heap.
class Digits {
public:
    explicit Digits(std::int32_t value) noexcept;
    std::string_view View() const noexcept { return {text_, size_}; }

private:
    char text_[12];
    std::size_t size_;
};

// Written when not 0.
template <typename Sink>
void NonZero(Sink& out, std::string_view name, std::int32_t value) {
    if (value != 0) out.Attribute(name, Digits(value).View());
}

namespace detail {

constexpr std::size_t WordCount(std::string_view words) {
    return static_cast<std::size_t>(std::count(words.begin(), words.end(), ';')) + 1;
}

template <std::size_t N>
constexpr std::array<std::string_view, N> SplitWords(std::string_view words) {
    std::array<std::string_view, N> result{};
    for (std::string_view& word : result) {
        const std::size_t end = words.find(';');
        word = words.substr(0, end);
        words.remove_prefix(end == std::string_view::npos ? words.size() : end + 1);
    }
    return result;
}

// Raises the error WordAt raises for an index out of range.
void RaiseWordOutOfRange(const char* words, std::int32_t index);

}  // namespace detail

// Always written: the word at `index` of a fixed list separated by ';', as
// WordAt finds it, without making a string of it.
template <const char* const& words, typename Sink>
void Word(Sink& out, std::string_view name, std::int32_t index) {
    static constexpr auto kWords = detail::SplitWords<detail::WordCount(words)>(words);
    if (index < 0 || static_cast<std::size_t>(index) >= kWords.size())
        return detail::RaiseWordOutOfRange(words, index);
    out.Attribute(name, kWords[static_cast<std::size_t>(index)]);
}

}  // namespace flowloom::xmlw
