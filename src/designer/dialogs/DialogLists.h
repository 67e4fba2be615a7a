#pragma once

#include "support/ModalDialog.h"

#include <string>
#include <string_view>
#include <vector>

namespace flowloom::dialogs {

// A control of the given kind and caption at a cell of the dialog's grid.
DialogControl MakeControl(std::string name, ControlKind kind, std::string caption, ControlCell cell);

// Removes entry `index` (0-based) of a list or combo box, as the host's
// RemoveItem: no such entry is error 5; a removed selection leaves none, and
// a selection behind the entry moves up with it. A combo box keeps its text.
void RemoveEntry(DialogControl& control, int index);

// Empties a list or combo box, as the host's Clear: a combo box loses its
// text with its entries.
void ClearEntries(DialogControl& control);

// The selected entry of a list box, or null when none is.
const std::string* SelectedEntry(const DialogControl& control);

// Lines joined with a carriage return and line feed, as the dialogs give
// their results.
std::string JoinLines(const std::vector<std::string>& lines);

}  // namespace flowloom::dialogs
