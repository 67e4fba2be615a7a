#include "options/OptionKinds.h"

#include "app/VbStrings.h"

#include <array>
#include <cmath>

namespace flowloom {

namespace {

constexpr std::array<OptionKind, 9> kKinds = {{
    {grid::ExPropText, false},
    {grid::ExPropBoolean, true},
    {grid::ExPropNumber, false},
    {grid::ExPropMemo, false},
    {grid::ExPropCustomList, false},
    {grid::ExPropCustomList, true},
    {grid::ExPropFile, false},
    {grid::ExPropFolder, false},
    {grid::ExPropBrowse, true},
}};

}  // namespace

OptionKind KindOfDigit(std::string_view value) {
    const auto number = vb::ToNumber(value);
    if (!number || !std::isfinite(*number)) return {};
    const double digit = std::nearbyint(*number);  // the host rounds half to even
    if (digit < 0 || digit >= static_cast<double>(kKinds.size())) return {};
    return kKinds[static_cast<std::size_t>(digit)];
}

}  // namespace flowloom
