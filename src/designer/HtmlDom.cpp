#include "designer/HtmlDom.h"

#include "support/VbError.h"

namespace flowloom::designer {

namespace {

HtmlPage* PageOf(const HtmlRow* row) { return row && row->Table() ? row->Table()->Page() : nullptr; }

}  // namespace

// --- HtmlCell ---------------------------------------------------------------

void HtmlCell::setBackgroundColor(const std::string& colour) {
    if (background_ == colour) return;
    background_ = colour;
    if (HtmlPage* page = PageOf(row_)) page->Touch();
}

void HtmlCell::setInnerHTML(std::string html) {
    if (innerHTML == html) return;
    innerHTML = std::move(html);
    if (HtmlPage* page = PageOf(row_)) page->Touch();
}

int HtmlCell::cellIndex() const {
    if (!row_) return -1;
    for (int i = 0; i < row_->CellCount(); ++i)
        if (row_->cells(i).get() == this) return i;
    return -1;
}

void HtmlCell::focus() {
    HtmlPage* page = PageOf(row_);
    if (!page) return;
    for (int i = 0; i < row_->CellCount(); ++i)
        if (row_->cells(i).get() == this) return page->FocusCell(row_->cells(i));
}

// --- HtmlRow ----------------------------------------------------------------

int HtmlRow::rowIndex() const {
    if (!table_) return -1;
    for (int i = 0; i < table_->RowCount(); ++i)
        if (&table_->rows(i) == this) return i;
    return -1;
}

const std::shared_ptr<HtmlCell>& HtmlRow::cells(int index) const {
    if (index < 0 || index >= CellCount()) RaiseStandardError(vberr::SubscriptOutOfRange);
    return cells_[static_cast<std::size_t>(index)];
}

HtmlCell& HtmlRow::insertCell() {
    HtmlPage* page = PageOf(this);
    cells_.push_back(std::shared_ptr<HtmlCell>(new HtmlCell(this, page ? page->NextCellId() : 0)));
    if (page) page->Touch();
    return *cells_.back();
}

void HtmlRow::deleteCell() {
    if (cells_.empty()) return;
    cells_.back()->row_ = nullptr;
    cells_.pop_back();
    if (HtmlPage* page = PageOf(this)) page->Touch();
}

void HtmlRow::Detach() {
    for (auto& cell : cells_) cell->row_ = nullptr;
    table_ = nullptr;
}

// --- HtmlTable --------------------------------------------------------------

HtmlRow& HtmlTable::rows(int index) const {
    if (index < 0 || index >= RowCount()) RaiseStandardError(vberr::SubscriptOutOfRange);
    return *rows_[static_cast<std::size_t>(index)];
}

HtmlRow& HtmlTable::insertRow() {
    rows_.push_back(std::unique_ptr<HtmlRow>(new HtmlRow(this)));
    if (page_) page_->Touch();
    return *rows_.back();
}

void HtmlTable::deleteRow() {
    if (rows_.empty()) return;
    rows_.back()->Detach();
    rows_.pop_back();
    if (page_) page_->Touch();
}

std::vector<std::shared_ptr<HtmlCell>> HtmlTable::cells() const {
    std::vector<std::shared_ptr<HtmlCell>> all;
    for (const auto& row : rows_)
        for (int i = 0; i < row->CellCount(); ++i) all.push_back(row->cells(i));
    return all;
}

// --- HtmlPage ---------------------------------------------------------------

HtmlTable* HtmlPage::getElementById(const std::string& id) const {
    return table_ && table_->Id == id ? table_.get() : nullptr;
}

HtmlTable& HtmlPage::CreateTable() {
    table_ = std::make_unique<HtmlTable>(this);
    Touch();
    return *table_;
}

void HtmlPage::FocusCell(const std::shared_ptr<HtmlCell>& cell) {
    if (!cell || !cell->parentElement()) return;
    const bool wasFocused = controlFocused_;
    if (!controlFocused_ && requestControlFocus_) requestControlFocus_();
    controlFocused_ = true;
    // A cell that already has the focus of a focused canvas hears nothing.
    if (wasFocused && focused_.lock() == cell) return;
    focused_ = cell;
    if (listener_) listener_->CellFocus(cell);
}

void HtmlPage::ClickBody() {
    if (listener_) listener_->BodyClick();
}

void HtmlPage::ContextMenuOnCell(const std::shared_ptr<HtmlCell>& cell) {
    const std::uint64_t epoch = listenerEpoch_;
    if (listener_ && cell) listener_->CellContextMenu(cell);
    // The event bubbles from the cell up to the document, unless the
    // document was rebuilt meanwhile (a command chosen from the menu).
    if (epoch == listenerEpoch_) ContextMenuOnBody();
}

void HtmlPage::ContextMenuOnBody() {
    if (listener_) listener_->DocumentContextMenu();
}

void HtmlPage::KeyDown(int keyCode) {
    const std::shared_ptr<HtmlCell> cell = focused_.lock();
    if (listener_ && cell && cell->parentElement()) listener_->CellKeyDown(cell, keyCode);
    // The document then swallows every key but F1, so the browser does not act on it.
}

void HtmlPage::KeyUp(int keyCode) {
    const std::shared_ptr<HtmlCell> cell = focused_.lock();
    if (listener_ && cell && cell->parentElement()) listener_->CellKeyUp(cell, keyCode);
}

}  // namespace flowloom::designer
