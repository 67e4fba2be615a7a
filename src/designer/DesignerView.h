#pragma once

#include "grid/PropertyGridHost.h"

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
    // The window unloads: the program ends.
    virtual void Unload() {}
};

using grid::PropertyGridHost;

}  // namespace flowloom::designer
