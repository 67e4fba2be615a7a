#include "designer/dialogs/DialogLists.h"

#include "support/VbError.h"
#include "support/VbStrings.h"

namespace flowloom::dialogs {

DialogControl MakeControl(std::string name, ControlKind kind, std::string caption, ControlCell cell) {
    DialogControl control;
    control.name = std::move(name);
    control.kind = kind;
    control.caption = std::move(caption);
    control.cell = cell;
    return control;
}

void RemoveEntry(DialogControl& control, int index) {
    if (index < 0 || index >= static_cast<int>(control.entries.size()))
        RaiseStandardError(vberr::InvalidProcedureCall);
    control.entries.erase(control.entries.begin() + index);
    if (control.listIndex == index) control.listIndex = -1;
    else if (control.listIndex > index) --control.listIndex;
}

void ClearEntries(DialogControl& control) {
    control.entries.clear();
    control.listIndex = -1;
    if (control.kind == ControlKind::ComboBox) control.text.clear();
}

const std::string* SelectedEntry(const DialogControl& control) {
    if (control.listIndex < 0 || control.listIndex >= static_cast<int>(control.entries.size())) return nullptr;
    return &control.entries[static_cast<std::size_t>(control.listIndex)];
}

std::string JoinLines(const std::vector<std::string>& lines) { return vb::Join(lines, "\r\n"); }

}  // namespace flowloom::dialogs
