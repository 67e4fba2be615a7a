#pragma once

#include "grid/PropertyGridHost.h"
#include "grid/Properties.h"
#include "grid/PropertyEvents.h"
#include "grid/PropertyOwner.h"

#include <functional>
#include <string>
#include <vector>

namespace flowloom::grid {

// The grid without a window: rows, a selected row and the events a click on
// a row raises. The session and the tests put it where the window has its
// grid widget.
class HeadlessGrid : public PropertyGridHost, private PropertyOwner {
public:
    HeadlessGrid() : rows_(this) {}

    void SetEvents(PropertyEvents* events) override { events_ = events; }

    Properties& Rows() override { return rows_; }
    Property* SelectedItem() const override { return selected_; }
    void SetHoldDraw(bool) override {}
    // Rows stand one under the other, 16 pixels high, 240 pixels wide.
    bool RowRect(const Property& row, int& right, int& top) const override;

    void SelectRow(Property& row) override;

    // A click on the 1-based row: the selection changes (SelChange), then
    // the grid's Click; false when there is no such row.
    bool ClickRow(int index, const std::function<void()>& click);
    // The user commits `value` into the row, as the grid does on Enter:
    // ValueChanged, then, unless cancelled, the row takes the text as the
    // handler left it (if the row still exists). False when cancelled.
    bool CommitEdit(Property& row, std::string value);
    // The row's own browse button ("..."): a file or folder row asks for a
    // path (through the prompts) and commits it; any other raises Browse
    // with the row's value, which the row takes back afterwards if it is
    // still selected.
    void PressBrowse(Property& row);
    // The entries the row's drop list shows: its list items, or what the
    // NeedData event gives for a row without them.
    std::vector<std::string> DropEntries(Property& row);
    // The text the row shows, asking the events for custom data.
    std::string ShownText(Property& row);

private:
    bool IsSelected(const Property& row) const override { return &row == selected_; }
    void RowsCleared() override {
        selected_ = nullptr;
        editing_ = nullptr;
    }
    void ClearSelectionIf(const Property& row) override {
        if (&row == selected_) selected_ = nullptr;
        if (&row == editing_) editing_ = nullptr;
    }

    Properties rows_;
    Property* selected_ = nullptr;
    // The row of the edit being committed, until a handler removes it.
    const Property* editing_ = nullptr;
    PropertyEvents* events_ = nullptr;
};

}  // namespace flowloom::grid
