#pragma once

#include "grid/PropertyGridHost.h"

namespace flowloom {
class ModalDialog;
}

#include <string>

namespace flowloom::grid {
class Properties;
class Property;
}  // namespace flowloom::grid

namespace flowloom::designer {

// The controls of the window that can hold the keyboard focus.
enum class Control { None, List, Database, Datasource, Activity, Grid, Info };

// The control's name as the handlers compare it: "lstProcesses",
// "wbcDatabase", "wbcDatasource", "wbcActivity", "PropList", "txtPropInfo".
const char* ControlName(Control control) noexcept;

// What the window shows that the designer changed, as flags.
namespace changed {
inline constexpr unsigned Caption = 1u << 0;
inline constexpr unsigned List = 1u << 1;
inline constexpr unsigned ListMark = 1u << 2;
inline constexpr unsigned Info = 1u << 3;
inline constexpr unsigned BrowseButton = 1u << 4;
inline constexpr unsigned Layout = 1u << 5;
inline constexpr unsigned Cursor = 1u << 6;
inline constexpr unsigned Sheet = 1u << 7;
inline constexpr unsigned Dialog = 1u << 8;   // a dialog opened or closed
inline constexpr unsigned Enabled = 1u << 9;  // the window was enabled or disabled
}  // namespace changed

// The window that shows a designer: told of each change, asked to move the
// keyboard focus, to open the context menu, and to close. A designer without
// a window uses the defaults, which do nothing.
class DesignerView {
public:
    virtual ~DesignerView() = default;
    virtual void Changed(unsigned /*what*/) {}
    // The designer moved the focus (SetFocus); the designer has already run
    // the control's focus event.
    virtual void FocusMoved(Control) {}
    // Opens the context menu at the pointer; the choice comes back through
    // frmDesigner::ChooseMenu, closing without one through ClosePopup.
    virtual void ShowPopupMenu() {}
    virtual void ShowAbout() {}
    // Shows the dialog modally over the window. A window returns once the
    // dialog is closed, having passed the person's actions to the designer's
    // Dialog... calls; a designer without a window returns at once and the
    // dialog stays open for the next actions.
    virtual void ShowDialog(ModalDialog&) {}
    // A fresh grid for a dialog that edits rows (the options), kept by the
    // window until the next one is asked for; null lets the designer use
    // one without a window.
    virtual grid::PropertyGridHost* DialogGrid() { return nullptr; }
    // The designer came to the front while a tool runs, or the tool ended:
    // the window brings itself in front.
    virtual void BringToFront() {}
    // The window unloads: the program ends.
    virtual void Unload() {}
};

using grid::PropertyGridHost;

}  // namespace flowloom::designer
