#include "options/OptionKinds.h"

#include "support/VbStrings.h"

#include <array>
#include <cmath>

namespace flowloom {

namespace {

constexpr std::array<OptionKind, 9> kKinds = {{
    {OptionEditor::Text, false},
    {OptionEditor::YesNo, true},
    {OptionEditor::Number, false},
    {OptionEditor::Memo, false},
    {OptionEditor::List, false},
    {OptionEditor::List, true},
    {OptionEditor::File, false},
    {OptionEditor::Folder, false},
    {OptionEditor::Tool, true},
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
