#pragma once

#include "app/TaggedValue.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace flowloom {

// The arguments an activity hands unchanged to the application's own call
// (a Word save, an Excel print): tagged values kept as read and written back
// the same, indexed by an enumeration of the activity. A value that is an
// object is ignored on writing.
template <typename Arg, std::size_t N>
class PassThroughValues {
public:
    const TaggedValue& Get(Arg arg) const { return values_[static_cast<std::size_t>(arg)]; }
    void Set(Arg arg, TaggedValue value) {
        if (!value.IsObject()) values_[static_cast<std::size_t>(arg)] = std::move(value);
    }

private:
    std::array<TaggedValue, N> values_{};
};

// Finds the argument whose attribute name equals `name` without regard to
// case, in a table of names indexed like the enumeration.
template <std::size_t N>
int FindArgument(const std::array<const char*, N>& names, std::string_view name);

}  // namespace flowloom

#include "app/TextCompare.h"

template <std::size_t N>
int flowloom::FindArgument(const std::array<const char*, N>& names, std::string_view name) {
    for (std::size_t i = 0; i < N; ++i)
        if (EqualsNoCase(names[i], name)) return static_cast<int>(i);
    return -1;
}
