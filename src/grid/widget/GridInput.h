#pragma once

#include <QRect>

class QHelpEvent;
class QKeyEvent;
class QMouseEvent;
class QPainter;

namespace flowloom::grid {

class Property;

// What the parts of the control (the list of rows, the edit box and the
// button area) hand on to the control itself, which decides what each
// event means.
class GridInput {
public:
    virtual ~GridInput() = default;

    virtual int MeasureRow(const Property& row) const = 0;
    virtual void DrawRow(QPainter& painter, Property& row, const QRect& rect, bool current) = 0;
    virtual void PaintBackground(QPainter& painter, const QRect& rect) = 0;

    virtual void ListMouseDown(QMouseEvent& event) = 0;
    virtual void ListMouseMove(QMouseEvent& event) = 0;
    virtual void ListMouseUp(QMouseEvent& event) = 0;
    virtual void ListDoubleClick() = 0;
    virtual void ListScrolled() = 0;
    // The mouse rests over the list: a value too long to show is told in a tip.
    virtual void ListToolTip(const QHelpEvent& event) = 0;
    // Tab or Shift+Tab in the list or the edit box: true when the focus went
    // on to the window's next or previous control.
    virtual bool LeaveByTab(bool next) = 0;
    // Keys that reach the control while the list has the focus.
    virtual void ControlKeyPress(QKeyEvent& event) = 0;
    virtual void ControlKeyRelease(QKeyEvent& event) = 0;

    // True when the edit box is not to see the key.
    virtual bool EditKeyPress(QKeyEvent& event) = 0;
    virtual void EditKeyRelease(QKeyEvent& event) = 0;
    virtual void EditTextEdited() = 0;
    // begunOnRow: the first click of the double click went to the row and
    // showed the box.
    virtual void EditDoubleClick(bool begunOnRow) = 0;
    virtual void EditMouseMove() = 0;

    virtual void ButtonMouseDown(QMouseEvent& event) = 0;
    virtual void ButtonMouseUp(QMouseEvent& event) = 0;
    virtual void ButtonDoubleClick(QMouseEvent& event) = 0;
};

}  // namespace flowloom::grid
