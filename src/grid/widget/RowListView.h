#pragma once

#include <QAbstractScrollArea>

#include <vector>

namespace flowloom::grid {

class GridInput;
class Property;

// The list of visible rows: each with its own height, a current row, a top
// row, a horizontal extent and hit testing by point. Painting and input go
// to the control through GridInput.
class RowListView : public QAbstractScrollArea {
    Q_OBJECT
public:
    RowListView(GridInput& input, QWidget* parent);

    void Clear();
    void AddRow(Property* row);
    int Count() const noexcept { return static_cast<int>(rows_.size()); }
    Property* Row(int index) const;
    int IndexOfRow(const Property* row) const;

    int CurrentIndex() const noexcept { return current_; }
    Property* CurrentRow() const { return Row(current_); }
    // Out-of-range indexes clear the current row; the row is scrolled into view.
    void SetCurrentIndex(int index);
    int TopIndex() const noexcept { return top_; }
    void SetTopIndex(int index);
    int HorizontalExtent() const noexcept { return extent_; }
    void SetHorizontalExtent(int extent);
    int HScrollPos() const;
    bool ScrollsHorizontally() const;

    // Row rectangle in viewport coordinates, before horizontal scrolling is
    // taken off; empty when the row is not on screen.
    QRect ItemRect(int index) const;
    // Row under a viewport point, or -1.
    int ItemAt(const QPoint& point) const;
    // Moves the current row as the list's own keys do; true when it moved.
    bool Navigate(int virtualKey);
    // Row heights may have changed.
    void Relayout();

protected:
    bool viewportEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    int Height(int index) const;
    int LastTopIndex() const;
    int RowsFittingFrom(int index) const;
    void EnsureVisible(int index);
    void UpdateScrollBars();

    GridInput& input_;
    std::vector<Property*> rows_;
    int current_ = -1;
    int top_ = 0;
    int extent_ = 0;
    bool inWheel_ = false;
};

}  // namespace flowloom::grid
