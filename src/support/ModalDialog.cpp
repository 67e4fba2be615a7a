#include "support/ModalDialog.h"

#include <stdexcept>

namespace flowloom {

const DialogControl* ModalDialog::Find(std::string_view name) const noexcept {
    for (const DialogControl& control : controls_)
        if (control.name == name) return &control;
    return nullptr;
}

DialogControl& ModalDialog::Add(DialogControl control) { return controls_.emplace_back(std::move(control)); }

DialogControl& ModalDialog::Control(std::string_view name) {
    for (DialogControl& control : controls_)
        if (control.name == name) return control;
    throw std::logic_error("dialog has no control " + std::string(name));
}

const DialogControl& ModalDialog::Control(std::string_view name) const {
    return const_cast<ModalDialog*>(this)->Control(name);
}

bool ModalDialog::SetText(std::string_view name, const std::string& text) {
    const DialogControl* found = Find(name);
    if (closed_ || !found || !found->enabled || found->readOnly) return false;
    if (found->kind != ControlKind::TextBox && found->kind != ControlKind::ComboBox) return false;
    DialogControl& control = Control(name);
    control.text = text;
    // Typing leaves a combo box without a selected entry, even when the text
    // equals one: as in the host's combo box with its list closed, only
    // picking selects.
    if (control.kind == ControlKind::ComboBox) control.listIndex = -1;
    Changed(control);
    return true;
}

bool ModalDialog::Pick(std::string_view name, int index) {
    const DialogControl* found = Find(name);
    if (closed_ || !found || !found->enabled) return false;
    if (found->kind != ControlKind::ListBox && found->kind != ControlKind::ComboBox) return false;
    if (index < 0 || index >= static_cast<int>(found->entries.size())) return false;
    DialogControl& control = Control(name);
    control.listIndex = index;
    if (control.kind == ControlKind::ComboBox) {
        control.text = control.entries[static_cast<std::size_t>(index)];
        Changed(control);
    }
    Picked(control);
    return true;
}

bool ModalDialog::Click(std::string_view name) {
    const DialogControl* found = Find(name);
    if (closed_ || !found || !found->enabled || found->kind != ControlKind::Button) return false;
    Clicked(Control(name));
    return true;
}

}  // namespace flowloom
