// Mouse and keyboard: what each press, click and key does.
#include "grid/widget/PropertyList.h"

#include "grid/widget/EditorParts.h"
#include "grid/widget/GridColors.h"
#include "grid/widget/KeyCodes.h"
#include "grid/widget/Popups.h"
#include "grid/widget/RowListView.h"
#include "grid/widget/RowPainter.h"
#include "grid/widget/RowWatch.h"

#include <QApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QToolTip>

namespace flowloom::grid {

namespace {

constexpr int kDividerMargin = 50;

QPoint Position(const QMouseEvent& event) { return event.position().toPoint(); }

bool IsListType(int type) { return type == ExPropBoolean || type == ExPropCustomList; }

}  // namespace

void PropertyList::SelectRow(Property* row) {
    Property* old = selected_;
    selected_ = row;
    if (old && row && old != row) RaiseSelChange(old, row);
}

void PropertyList::SetHeaderExpanded(Property& header, bool expanded) {
    RowWatch watch(watches_, header);
    RaisePreExpand(header);
    if (!watch.Alive()) return;
    header.SetExpanded(expanded);
    if (expanded) RaiseExpand(header);
    else RaiseCollapse(header);
}

// Mouse on the list ---------------------------------------------------------

void PropertyList::ListMouseDown(QMouseEvent& event) {
    TryCommitPending();
    HideControls();
    list_->setFocus();
    const int hit = list_->ItemAt(Position(event));
    if (hit >= 0) list_->SetCurrentIndex(hit);
    if (Property* row = list_->CurrentRow()) {
        const bool header = row->ItemType() == ExPropHeader;
        if (header || allowEdit_) SelectRow(row);
        const int x = Position(event).x() + list_->HScrollPos();
        if (expandableHeaders_ && header && !row->ReadOnly() && x < IndentWidth(ToQFont(font_)))
            SetHeaderExpanded(*row, !row->Expanded());
    }
    if (dividerPlacement_ == 3 && sizePointer_) {
        dragging_ = true;
        list_->viewport()->grabMouse();
    }
    emit MouseDown(ButtonNumber(event.button()), ShiftState(event.modifiers()), Position(event).x(), Position(event).y());
}

void PropertyList::UpdateSizePointer(int x) {
    const int hs = list_->HScrollPos();
    const bool inBand = x >= dividerLeft_ - 5 - hs && x < dividerLeft_ + 1 - hs;
    if (inBand == sizePointer_) return;
    sizePointer_ = inBand;
    if (inBand) list_->viewport()->setCursor(Qt::SizeHorCursor);
    else list_->viewport()->unsetCursor();
}

void PropertyList::ListMouseMove(QMouseEvent& event) {
    const int x = Position(event).x();
    if (dividerPlacement_ == 3) {
        if (dragging_) {
            const int candidate = x + list_->HScrollPos();
            const int limit = list_->ScrollsHorizontally() ? list_->HorizontalExtent() : width();
            if (candidate >= kDividerMargin && candidate <= limit - kDividerMargin) SetDividerLeft(candidate);
        } else {
            UpdateSizePointer(x);
        }
    }
    int buttons = 0;
    if (event.buttons() & Qt::LeftButton) buttons |= 1;
    if (event.buttons() & Qt::RightButton) buttons |= 2;
    if (event.buttons() & Qt::MiddleButton) buttons |= 4;
    emit MouseMove(buttons, ShiftState(event.modifiers()), x, Position(event).y());
}

void PropertyList::ListMouseUp(QMouseEvent& event) {
    if (dragging_) {
        dragging_ = false;
        sizePointer_ = false;
        list_->viewport()->unsetCursor();
        list_->viewport()->releaseMouse();
    }
    lastY_ = Position(event).y();
    Property* current = list_->CurrentRow();
    const bool clickDue = current == selected_;
    if (!clickDue && current) selected_ = current;
    // After a double click the editors already stand, with their text selected.
    if (edit_->isHidden()) ShowEditors();
    emit MouseUp(ButtonNumber(event.button()), ShiftState(event.modifiers()), Position(event).x(), Position(event).y());
    if (clickDue) emit Click();
}

void PropertyList::ListDoubleClick() {
    list_->setFocus();
    DoubleClickRow();
    emit DblClick();
}

void PropertyList::EditDoubleClick(bool begunOnRow) {
    if (!selected_) return;
    const int type = selected_->ItemType();
    if (IsListType(type)) DoubleClickRow();
    // The first click of the double click went to the row and showed the
    // box: the double click was meant for the row, and takes its whole text.
    else if (begunOnRow && (type == ExPropText || type == ExPropNumber)) DoubleClickRow();
}

void PropertyList::DoubleClickRow() {
    if (list_->CurrentIndex() < 0 || list_->Count() == 0 || !selected_) return;
    Property& row = *selected_;
    const int type = row.ItemType();
    if (!(type == ExPropHeader || allowEdit_) || row.ReadOnly()) return;
    switch (type) {
    case ExPropHeader:
        if (expandableHeaders_) SetHeaderExpanded(row, !row.Expanded());
        break;
    case ExPropText:
    case ExPropNumber:
        if (edit_->isHidden()) ShowEditors();  // the press of this double click hid it
        SelectAllInEdit();
        break;
    case ExPropBoolean: {
        const bool toFalse = row.value() == textTrue_;
        ApplyPick(row, toFalse ? 1 : 0, toFalse ? textFalse_ : textTrue_);
        break;
    }
    case ExPropCustomList:
        if (FillDropList() && drop_->Count() > 0) {
            const int next = (drop_->CurrentIndex() + 1) % drop_->Count();
            drop_->SetCurrentIndex(next);
            ApplyPick(row, next, drop_->Entry(next));
        }
        break;
    case ExPropDate:
    case ExPropColor:
    case ExPropFile:
    case ExPropFont:
        if (lastY_ <= activeRect_.bottom() + 1) PressButton(0, false);
        break;
    case ExPropBrowse: PressButton(0, false); break;
    default: break;
    }
}

void PropertyList::ListScrolled() {
    TryCommitPending();
    HideControls();
    emit Scroll();
}

void PropertyList::ListToolTip(const QHelpEvent& event) {
    const int index = list_->ItemAt(event.pos());
    Property* row = list_->Row(index);
    const bool overValue = event.pos().x() + list_->HScrollPos() > LongestItem();
    const QString text = row && overValue ? HiddenValueText(*row, list_->ItemRect(index), PaintSettings(false)) : QString();
    if (text.isEmpty()) QToolTip::hideText();
    else QToolTip::showText(event.globalPos(), text, list_->viewport());
}

// Mouse on the editors ----------------------------------------------------

void PropertyList::EditMouseMove() {
    if (dividerPlacement_ == 3 && sizePointer_) {
        sizePointer_ = false;
        list_->viewport()->unsetCursor();
    }
}

void PropertyList::ButtonMouseDown(QMouseEvent& event) {
    if (event.button() == Qt::LeftButton) PressButton(Position(event).y(), false);
}

void PropertyList::ButtonMouseUp(QMouseEvent& event) {
    if (event.button() != Qt::LeftButton) return;
    if (!drop_->isVisible() && !memo_->isVisible()) button_->SetPressed(ButtonArea::Pressed::None);
    edit_->setCursorPosition(0);
    if (!drop_->isVisible() && !memo_->isVisible() && !edit_->isHidden()) edit_->setFocus();
}

void PropertyList::ButtonDoubleClick(QMouseEvent&) {
    if (selected_ && selected_->ItemType() == ExPropNumber && selected_->SpinIncrement() != 0)
        PressButton(lowerSpinPressed_ ? button_->height() - 1 : 0, false);
}

// Focus -----------------------------------------------------------------------

// The window's next (or previous) control that Tab may reach, outside the grid.
QWidget* PropertyList::FocusNeighbour(bool next) const {
    const auto step = [next](const QWidget* w) { return next ? w->nextInFocusChain() : w->previousInFocusChain(); };
    for (QWidget* w = step(this); w && w != this; w = step(w)) {
        const bool takesTab = (w->focusPolicy() & Qt::TabFocus) == Qt::TabFocus && !w->focusProxy();
        if (takesTab && !OwnsWidget(w) && w->window() == window() && w->isVisible() && w->isEnabled()) return w;
    }
    return nullptr;
}

bool PropertyList::LeaveByTab(bool next) {
    QWidget* neighbour = FocusNeighbour(next);
    if (!neighbour) return false;  // the grid is the window's only stop: the key stays here
    neighbour->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

bool PropertyList::OwnsWidget(const QWidget* widget) const {
    return widget && (widget == this || isAncestorOf(widget) || widget == drop_ || drop_->isAncestorOf(widget) ||
                      widget == memo_ || memo_->isAncestorOf(widget));
}

void PropertyList::FocusChanged(QWidget* now) {
    const bool inside = OwnsWidget(now);
    if (inside && !hasFocus_) {
        hasFocus_ = true;
        list_->viewport()->update();
        ShowEditors();
    } else if (!inside && hasFocus_ && !leavingFocus_) {
        leavingFocus_ = true;
        if (!edit_->isHidden() && valueChangedDepth_ == 0) TryCommitPending();
        hasFocus_ = false;
        HideControls();
        list_->viewport()->update();
        leavingFocus_ = false;
    }
}

}  // namespace flowloom::grid
