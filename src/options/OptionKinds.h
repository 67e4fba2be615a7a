#pragma once

#include "grid/GridTypes.h"

#include <string_view>

namespace flowloom {

// How the options dialog shows a value: the row type and whether typing is
// locked. The default options document gives each value as a digit.
struct OptionKind {
    grid::ItemType itemType = grid::ExPropText;
    bool lockedEdit = false;

    bool operator==(const OptionKind&) const = default;
};

// The kind of a digit: 0 text, 1 yes/no, 2 number, 3 memo, 4 list with
// typing, 5 list only, 6 file, 7 folder, 8 edited by a tool. A value that is
// not a number, or a number outside the table, counts as free text.
OptionKind KindOfDigit(std::string_view value);

}  // namespace flowloom
