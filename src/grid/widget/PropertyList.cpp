#include "grid/widget/PropertyList.h"

#include "grid/widget/EditorParts.h"
#include "grid/widget/GridColors.h"
#include "grid/widget/Popups.h"
#include "grid/widget/RowListView.h"
#include "grid/widget/RowPainter.h"
#include "grid/widget/RowWatch.h"

#include <QApplication>
#include <QPainter>
#include <QTimer>
#include <QVBoxLayout>

namespace flowloom::grid {

namespace {

[[noreturn]] void RaiseInvalidValue(const std::string& source = {}) {
    throw VbError(vberr::InvalidPropertyValue, StandardErrorText(vberr::InvalidPropertyValue), source);
}

}  // namespace

PropertyList::PropertyList(QWidget* parent)
    : QWidget(parent),
      list_(new RowListView(*this, this)),
      edit_(new EditBox(*this, list_->viewport())),
      button_(new ButtonArea(*this, list_->viewport())),
      drop_(new DropList(this)),
      memo_(new MemoPopup(this)),
      dialogs_(MakeQtGridDialogs(this)),
      font_(FromQFont(QApplication::font())) {
    list_->setObjectName("lst");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(list_);
    setFocusProxy(list_);
    connect(drop_, &DropList::Picked, this, &PropertyList::DropListPicked);
    connect(drop_, &PopupFrame::ClosedByPress, this, [this](QPoint global) { drop_->InLimbo = IsOnButton(global); });
    connect(memo_, &PopupFrame::ClosedByPress, this, [this](QPoint global) { memo_->InLimbo = IsOnButton(global); });
    connect(drop_, &PopupFrame::Hidden, this, [this] { button_->SetPressed(ButtonArea::Pressed::None); });
    connect(memo_, &MemoPopup::Committed, this, &PropertyList::MemoCommitted);
    connect(memo_, &PopupFrame::Hidden, this, [this] { button_->SetPressed(ButtonArea::Pressed::None); });
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { FocusChanged(now); });
}

PropertyList::~PropertyList() {
    // The parts go after the rows: nothing may call back into a half-gone control.
    disconnect(qApp, nullptr, this, nullptr);
    drop_->disconnect(this);
    memo_->disconnect(this);
    sink_ = nullptr;
}

void PropertyList::SetBackColor(OleColor color) {
    backColor_ = color;
    SetBackColorValue(color);
}

void PropertyList::SetForeColor(OleColor color) {
    foreColor_ = color;
    Redraw();
}

void PropertyList::SetFont(const FontValue& font) {
    font_ = font;
    Redraw();
}

void PropertyList::SetBorderStyle(int style) {
    if (style < 0 || style > 1) RaiseInvalidValue();
    borderStyle_ = style;
    list_->setFrameShape(style == 1 ? QFrame::StyledPanel : QFrame::NoFrame);
}

void PropertyList::SetMouseIcon(Picture icon) {
    mouseIcon_ = std::move(icon);
    SetMousePointer(mousePointer_);
}

void PropertyList::SetMousePointer(int pointer) {
    mousePointer_ = pointer;
    static const std::vector<Qt::CursorShape> shapes = {
        Qt::ArrowCursor, Qt::ArrowCursor, Qt::CrossCursor, Qt::IBeamCursor, Qt::ArrowCursor, Qt::SizeAllCursor,
        Qt::SizeBDiagCursor, Qt::SizeVerCursor, Qt::SizeFDiagCursor, Qt::SizeHorCursor, Qt::UpArrowCursor,
        Qt::WaitCursor, Qt::ForbiddenCursor, Qt::BusyCursor, Qt::WhatsThisCursor, Qt::SizeAllCursor};
    const QImage icon = PictureImage(mouseIcon_, maskColor_);
    if (pointer == 99 && !icon.isNull()) setCursor(QCursor(QPixmap::fromImage(icon)));
    else if (pointer > 0 && pointer < static_cast<int>(shapes.size())) setCursor(shapes[static_cast<std::size_t>(pointer)]);
    else unsetCursor();
}

void PropertyList::SetStyle(int style) {
    if (style < 0 || style > 1) RaiseInvalidValue();
    style_ = style;
    RebuildVisibleRows();
    Redraw();
}

void PropertyList::SetHoldDraw(bool value) {
    holdDraw_ = value;
    list_->viewport()->setUpdatesEnabled(!value);
}

