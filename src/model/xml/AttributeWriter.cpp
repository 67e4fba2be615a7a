#include "model/xml/AttributeWriter.h"

#include "model/Process.h"

#include <charconv>

namespace flowloom::xmlw {

Digits::Digits(std::int32_t value) noexcept
    : size_(static_cast<std::size_t>(std::to_chars(text_, text_ + sizeof text_, value).ptr - text_)) {}

namespace detail {

void RaiseWordOutOfRange(const char* words, std::int32_t index) {
    // The same split as the table's: an index beyond it is one WordAt refuses.
    (void)WordAt(words, index);
}

}  // namespace detail

}  // namespace flowloom::xmlw
