#pragma once

#include "grid/GridTypes.h"
#include "grid/ValueFormat.h"

#include <string>

namespace flowloom::grid {

class Property;

// What rows ask of the control that owns them: its colours and texts, and
// the reactions to a change (redraw, new metrics, editors). The widget
// implements it; rows without a control use the defaults.
class PropertyOwner {
public:
    virtual ~PropertyOwner() = default;

    virtual OleColor BackColor() const { return kSystemWindow; }
    virtual OleColor BackColorAlternate() const { return BackColor(); }
    virtual OleColor ForeColor() const { return kSystemWindowText; }
    virtual OleColor HighlightColor() const { return kSystemHighlight; }
    virtual OleColor HighlightText() const { return kSystemHighlightText; }
    virtual FontValue Font() const { return {}; }
    virtual std::string TextTrue() const { return "True"; }
    virtual std::string TextFalse() const { return "False"; }
    virtual std::string ShortDatePattern() const { return "dd.mm.yyyy"; }
    // The month and weekday names of date formats.
    virtual const DateNames& LocaleDateNames() const { return EnglishDateNames(); }

    virtual bool IsSelected(const Property&) const { return false; }
    virtual void Redraw() {}
    // The row's height or caption width may have changed.
    virtual void RowMetricsChanged(Property&) {}
    // A change that alters the editors of the selected row: hide and show again.
    virtual void ReshowEditors() {}
    virtual void HideEditors() {}
    // The selected row's value changed: the edit box shows the new text.
    virtual void SetEditText(const std::string&) {}
    // Lets the owner replace the text a row displays.
    virtual void CustomDisplayText(Property&, std::string&) {}
    virtual void RebuildVisibleRows() {}
    virtual void AddVisibleRow(Property&) {}
    // The collection was emptied: clear the list and the longest item.
    virtual void RowsCleared() {}
    virtual void ClearSelectionIf(const Property&) {}
    // Ends an edit in progress before the rows move; nothing without a selection.
    virtual void CommitPendingEdit() {}
    virtual void WidenPictureColumn(int) {}
};

}  // namespace flowloom::grid
