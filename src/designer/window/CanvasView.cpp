#include "designer/window/CanvasView.h"

#include "grid/widget/KeyCodes.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTimer>

namespace flowloom::designer::window {

CanvasView::CanvasView(Strip strip, frmDesigner& core, QWidget* parent)
    : QAbstractScrollArea(parent), strip_(strip), core_(&core), page_(&core.Canvas(strip)) {
    setObjectName(QString::fromLatin1(ControlName(StripControl(strip))));
    setFocusPolicy(Qt::StrongFocus);
    setFrameShape(QFrame::StyledPanel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    viewport()->setAutoFillBackground(true);
    QPalette palette = viewport()->palette();
    palette.setColor(QPalette::Window, Qt::white);
    viewport()->setPalette(palette);
    page_->SetChangeListener([this] { PageChanged(); });
}

CanvasView::~CanvasView() { Detach(); }

void CanvasView::Detach() {
    if (page_) page_->SetChangeListener({});
    page_ = nullptr;
    core_ = nullptr;
}

// --- layout ---------------------------------------------------------------

void CanvasView::PageChanged() {
    // A command changes many cells at once: lay out once, after it.
    viewport()->update();
    if (relayoutQueued_) return;
    relayoutQueued_ = true;
    QTimer::singleShot(0, this, [this] {
        relayoutQueued_ = false;
        EnsureLayout();
        ScrollFocusedCellIntoView();
    });
}

bool CanvasView::Stale() const {
    return page_ && (page_->Generation() != laidOutGeneration_ || viewport()->width() != laidOutWidth_);
}

void CanvasView::BuildLayout() {
    layout_.Build(*page_, viewport()->width());
    laidOutGeneration_ = page_->Generation();
    laidOutWidth_ = viewport()->width();
}

void CanvasView::EnsureLayout() {
    if (!page_) return;
    if (Stale()) {
        BuildLayout();
        viewport()->update();
    }
    UpdateScrollBars();
}

void CanvasView::UpdateScrollBars() {
    const QSize content = layout_.ContentSize();
    const QSize view = viewport()->size();
    horizontalScrollBar()->setRange(0, std::max(0, content.width() - view.width()));
    horizontalScrollBar()->setPageStep(view.width());
    horizontalScrollBar()->setSingleStep(16);
    verticalScrollBar()->setRange(0, std::max(0, content.height() - view.height()));
    verticalScrollBar()->setPageStep(view.height());
    verticalScrollBar()->setSingleStep(16);
}

QPoint CanvasView::Offset() const { return {horizontalScrollBar()->value(), verticalScrollBar()->value()}; }

void CanvasView::ScrollFocusedCellIntoView() {
    if (!page_) return;
    const std::shared_ptr<HtmlCell> cell = page_->FocusedCell();
    if (!cell || !cell->parentElement() || cell->Id() == shownFocusCell_) return;
    shownFocusCell_ = cell->Id();
    const CanvasCellBox* box = layout_.Find(cell->parentElement()->rowIndex(), cell->cellIndex());
    if (!box) return;
    // The item is the icon with its name (or caption) below it.
    QRect wanted = box->rect;
    if (const CanvasCellBox* below = layout_.Find(box->row + 1, strip_ == Strip::Activity ? 0 : box->cell))
        if (strip_ != Strip::Activity || box->row % 3 == 0) wanted = wanted.united(below->rect);
    const QRect visible(Offset(), viewport()->size());
    if (visible.contains(wanted)) return;
    if (wanted.left() < visible.left() || wanted.width() > visible.width())
        horizontalScrollBar()->setValue(wanted.left());
    else if (wanted.right() > visible.right())
        horizontalScrollBar()->setValue(wanted.right() - visible.width() + 1);
    if (wanted.top() < visible.top() || wanted.height() > visible.height())
        verticalScrollBar()->setValue(wanted.top());
    else if (wanted.bottom() > visible.bottom())
        verticalScrollBar()->setValue(wanted.bottom() - visible.height() + 1);
}

std::optional<QRect> CanvasView::CellRect(int row, int cell) {
    EnsureLayout();
    const CanvasCellBox* box = layout_.Find(row, cell);
    if (!box) return std::nullopt;
    return box->rect.translated(-Offset());
}

const CanvasCellBox* CanvasView::CellUnder(QPoint viewportPoint) {
    EnsureLayout();
    return layout_.At(viewportPoint + Offset());
}

// --- painting ---------------------------------------------------------------

void CanvasView::paintEvent(QPaintEvent* event) {
    // The scroll bars follow from the queued layout; painting only catches up.
    if (Stale()) BuildLayout();
    QPainter painter(viewport());
    const QPoint offset = Offset();
    painter.translate(-offset);
    layout_.Paint(painter, event->rect().translated(offset));
}

void CanvasView::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    EnsureLayout();
}

// --- mouse and keys -------------------------------------------------------------

void CanvasView::mousePressEvent(QMouseEvent* event) {
    if (!core_) return;
    const CanvasCellBox* box = CellUnder(event->position().toPoint());
    if (event->button() == Qt::LeftButton) {
        if (box) core_->CellClick(strip_, box->row, box->cell);
        else core_->StripClick(strip_);
    }
    event->accept();
}

void CanvasView::mouseReleaseEvent(QMouseEvent* event) {
    // The context menu opens as the right button comes up.
    if (core_ && event->button() == Qt::RightButton) {
        const CanvasCellBox* box = CellUnder(event->position().toPoint());
        if (box) core_->CellRightClick(strip_, box->row, box->cell);
        else core_->StripRightClick(strip_);
    }
    event->accept();
}

void CanvasView::mouseDoubleClickEvent(QMouseEvent* event) {
    // The second press of a double click is a press like the first.
    mousePressEvent(event);
}

void CanvasView::contextMenuEvent(QContextMenuEvent* event) {
    event->accept();
    if (!core_ || event->reason() != QContextMenuEvent::Keyboard) return;  // the mouse's is on release
    const std::shared_ptr<HtmlCell> cell = page_->FocusedCell();
    std::optional<QRect> rect;
    if (cell && cell->parentElement()) rect = CellRect(cell->parentElement()->rowIndex(), cell->cellIndex());
    emit KeyboardMenuAt(viewport()->mapToGlobal(rect ? rect->center() : QPoint(4, 4)));
    if (rect) core_->CellRightClick(strip_, cell->parentElement()->rowIndex(), cell->cellIndex());
    else core_->StripRightClick(strip_);
}

void CanvasView::keyPressEvent(QKeyEvent* event) {
    const int key = grid::VirtualKey(*event);
    // F1 is the window's; the menu key comes back as a context menu event.
    if (!core_ || key == 0 || key == grid::vk::F1 || event->key() == Qt::Key_Menu) {
        QAbstractScrollArea::keyPressEvent(event);
        return;
    }
    core_->StripKeyDown(strip_, key);
    event->accept();
}

}  // namespace flowloom::designer::window
