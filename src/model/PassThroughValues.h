#pragma once

#include "app/TaggedValue.h"
#include "app/Tracked.h"

#include <array>
#include <cstddef>
#include <string_view>
#include <utility>
#include <vector>

namespace flowloom {

// The arguments an activity hands unchanged to the application's own call
// (a Word save, an Excel print): tagged values kept as read and written back
// the same, indexed by an enumeration of the activity. A value that is an
// object is ignored on writing.
// Only the arguments that were given are stored: most activities set few.
template <typename Arg, std::size_t N>
class PassThroughValues {
public:
    const TaggedValue& Get(Arg arg) const {
        static const TaggedValue empty;
        for (const auto& [which, value] : values_)
            if (which == arg) return value;
        return empty;
    }
    void Set(Arg arg, TaggedValue value) {
        if (value.IsObject()) return;
        ModelRevision::Bump();
        for (auto& [which, stored] : values_)
            if (which == arg) {
                stored = std::move(value);
                return;
            }
        values_.emplace_back(arg, std::move(value));
    }

private:
    std::vector<std::pair<Arg, TaggedValue>> values_;
};

class MeasuredAttribute;

// Finds the argument whose attribute name equals the attribute's without regard to
// case, in a table of ASCII names indexed like the enumeration.
template <std::size_t N>
int FindArgument(const std::array<const char*, N>& names, const MeasuredAttribute& attribute);

}  // namespace flowloom

#include "app/XmlDocument.h"

template <std::size_t N>
int flowloom::FindArgument(const std::array<const char*, N>& names, const MeasuredAttribute& attribute) {
    for (std::size_t i = 0; i < N; ++i)
        if (attribute.IsAscii(names[i])) return static_cast<int>(i);
    return -1;
}
