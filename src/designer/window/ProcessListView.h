#pragma once

#include <QListWidget>

namespace flowloom::designer {
class frmDesigner;
}

namespace flowloom::designer::window {

// lstProcesses: shows the designer's list and leaves every change of the
// selection to the designer, so that its handlers run in their order. The
// mouse and the navigation keys become the designer's list calls.
class ProcessListView : public QListWidget {
    Q_OBJECT
public:
    ProcessListView(frmDesigner& core, QWidget* parent = nullptr);

    // Shows the designer's entries and selection.
    void Sync();
    void Detach() noexcept { core_ = nullptr; }

signals:
    // The context menu key: the menu should open at this point.
    void KeyboardMenuAt(QPoint global);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    // The entry a navigation key moves to; -1 for other keys.
    int NavigationTarget(const QKeyEvent& event) const;
    int RowsPerPage() const;

    frmDesigner* core_;
};

}  // namespace flowloom::designer::window
