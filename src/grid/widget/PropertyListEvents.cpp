// Each notification goes to the sink when one is set, else to the signal.
#include "grid/widget/PropertyList.h"

namespace flowloom::grid {

void PropertyList::RaiseKeyDownEdit(int& keyCode, int shift) {
    if (sink_) sink_->KeyDownEdit(keyCode, shift);
    else emit KeyDownEdit(keyCode, shift);
}

void PropertyList::RaiseKeyPressEdit(int& keyAscii) {
    if (sink_) sink_->KeyPressEdit(keyAscii);
    else emit KeyPressEdit(keyAscii);
}

void PropertyList::RaiseKeyUpEdit(int keyCode, int shift) {
    if (sink_) sink_->KeyUpEdit(keyCode, shift);
    else emit KeyUpEdit(keyCode, shift);
}

void PropertyList::RaiseNeedData(Property& row, std::vector<std::string>& items) {
    if (sink_) sink_->NeedData(row, items);
    else emit NeedData(&row, items);
}

void PropertyList::RaiseSelChange(Property* oldRow, Property* newRow) {
    if (sink_) sink_->SelChange(oldRow, newRow);
    else emit SelChange(oldRow, newRow);
}

void PropertyList::RaiseValueChanged(Property& row, std::string& value, bool& cancel) {
    struct Running {
        int& depth;
        explicit Running(int& d) : depth(++d) {}
        ~Running() { --depth; }
    } running(valueChangedDepth_);
    if (sink_) sink_->ValueChanged(row, value, cancel);
    else emit ValueChanged(&row, value, cancel);
}

void PropertyList::RaiseDrawItem(Property& row, QPainter& painter, int left, int top, int right, int bottom, int startText,
                                 int startValue) {
    if (sink_) sink_->DrawItem(row, painter, left, top, right, bottom, startText, startValue);
    else emit DrawItem(&row, &painter, left, top, right, bottom, startText, startValue);
}

void PropertyList::RaiseShowEditControl(Property& row, int left, int top, int width, int height, bool& useIntrinsic) {
    if (sink_) sink_->ShowEditControl(row, left, top, width, height, useIntrinsic);
    else emit ShowEditControl(&row, left, top, width, height, useIntrinsic);
}

void PropertyList::RaiseHideEditControl() {
    if (sink_) sink_->HideEditControl();
    else emit HideEditControl();
}

void PropertyList::RaiseExpand(Property& row) {
    if (sink_) sink_->Expand(row);
    else emit Expand(&row);
}

void PropertyList::RaiseCollapse(Property& row) {
    if (sink_) sink_->Collapse(row);
    else emit Collapse(&row);
}

void PropertyList::RaiseODCommitPending(Property& row) {
    if (sink_) sink_->ODCommitPending(row);
    else emit ODCommitPending(&row);
}

void PropertyList::RaiseBrowse(Property& row, std::string& fillWith) {
    if (sink_) sink_->Browse(row, fillWith);
    else emit Browse(&row, fillWith);
}

void PropertyList::RaiseDropdownPick(Property& row, int index) {
    if (sink_) sink_->DropdownPick(row, index);
    else emit DropdownPick(&row, index);
}

void PropertyList::RaisePreExpand(Property& row) {
    if (sink_) sink_->PreExpand(row);
    else emit PreExpand(&row);
}

}  // namespace flowloom::grid
