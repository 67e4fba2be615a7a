#pragma once

#include <string_view>

namespace flowloom {

// How the options dialog edits a value. The dialog maps each editor to a row
// type of the grid; the options themselves know nothing of the grid.
enum class OptionEditor { Text, YesNo, Number, Memo, List, File, Folder, Tool };

// How the options dialog shows a value: its editor and whether typing is
// locked. The default options document gives each value as a digit.
struct OptionKind {
    OptionEditor editor = OptionEditor::Text;
    bool lockedEdit = false;

    bool operator==(const OptionKind&) const = default;
};

// The kind of a digit: 0 text, 1 yes/no, 2 number, 3 memo, 4 list with
// typing, 5 list only, 6 file, 7 folder, 8 edited by a tool. A value that is
// not a number, or a number outside the table, counts as free text.
OptionKind KindOfDigit(std::string_view value);

}  // namespace flowloom
