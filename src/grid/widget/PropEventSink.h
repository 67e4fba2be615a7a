#pragma once

#include <string>
#include <vector>

class QPainter;

namespace flowloom::grid {

class Property;

// The owner's direct line to the grid's events. While a sink is set, each of
// these notifications goes to it instead of the control's signal of the same
// name. Operations stand in their fixed slot order; arguments passed by
// reference are read back by the control after the call returns.
class IPropEventSink {
public:
    virtual ~IPropEventSink() = default;

    virtual void KeyDownEdit(int& KeyCode, int Shift) = 0;
    virtual void KeyPressEdit(int& KeyAscii) = 0;
    virtual void KeyUpEdit(int KeyCode, int Shift) = 0;
    virtual void NeedData(Property& iProp, std::vector<std::string>& sListItems) = 0;
    virtual void SelChange(Property* iPropOld, Property* iPropNew) = 0;
    virtual void ValueChanged(Property& iProp, std::string& sNewValue, bool& Cancel) = 0;
    virtual void QueryCustomData(Property& iProp, std::string& sDisplayValue) = 0;
    // Never called by the control; kept so that the slots stay in place.
    virtual void GetPredefinedStrings(Property& iProp, std::vector<std::string>& sStrings) = 0;
    virtual void DrawItem(Property& iProp, QPainter& hdc, int lLeft, int lTop, int lRight, int lBottom,
                          int lStartText, int lStartValue) = 0;
    virtual void ShowEditControl(Property& iProp, int lLeft, int lTop, int lWidth, int lHeight, bool& bUseIntrinsic) = 0;
    virtual void HideEditControl() = 0;
    virtual void Expand(Property& iProp) = 0;
    virtual void Collapse(Property& iProp) = 0;
    virtual void ODCommitPending(Property& iProp) = 0;
    virtual void Browse(Property& iProp, std::string& sFillWith) = 0;
    virtual void DropdownPick(Property& iProp, int lListIndex) = 0;
    virtual void PreExpand(Property& iProp) = 0;
};

}  // namespace flowloom::grid