std::int32_t PropertyList::LongestItem() {
    if (dividerPlacement_ == 0) dividerLeft_ = longestItem_;
    else if (dividerPlacement_ == 1) dividerLeft_ = width() / 2;
    return dividerLeft_;
}

void PropertyList::SetLongestItem(std::int32_t) {
    throw VbError(vberr::InvalidPropertyValue, "Property is read-only.", "PropertyList.LongestItem");
}

void PropertyList::SetSelectedItem(Property* row) {
    const int index = list_->IndexOfRow(row);
    list_->SetCurrentIndex(index);
    selected_ = index >= 0 ? row : nullptr;
    HideControls();
    ShowEditors();
}

std::int32_t PropertyList::TopIndex() const { return list_->TopIndex(); }
void PropertyList::SetTopIndex(std::int32_t index) { list_->SetTopIndex(index); }

void PropertyList::SetLineStyle(int style) {
    if (style < 0 || style > 5) RaiseInvalidValue("PropertyList.LineStyle");
    lineStyle_ = style;
    Redraw();
}

std::int32_t PropertyList::ListIndex() const { return list_->CurrentIndex(); }

void PropertyList::SetListIndex(std::int32_t index) {
    list_->SetCurrentIndex(index);
    list_->setFocus();
    if (index >= 0) selected_ = list_->CurrentRow();
    ShowEditors();
}

void PropertyList::SetExpandableHeaders(bool value) {
    expandableHeaders_ = value;
    RebuildVisibleRows();
    Redraw();
}

void PropertyList::SetDividerPlacement(int placement) {
    dividerPlacement_ = placement;
    sizePointer_ = false;
    list_->viewport()->unsetCursor();
    Redraw();
    ReshowEditors();
}

void PropertyList::SetHideSelection(bool value) {
    hideSelection_ = value;
    Redraw();
}

void PropertyList::SetAllowEdit(bool value) {
    allowEdit_ = value;
    if (!value) HideControls();
}

void PropertyList::SetAlwaysShowHeaders(bool value) {
    alwaysShowHeaders_ = value;
    RebuildVisibleRows();
    Redraw();
}

void PropertyList::SetBackColorValue(OleColor color) {
    backColorValue_ = color;
    Redraw();
}

void PropertyList::SetDividerLeft(std::int32_t x) {
    dividerLeft_ = x;
    Redraw();
    ReshowEditors();
}

std::int32_t PropertyList::HorizontalExtent() const { return list_->HorizontalExtent(); }
void PropertyList::SetHorizontalExtent(std::int32_t extent) { list_->SetHorizontalExtent(extent); }

void PropertyList::HideControls() {
    if (edit_->hasFocus() || button_->hasFocus()) list_->setFocus();
    button_->hide();
    edit_->hide();
    if (drop_->isVisible()) drop_->hide();
    if (memo_->isVisible()) memo_->hide();
    RaiseHideEditControl();
}

Property* PropertyList::HitTest(std::int32_t x, std::int32_t y) const {
    return list_->Row(list_->ItemAt(list_->viewport()->mapFrom(this, QPoint(x, y))));
}

void PropertyList::Refresh() { list_->viewport()->update(); }

bool PropertyList::IsOnButton(QPoint global) const {
    return button_->isVisible() && button_->rect().contains(button_->mapFromGlobal(global));
}

void PropertyList::SetDialogs(std::unique_ptr<GridDialogs> dialogs) { dialogs_ = std::move(dialogs); }

void PropertyList::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (selected_) {
        ReshowEditors();
        // The layout sizes the list inside only after this event (a grid that
        // a dialog lays out): place the editors again once it has.
        QTimer::singleShot(0, this, [this] {
            if (selected_) ReshowEditors();
        });
    }
    if (list_->ScrollsHorizontally() || dividerPlacement_ == 1) Refresh();
    emit Resize();
}

// Rows ------------------------------------------------------------------

void PropertyList::Redraw() {
    if (!holdDraw_) list_->Relayout();
}

int PropertyList::CaptionWidth(const Property& row) const {
    return QFontMetrics(ToQFont(font_)).horizontalAdvance(QString::fromStdString(row.Caption()));
}

