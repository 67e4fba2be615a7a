#pragma once

#include "designer/frmDesigner.h"
#include "designer/window/CanvasLayout.h"

#include <QAbstractScrollArea>

#include <cstdint>
#include <optional>

namespace flowloom::designer::window {

// The control that shows a strip.
inline Control StripControl(Strip strip) {
    switch (strip) {
    case Strip::Database: return Control::Database;
    case Strip::Datasource: return Control::Datasource;
    case Strip::Activity: break;
    }
    return Control::Activity;
}

// One strip of the canvas: paints its page and turns the mouse and keys
// into the designer's calls. The page is the designer's; the view only
// reads it, and lays it out again when it changes.
class CanvasView : public QAbstractScrollArea {
    Q_OBJECT
public:
    CanvasView(Strip strip, frmDesigner& core, QWidget* parent = nullptr);
    ~CanvasView() override;

    Strip Which() const noexcept { return strip_; }
    // The cell's box in viewport coordinates, laid out as now.
    std::optional<QRect> CellRect(int row, int cell);
    // Stops listening to the page (before the designer goes away).
    void Detach();

signals:
    // The context menu key: the menu should open at this point.
    void KeyboardMenuAt(QPoint global);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void PageChanged();
    bool Stale() const;
    void BuildLayout();
    // Lays the page out again if it changed, and sets the scroll bars.
    void EnsureLayout();
    void UpdateScrollBars();
    void ScrollFocusedCellIntoView();
    const CanvasCellBox* CellUnder(QPoint viewportPoint);
    QPoint Offset() const;

    Strip strip_;
    frmDesigner* core_;
    HtmlPage* page_;
    CanvasLayout layout_;
    std::uint64_t laidOutGeneration_ = ~0ull;
    int laidOutWidth_ = -1;
    bool relayoutQueued_ = false;
    std::uint64_t shownFocusCell_ = 0;
};

}  // namespace flowloom::designer::window
