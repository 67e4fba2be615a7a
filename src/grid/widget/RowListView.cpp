#include "grid/widget/RowListView.h"

#include "grid/widget/GridInput.h"
#include "grid/widget/KeyCodes.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>

namespace flowloom::grid {

RowListView::RowListView(GridInput& input, QWidget* parent) : QAbstractScrollArea(parent), input_(input) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setMouseTracking(true);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int value) {
        top_ = value;
        viewport()->update();
    });
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, viewport(), qOverload<>(&QWidget::update));
    // Only the user's scrolling counts as a scroll of the list; a turn of the
    // wheel moves a bar too, but is one scroll, told by wheelEvent.
    const auto scrolledByBar = [this] {
        if (!inWheel_) input_.ListScrolled();
    };
    connect(verticalScrollBar(), &QScrollBar::actionTriggered, this, scrolledByBar);
    connect(horizontalScrollBar(), &QScrollBar::actionTriggered, this, scrolledByBar);
}

void RowListView::Clear() {
    rows_.clear();
    current_ = -1;
    top_ = 0;
    UpdateScrollBars();
    viewport()->update();
}

void RowListView::AddRow(Property* row) {
    rows_.push_back(row);
    UpdateScrollBars();
    viewport()->update();
}

Property* RowListView::Row(int index) const { return index >= 0 && index < Count() ? rows_[static_cast<std::size_t>(index)] : nullptr; }

int RowListView::IndexOfRow(const Property* row) const {
    const auto found = std::find(rows_.begin(), rows_.end(), row);
    return found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
}

void RowListView::SetCurrentIndex(int index) {
    current_ = index >= 0 && index < Count() ? index : -1;
    // A hidden list has no height of its own yet: scrolling now would hide
    // rows that fit once it is shown, so the row comes into view then.
    if (current_ >= 0 && isVisible()) EnsureVisible(current_);
    viewport()->update();
}

void RowListView::SetTopIndex(int index) {
    top_ = std::clamp(index, 0, LastTopIndex());
    verticalScrollBar()->setValue(top_);
    viewport()->update();
}

void RowListView::SetHorizontalExtent(int extent) {
    extent_ = std::max(0, extent);
    UpdateScrollBars();
}

int RowListView::HScrollPos() const { return horizontalScrollBar()->value(); }

bool RowListView::ScrollsHorizontally() const { return extent_ > viewport()->width(); }

int RowListView::Height(int index) const { return input_.MeasureRow(*rows_[static_cast<std::size_t>(index)]); }

QRect RowListView::ItemRect(int index) const {
    if (index < top_ || index >= Count()) return {};
    int y = 0;
    for (int i = top_; i < index; ++i) {
        y += Height(i);
        if (y >= viewport()->height()) return {};
    }
    return QRect(0, y, std::max(viewport()->width(), extent_), Height(index));
}

int RowListView::ItemAt(const QPoint& point) const {
    if (point.y() < 0) return -1;
    int y = 0;
    for (int i = top_; i < Count(); ++i) {
        y += Height(i);
        if (point.y() < y) return i;
    }
    return -1;
}

int RowListView::RowsFittingFrom(int index) const {
    int used = 0, rows = 0;
    for (int i = index; i < Count(); ++i) {
        used += Height(i);
        if (used > viewport()->height() && rows > 0) break;
        ++rows;
    }
    return rows;
}

int RowListView::LastTopIndex() const {
    int used = 0;
    for (int i = Count() - 1; i >= 0; --i) {
        used += Height(i);
        if (used > viewport()->height()) return std::min(i + 1, Count() - 1);
    }
    return 0;
}

void RowListView::EnsureVisible(int index) {
    if (index < top_) {
        SetTopIndex(index);
        return;
    }
    // Scrolls on until the row stands fully in view (or is the top row).
    while (top_ < index) {
        const QRect rect = ItemRect(index);
        if (!rect.isEmpty() && rect.top() + rect.height() <= viewport()->height()) break;
        const int before = top_;
        SetTopIndex(top_ + 1);
        if (top_ == before) break;
    }
}

bool RowListView::Navigate(int virtualKey) {
    if (Count() == 0) return false;
    const int page = std::max(1, RowsFittingFrom(top_) - 1);
    int target = current_;
    switch (virtualKey) {
    case vk::Up: target = current_ < 0 ? 0 : current_ - 1; break;
    case vk::Down: target = current_ + 1; break;
    case vk::Home: target = 0; break;
    case vk::End: target = Count() - 1; break;
    case vk::PageUp: target = current_ - page; break;
    case vk::PageDown: target = current_ + page; break;
    default: return false;
    }
    target = std::clamp(target, 0, Count() - 1);
    if (target == current_) return false;
    SetCurrentIndex(target);
    return true;
}

void RowListView::Relayout() {
    UpdateScrollBars();
    viewport()->update();
}

void RowListView::UpdateScrollBars() {
    const int last = LastTopIndex();
    verticalScrollBar()->setRange(0, last);
    verticalScrollBar()->setPageStep(std::max(1, RowsFittingFrom(top_)));
    if (top_ > last) top_ = last;
    verticalScrollBar()->setValue(top_);
    horizontalScrollBar()->setRange(0, std::max(0, extent_ - viewport()->width()));
    horizontalScrollBar()->setPageStep(viewport()->width());
}

void RowListView::paintEvent(QPaintEvent*) {
    QPainter painter(viewport());
    const int width = std::max(viewport()->width(), extent_);
    painter.translate(-HScrollPos(), 0);
    input_.PaintBackground(painter, QRect(0, 0, width, viewport()->height()));
    int y = 0;
    for (int i = top_; i < Count() && y < viewport()->height(); ++i) {
        const QRect rect(0, y, width, Height(i));
        input_.DrawRow(painter, *rows_[static_cast<std::size_t>(i)], rect, i == current_);
        y += rect.height();
    }
}

bool RowListView::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QAbstractScrollArea::viewportEvent(event);
    input_.ListToolTip(static_cast<const QHelpEvent&>(*event));
    return true;
}

bool RowListView::focusNextPrevChild(bool next) { return input_.LeaveByTab(next); }

void RowListView::mousePressEvent(QMouseEvent* event) { input_.ListMouseDown(*event); }
void RowListView::mouseMoveEvent(QMouseEvent* event) { input_.ListMouseMove(*event); }
void RowListView::mouseReleaseEvent(QMouseEvent* event) { input_.ListMouseUp(*event); }
void RowListView::mouseDoubleClickEvent(QMouseEvent*) { input_.ListDoubleClick(); }
void RowListView::keyPressEvent(QKeyEvent* event) { input_.ControlKeyPress(*event); }
void RowListView::keyReleaseEvent(QKeyEvent* event) { input_.ControlKeyRelease(*event); }

void RowListView::wheelEvent(QWheelEvent* event) {
    {
        const QScopedValueRollback<bool> wheel(inWheel_, true);
        QAbstractScrollArea::wheelEvent(event);
    }
    input_.ListScrolled();
}

void RowListView::showEvent(QShowEvent* event) {
    QAbstractScrollArea::showEvent(event);
    if (current_ >= 0) EnsureVisible(current_);
}

void RowListView::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    UpdateScrollBars();
}

}  // namespace flowloom::grid
