#pragma once

#include "grid/widget/PropertyList.h"

#include <functional>
#include <string>

namespace flowloom::grid::demo {

// Headers with one row of every type, stripes and expandable headers.
void FillDemoGrid(PropertyList& grid);

// Writes one line for every event it receives and answers the ones that ask
// for something: list entries, a browse result, an owner-drawn row.
class LoggingSink : public IPropEventSink {
public:
    explicit LoggingSink(std::function<void(const std::string&)> log) : log_(std::move(log)) {}

    void KeyDownEdit(int& KeyCode, int Shift) override;
    void KeyPressEdit(int& KeyAscii) override;
    void KeyUpEdit(int KeyCode, int Shift) override;
    void NeedData(Property& iProp, std::vector<std::string>& sListItems) override;
    void SelChange(Property* iPropOld, Property* iPropNew) override;
    void ValueChanged(Property& iProp, std::string& sNewValue, bool& Cancel) override;
    void QueryCustomData(Property& iProp, std::string& sDisplayValue) override;
    void GetPredefinedStrings(Property&, std::vector<std::string>&) override {}
    void DrawItem(Property& iProp, QPainter& hdc, int lLeft, int lTop, int lRight, int lBottom, int lStartText,
                  int lStartValue) override;
    void ShowEditControl(Property& iProp, int lLeft, int lTop, int lWidth, int lHeight, bool& bUseIntrinsic) override;
    void HideEditControl() override {}
    void Expand(Property& iProp) override;
    void Collapse(Property& iProp) override;
    void ODCommitPending(Property& iProp) override;
    void Browse(Property& iProp, std::string& sFillWith) override;
    void DropdownPick(Property& iProp, int lListIndex) override;
    void PreExpand(Property& iProp) override;

private:
    std::function<void(const std::string&)> log_;
};

}  // namespace flowloom::grid::demo
