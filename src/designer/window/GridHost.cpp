#include "designer/window/GridHost.h"

#include "grid/widget/PropertyList.h"
#include "grid/widget/RowListView.h"

#include <algorithm>

namespace flowloom::designer::window {

GridHost::GridHost(grid::PropertyList& grid) : grid_(grid) { grid_.SetCallbackSink(this); }

GridHost::~GridHost() { grid_.SetCallbackSink(nullptr); }

grid::Properties& GridHost::Rows() { return grid_.Properties(); }

grid::Property* GridHost::SelectedItem() const { return grid_.SelectedItem(); }

void GridHost::SetHoldDraw(bool hold) { grid_.SetHoldDraw(hold); }

bool GridHost::RowRect(const grid::Property& row, int& right, int& top) const {
    const auto* list = grid_.findChild<grid::RowListView*>();
    if (!list) return false;
    const int index = list->IndexOfRow(&row);
    const QRect rect = index >= 0 ? list->ItemRect(index) : QRect();
    if (rect.isEmpty()) return false;
    // The right end of the row as it shows, scrolled sideways or not.
    const int rowRight = std::min(rect.x() + rect.width() - list->HScrollPos(), list->viewport()->width());
    const QPoint at = list->viewport()->mapTo(&grid_, QPoint(rowRight, rect.top()));
    right = at.x();
    top = at.y();
    return true;
}

void GridHost::CommitPendingEdit() {
    if (grid_.SelectedItem()) grid_.CommitPending(true);
}

void GridHost::SelectRow(grid::Property& row) { grid_.SetSelectedItem(&row); }

void GridHost::KeyDownEdit(int& KeyCode, int Shift) {
    if (events_) events_->KeyDownEdit(KeyCode, Shift);
}
void GridHost::KeyPressEdit(int& KeyAscii) {
    if (events_) events_->KeyPressEdit(KeyAscii);
}
void GridHost::KeyUpEdit(int KeyCode, int Shift) {
    if (events_) events_->KeyUpEdit(KeyCode, Shift);
}
void GridHost::NeedData(grid::Property& iProp, std::vector<std::string>& sListItems) {
    if (events_) events_->NeedData(iProp, sListItems);
}
void GridHost::SelChange(grid::Property* iPropOld, grid::Property* iPropNew) {
    if (events_) events_->SelChange(iPropOld, iPropNew);
}
void GridHost::ValueChanged(grid::Property& iProp, std::string& sNewValue, bool& Cancel) {
    if (events_) events_->ValueChanged(iProp, sNewValue, Cancel);
}
void GridHost::QueryCustomData(grid::Property& iProp, std::string& sDisplayValue) {
    if (events_) events_->QueryCustomData(iProp, sDisplayValue);
}
void GridHost::GetPredefinedStrings(grid::Property& iProp, std::vector<std::string>& sStrings) {
    if (events_) events_->GetPredefinedStrings(iProp, sStrings);
}
void GridHost::ShowEditControl(grid::Property& iProp, int lLeft, int lTop, int lWidth, int lHeight, bool& bUseIntrinsic) {
    if (events_) events_->ShowEditControl(iProp, lLeft, lTop, lWidth, lHeight, bUseIntrinsic);
}
void GridHost::HideEditControl() {
    if (events_) events_->HideEditControl();
}
void GridHost::Expand(grid::Property& iProp) {
    if (events_) events_->Expand(iProp);
}
void GridHost::Collapse(grid::Property& iProp) {
    if (events_) events_->Collapse(iProp);
}
void GridHost::ODCommitPending(grid::Property& iProp) {
    if (events_) events_->ODCommitPending(iProp);
}
void GridHost::Browse(grid::Property& iProp, std::string& sFillWith) {
    if (events_) events_->Browse(iProp, sFillWith);
}
void GridHost::DropdownPick(grid::Property& iProp, int lListIndex) {
    if (events_) events_->DropdownPick(iProp, lListIndex);
}
void GridHost::PreExpand(grid::Property& iProp) {
    if (events_) events_->PreExpand(iProp);
}

}  // namespace flowloom::designer::window
