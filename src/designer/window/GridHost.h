#pragma once

#include "designer/DesignerView.h"
#include "grid/widget/PropEventSink.h"

namespace flowloom::grid {
class PropertyList;
}

namespace flowloom::designer::window {

// The grid widget as the designer sees it: its rows, selection and row
// geometry for the designer, and the widget's events handed on to the
// designer's handlers. The designer paints no rows of its own.
class GridHost : public PropertyGridHost, public grid::IPropEventSink {
public:
    explicit GridHost(grid::PropertyList& grid);
    ~GridHost() override;
    GridHost(const GridHost&) = delete;
    GridHost& operator=(const GridHost&) = delete;

    // Where the events go (the designer or a dialog); nullptr stops them.
    void SetEvents(grid::PropertyEvents* events) override { events_ = events; }

    // PropertyGridHost.
    grid::Properties& Rows() override;
    grid::Property* SelectedItem() const override;
    void SetHoldDraw(bool hold) override;
    bool RowRect(const grid::Property& row, int& right, int& top) const override;
    void CommitPendingEdit() override;
    void SelectRow(grid::Property& row) override;

    // IPropEventSink.
    void KeyDownEdit(int& KeyCode, int Shift) override;
    void KeyPressEdit(int& KeyAscii) override;
    void KeyUpEdit(int KeyCode, int Shift) override;
    void NeedData(grid::Property& iProp, std::vector<std::string>& sListItems) override;
    void SelChange(grid::Property* iPropOld, grid::Property* iPropNew) override;
    void ValueChanged(grid::Property& iProp, std::string& sNewValue, bool& Cancel) override;
    void QueryCustomData(grid::Property& iProp, std::string& sDisplayValue) override;
    void GetPredefinedStrings(grid::Property& iProp, std::vector<std::string>& sStrings) override;
    void DrawItem(grid::Property&, QPainter&, int, int, int, int, int, int) override {}
    void ShowEditControl(grid::Property& iProp, int lLeft, int lTop, int lWidth, int lHeight, bool& bUseIntrinsic) override;
    void HideEditControl() override;
    void Expand(grid::Property& iProp) override;
    void Collapse(grid::Property& iProp) override;
    void ODCommitPending(grid::Property& iProp) override;
    void Browse(grid::Property& iProp, std::string& sFillWith) override;
    void DropdownPick(grid::Property& iProp, int lListIndex) override;
    void PreExpand(grid::Property& iProp) override;

private:
    grid::PropertyList& grid_;
    grid::PropertyEvents* events_ = nullptr;
};

}  // namespace flowloom::designer::window
