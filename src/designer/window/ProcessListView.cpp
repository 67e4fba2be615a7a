#include "designer/window/ProcessListView.h"

#include "designer/frmDesigner.h"
#include "grid/widget/KeyCodes.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>

namespace flowloom::designer::window {

ProcessListView::ProcessListView(frmDesigner& core, QWidget* parent) : QListWidget(parent), core_(&core) {
    setObjectName(QStringLiteral("lstProcesses"));
    setSelectionMode(QAbstractItemView::SingleSelection);
    setUniformItemSizes(true);
    setFocusPolicy(Qt::StrongFocus);
}

void ProcessListView::Sync() {
    if (!core_) return;
    const ListBoxData& data = core_->lstProcesses();
    bool same = count() == data.ListCount();
    for (int i = 0; same && i < count(); ++i) same = item(i)->text().toStdString() == data.List(i);
    if (!same) {
        clear();
        for (const std::string& entry : data.Items()) addItem(QString::fromStdString(entry));
    }
    const int index = data.ListIndex();
    if (index != currentRow()) {
        if (index < 0) {
            clearSelection();
            setCurrentRow(-1);
        } else {
            setCurrentRow(index);
        }
    }
    if (index >= 0) scrollToItem(item(index));
}

// --- mouse ---------------------------------------------------------------

void ProcessListView::mousePressEvent(QMouseEvent* event) {
    event->accept();
    if (!core_) return;
    const QModelIndex at = indexAt(event->position().toPoint());
    const int row = at.isValid() ? at.row() : -1;
    if (event->button() == Qt::LeftButton) core_->ListClick(row);
    else if (event->button() == Qt::RightButton) core_->ListRightClick(row);
}

// Dragging and releasing change nothing: the designer owns the selection.
void ProcessListView::mouseMoveEvent(QMouseEvent* event) { event->accept(); }
void ProcessListView::mouseReleaseEvent(QMouseEvent* event) { event->accept(); }
void ProcessListView::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

void ProcessListView::contextMenuEvent(QContextMenuEvent* event) {
    event->accept();
    if (!core_ || event->reason() != QContextMenuEvent::Keyboard) return;  // the mouse's came with the press
    const int row = core_->lstProcesses().ListIndex();
    const QRect rect = row >= 0 ? visualRect(model()->index(row, 0)) : QRect();
    emit KeyboardMenuAt(viewport()->mapToGlobal(rect.isValid() ? rect.center() : QPoint(4, 4)));
    core_->ListRightClick(row);
}

// --- keys ------------------------------------------------------------------

int ProcessListView::RowsPerPage() const {
    const int rowHeight = count() > 0 ? std::max(1, sizeHintForRow(0)) : 1;
    return std::max(1, viewport()->height() / rowHeight);
}

int ProcessListView::NavigationTarget(const QKeyEvent& event) const {
    const int last = count() - 1;
    const int current = currentRow();
    switch (event.key()) {
    case Qt::Key_Up: return std::max(0, current - 1);
    case Qt::Key_Down: return std::min(last, current + 1);
    case Qt::Key_Home: return 0;
    case Qt::Key_End: return last;
    case Qt::Key_PageUp: return std::max(0, current - (RowsPerPage() - 1));
    case Qt::Key_PageDown: return std::min(last, current + (RowsPerPage() - 1));
    default: return -1;
    }
}

void ProcessListView::keyPressEvent(QKeyEvent* event) {
    if (!core_) return;
    const int target = NavigationTarget(*event);
    if (target >= 0) {
        if (target != currentRow()) core_->ListSelect(target);
        event->accept();
        return;
    }
    // Typing does not search the list: the selection is the designer's.
    if (event->key() == Qt::Key_Menu) QListWidget::keyPressEvent(event);
    else event->ignore();
}

void ProcessListView::keyReleaseEvent(QKeyEvent* event) {
    const int key = grid::VirtualKey(*event);
    if (!core_ || event->isAutoRepeat() || key == 0 || key == grid::vk::Tab) return;
    core_->ListKeyUp(key);
    event->accept();
}

}  // namespace flowloom::designer::window
