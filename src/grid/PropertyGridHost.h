#pragma once

namespace flowloom::grid {

class Properties;
class Property;
class PropertyEvents;

// The grid as the designer needs it: its rows, the selected row, a hold on
// painting while a sheet is built, and where a row stands.
class PropertyGridHost {
public:
    virtual ~PropertyGridHost() = default;
    // Where the grid's events go; null stops them. Not owned.
    virtual void SetEvents(PropertyEvents* events) = 0;
    virtual Properties& Rows() = 0;
    virtual Property* SelectedItem() const = 0;
    // LockWindowUpdate: nothing paints while held.
    virtual void SetHoldDraw(bool hold) = 0;
    // The row's rectangle in the grid, in pixels: its right edge and its
    // top. False when the row is not on show.
    virtual bool RowRect(const Property& row, int& right, int& top) const = 0;
    // Ends an edit in progress and stores it (the focus leaves the grid).
    virtual void CommitPendingEdit() {}
    // Makes the row the selected one, as setting SelectedItem does (the
    // grid raises no event for it).
    virtual void SelectRow(Property& row) = 0;
};

}  // namespace flowloom::grid
