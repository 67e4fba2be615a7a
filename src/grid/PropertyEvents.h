#pragma once

#include <string>
#include <vector>

namespace flowloom::grid {

class Property;

// What the grid tells its owner, without the painting hook: everything a
// property sheet handles, so that sheets build and run without a window.
// The widget's IPropEventSink adds DrawItem and is what the control calls.
//
// The sink's slots in their fixed order, with the interface that holds each:
//    1 KeyDownEdit      7 QueryCustomData       13 Collapse
//    2 KeyPressEdit     8 GetPredefinedStrings  14 ODCommitPending
//    3 KeyUpEdit        9 DrawItem (widget)     15 Browse
//    4 NeedData        10 ShowEditControl       16 DropdownPick
//    5 SelChange       11 HideEditControl       17 PreExpand
//    6 ValueChanged    12 Expand
// Declarations below keep that order. Arguments passed by reference are read
// back by the control after the call returns.
class PropertyEvents {
public:
    virtual ~PropertyEvents() = default;

    // A key goes down in the edit box; setting KeyCode to 0 swallows it.
    virtual void KeyDownEdit(int& KeyCode, int Shift) = 0;
    // A character reaches the edit box; 0 swallows it, another code replaces it.
    virtual void KeyPressEdit(int& KeyAscii) = 0;
    virtual void KeyUpEdit(int KeyCode, int Shift) = 0;
    // The entries of a custom list without ListItems, asked for as it opens.
    virtual void NeedData(Property& iProp, std::vector<std::string>& sListItems) = 0;
    virtual void SelChange(Property* iPropOld, Property* iPropNew) = 0;
    // The user gave a row a new value; Cancel keeps the old one.
    virtual void ValueChanged(Property& iProp, std::string& sNewValue, bool& Cancel) = 0;
    // The text a row with UseCustomData shows instead of its value.
    virtual void QueryCustomData(Property& iProp, std::string& sDisplayValue) = 0;
    // Never called by the control; kept so that the slots stay in place.
    virtual void GetPredefinedStrings(Property& iProp, std::vector<std::string>& sStrings) = 0;
    // An owner-drawn row became active; bUseIntrinsic keeps the grid's own edit box.
    virtual void ShowEditControl(Property& iProp, int lLeft, int lTop, int lWidth, int lHeight, bool& bUseIntrinsic) = 0;
    virtual void HideEditControl() = 0;
    virtual void Expand(Property& iProp) = 0;
    virtual void Collapse(Property& iProp) = 0;
    virtual void ODCommitPending(Property& iProp) = 0;
    // The "..." button of a browse row; what sFillWith holds afterwards becomes the value.
    virtual void Browse(Property& iProp, std::string& sFillWith) = 0;
    // An entry of the drop list was taken, before ValueChanged.
    virtual void DropdownPick(Property& iProp, int lListIndex) = 0;
    virtual void PreExpand(Property& iProp) = 0;
};

// The events an owner does not handle do nothing: an owner derives from this
// and overrides only the events it answers.
class PropertyEventsIgnored : public PropertyEvents {
public:
    void KeyDownEdit(int&, int) override {}
    void KeyPressEdit(int&) override {}
    void KeyUpEdit(int, int) override {}
    void NeedData(Property&, std::vector<std::string>&) override {}
    void SelChange(Property*, Property*) override {}
    void ValueChanged(Property&, std::string&, bool&) override {}
    void QueryCustomData(Property&, std::string&) override {}
    void GetPredefinedStrings(Property&, std::vector<std::string>&) override {}
    void ShowEditControl(Property&, int, int, int, int, bool&) override {}
    void HideEditControl() override {}
    void Expand(Property&) override {}
    void Collapse(Property&) override {}
    void ODCommitPending(Property&) override {}
    void Browse(Property&, std::string&) override {}
    void DropdownPick(Property&, int) override {}
    void PreExpand(Property&) override {}
};

}  // namespace flowloom::grid
