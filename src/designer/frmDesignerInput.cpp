// What a person does, turned into the events the window's controls raise,
// in the order they raise them. The Qt window and the headless session both
// come through here.
#include "designer/FrmDesignerParts.h"

#include "support/ReportError.h"

namespace flowloom::designer {

namespace {

std::shared_ptr<HtmlCell> CellAt(HtmlPage& page, int row, int cell) {
    HtmlTable* table = page.Table();
    if (!table || row < 0 || row >= table->RowCount()) return nullptr;
    HtmlRow& r = table->rows(row);
    return cell >= 0 && cell < r.CellCount() ? r.cells(cell) : nullptr;
}

}  // namespace

void frmDesigner::BeginAction() {
    // Whatever a person does next closes an open context menu.
    ClosePopup();
}

void frmDesigner::ClosePopup() { popupOpen_ = false; }

void frmDesigner::ListClick(int index) {
    BeginAction();
    MoveFocus(Control::List, false);
    lstProcesses_MouseDown(kLeftButton, index);
    if (index >= 0) list_.SetListIndex(index);
    lstProcesses_MouseUp(kLeftButton);
}

void frmDesigner::ListRightClick(int index) {
    BeginAction();
    MoveFocus(Control::List, false);
    lstProcesses_MouseDown(kRightButton, index);
    lstProcesses_MouseUp(kRightButton);
}

void frmDesigner::ListKeyUp(int keyCode) {
    BeginAction();
    MoveFocus(Control::List, false);
    Guarded("frmDesigner", "lstProcesses_KeyUp", [&] { lstProcesses_KeyUp(keyCode); });
}

void frmDesigner::ListSelect(int index) {
    BeginAction();
    MoveFocus(Control::List, false);
    list_.SetListIndex(index);
}

bool frmDesigner::CellClick(Strip strip, int row, int cell) {
    BeginAction();
    HtmlPage& page = StripOf(strip).page;
    MoveFocus(ControlOf(strip), false);
    const std::shared_ptr<HtmlCell> target = CellAt(page, row, cell);
    if (!target) return false;
    page.FocusCell(target);
    page.ClickBody();
    return true;
}

bool frmDesigner::CellRightClick(Strip strip, int row, int cell) {
    BeginAction();
    HtmlPage& page = StripOf(strip).page;
    MoveFocus(ControlOf(strip), false);
    const std::shared_ptr<HtmlCell> target = CellAt(page, row, cell);
    if (!target) return false;
    page.ContextMenuOnCell(target);
    return true;
}

void frmDesigner::StripClick(Strip strip) {
    BeginAction();
    MoveFocus(ControlOf(strip), false);
    StripOf(strip).page.ClickBody();
}

void frmDesigner::StripRightClick(Strip strip) {
    BeginAction();
    MoveFocus(ControlOf(strip), false);
    StripOf(strip).page.ContextMenuOnBody();
}

void frmDesigner::StripKeyDown(Strip strip, int keyCode) {
    BeginAction();
    MoveFocus(ControlOf(strip), false);
    StripOf(strip).page.KeyDown(keyCode);
}

void frmDesigner::FocusControl(Control control) {
    BeginAction();
    MoveFocus(control, false);
}

void frmDesigner::GridRowClick(int index) {
    BeginAction();
    MoveFocus(Control::Grid, false);
    (void)index;  // the grid itself selects the row and raises SelChange and Click
}

}  // namespace flowloom::designer
