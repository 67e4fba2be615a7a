#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace flowloom {

// The kinds of control a dialog is made of.
// Grid stands for a property grid whose rows the dialog keeps elsewhere.
enum class ControlKind { Label, TextBox, ComboBox, ListBox, Button, Grid };

// Where a control stands in the dialog's grid of cells (0-based), for the
// window that lays the dialog out.
struct ControlCell {
    int row = 0, column = 0, rowSpan = 1, columnSpan = 1;
};

// One control of a dialog as data: what a window shows of it and what the
// dialog's logic reads back. A window binds one widget to each; the session
// prints them.
struct DialogControl {
    std::string name;  // "cboField", "lstGroups", "cmdOK"
    ControlKind kind = ControlKind::Label;
    std::string caption;               // labels and buttons
    std::string text;                  // text boxes and combo boxes
    std::vector<std::string> entries;  // combo boxes and list boxes
    int listIndex = -1;                // the selected entry; -1 for none
    bool enabled = true;
    bool readOnly = false;  // a text box the person cannot type into
    ControlCell cell;
};

// A modal dialog's logic: its caption, its controls and the handlers that
// run when a person types, picks an entry or presses a button. The window
// and the session drive it only through SetText, Pick and Click, and read
// back Controls(); once Closed() the dialog is done and its caller reads
// OK() and the result.
class ModalDialog {
public:
    virtual ~ModalDialog() = default;
    ModalDialog(const ModalDialog&) = delete;
    ModalDialog& operator=(const ModalDialog&) = delete;

    const std::string& Caption() const noexcept { return caption_; }
    const std::vector<DialogControl>& Controls() const noexcept { return controls_; }
    // The control of that name, or null.
    const DialogControl* Find(std::string_view name) const noexcept;

    // A person types `text` into a text box or combo box (its Change event);
    // a combo box is left with no selected entry, also when the text equals
    // one. False, and nothing happens, for a missing, disabled or read-only
    // control or one of another kind.
    bool SetText(std::string_view control, const std::string& text);
    // A person picks entry `index` (0-based) of a list or combo box (its
    // Click event); a combo box takes the entry's text. False for a missing
    // or disabled control, another kind, or no such entry.
    bool Pick(std::string_view control, int index);
    // A person presses a button (its Click event). False for a missing or
    // disabled button.
    bool Click(std::string_view button);

    // Whether cmdOK or cmdCancel (or the window's close box) ended the dialog.
    bool Closed() const noexcept { return closed_; }
    // Set by cmdOK; the caller reads the result only then.
    bool OK() const noexcept { return ok_; }
    // False while the dialog waits for something outside it (a tool it
    // started); its window then takes no input.
    virtual bool Enabled() const { return true; }
    // The window's close box: as cmdCancel.
    void CloseBox() { Close(false); }

protected:
    explicit ModalDialog(std::string caption) : caption_(std::move(caption)) {}

    DialogControl& Add(DialogControl control);
    // The control of that name; it must exist.
    DialogControl& Control(std::string_view name);
    const DialogControl& Control(std::string_view name) const;
    void Close(bool ok) noexcept {
        closed_ = true;
        ok_ = ok;
    }

    // The events, by the control's name.
    virtual void Changed(DialogControl& /*control*/) {}
    virtual void Picked(DialogControl& /*control*/) {}
    virtual void Clicked(DialogControl& button) = 0;

private:
    std::string caption_;
    std::vector<DialogControl> controls_;
    bool closed_ = false;
    bool ok_ = false;
};

}  // namespace flowloom