void PropertyList::UpdateLongestItem(int captionWidth) {
    int padding = 5;
    if (expandableHeaders_) padding += IndentWidth(ToQFont(font_));
    if (style_ == 1) padding += widestPicture_;
    if (captionWidth + padding > longestItem_) longestItem_ = captionWidth + padding;
}

void PropertyList::RowMetricsChanged(Property& row) {
    if (list_->IndexOfRow(&row) >= 0 && row.ItemType() != ExPropHeader) UpdateLongestItem(CaptionWidth(row));
    list_->Relayout();
}

void PropertyList::ReshowEditors() {
    HideControls();
    ShowEditors();
}

void PropertyList::SetEditText(const std::string& text) {
    if (!edit_->isHidden()) edit_->setText(QString::fromStdString(text));
}

void PropertyList::CustomDisplayText(Property& row, std::string& text) {
    if (sink_) sink_->QueryCustomData(row, text);
    else emit QueryCustomData(&row, text);
}

void PropertyList::RebuildVisibleRows() {
    const bool heldDraw = holdDraw_;
    SetHoldDraw(true);
    const int listIndex = list_->CurrentIndex();
    const int topIndex = list_->TopIndex();
    list_->Clear();
    for (std::int32_t i = 1; i <= rows_.Count(); ++i) {
        Property& row = rows_.Item(i);
        const bool header = row.ItemType() == ExPropHeader;
        if (!header) {
            UpdateLongestItem(CaptionWidth(row));
            list_->AddRow(&row);
        } else if (expandableHeaders_ || alwaysShowHeaders_) {
            list_->AddRow(&row);
        }
        if (expandableHeaders_ && header && !row.Expanded())
            while (i < rows_.Count() && rows_.Item(i + 1).ItemType() != ExPropHeader) ++i;
    }
    list_->SetCurrentIndex(listIndex);
    list_->SetTopIndex(topIndex);
    SetHoldDraw(heldDraw);
}

void PropertyList::AddVisibleRow(Property& row) {
    if (row.ItemType() != ExPropHeader) UpdateLongestItem(CaptionWidth(row));
    const bool shown = list_->Count() == 0 || !expandableHeaders_ || list_->Row(list_->Count() - 1)->Expanded();
    if (!shown) return;
    list_->AddRow(&row);
    if (list_->Count() == 1) {
        list_->SetCurrentIndex(0);
        selected_ = &rows_.Item(1);
        if (hasFocus_) ShowEditors();
    }
}

void PropertyList::RowsCleared() {
    RowWatch::Forget(watches_, nullptr);
    selected_ = nullptr;
    list_->Clear();
    longestItem_ = 0;
}

void PropertyList::ClearSelectionIf(const Property& row) {
    RowWatch::Forget(watches_, &row);
    if (selected_ == &row) selected_ = nullptr;
}

void PropertyList::CommitPendingEdit() {
    if (selected_) CommitPending(true);
}

void PropertyList::WidenPictureColumn(int width) { widestPicture_ = std::max(widestPicture_, width); }

// Painting ----------------------------------------------------------------

int PropertyList::MeasureRow(const Property& row) const { return RowHeight(row, style_); }

RowPaintSettings PropertyList::PaintSettings(bool highlighted) const {
    RowPaintSettings settings;
    settings.backColor = backColor_;
    settings.backColorValue = backColorValue_;
    settings.foreColor = foreColor_;
    settings.lineColor = lineColor_;
    settings.lineStyle = lineStyle_;
    settings.style = style_;
    settings.expandableHeaders = expandableHeaders_;
    settings.dividerX = dividerLeft_;
    settings.controlFont = ToQFont(font_);
    settings.highlighted = highlighted;
    return settings;
}

void PropertyList::PaintBackground(QPainter& painter, const QRect& rect) { painter.fillRect(rect, ResolveColor(backColor_)); }

void PropertyList::DrawRow(QPainter& painter, Property& row, const QRect& rect, bool current) {
    if (holdDraw_) return;
    LongestItem();  // the divider follows the placement
    const bool highlighted = current && (hasFocus_ || !hideSelection_);
    if (highlighted) activeRect_ = rect;
    if (const auto area = PaintRow(painter, row, rect, PaintSettings(highlighted)))
        RaiseDrawItem(row, painter, area->left, area->top, area->right, area->bottom, area->startText, area->startValue);
}

}  // namespace flowloom::grid
