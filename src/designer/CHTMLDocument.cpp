#include "designer/CHTMLDocument.h"

#include <string>

namespace flowloom::designer {

namespace {

constexpr int kKeyCtrl = 17;
constexpr int kKeyDelete = 46;
constexpr int kKeyLeft = 37;
constexpr int kKeyUp = 38;
constexpr int kKeyRight = 39;
constexpr int kKeyDown = 40;

void Paint(HtmlTable& table, const char* colour) {
    for (const auto& cell : table.cells()) cell->setBackgroundColor(colour);
}

}  // namespace

// --- CHtmlTableCell ------------------------------------------------------------

void CHtmlTableCell::Highlight() {
    HtmlRow* row = cell_->parentElement();
    if (!row || !row->Table()) return;
    HtmlTable& table = *row->Table();
    if (table.Id == "ActivityTable") {
        // Icon and caption rows come in pairs; the connector row below them
        // is never selected.
        const int r = row->rowIndex();
        const int m = r % 3;
        if (m == 2) return;
        Paint(table, kUnselectedColour);
        const int other = m == 0 ? r + 1 : r - 1;
        if (other >= 0 && other < table.RowCount() && table.rows(other).CellCount() > 0)
            table.rows(other).cells(0)->setBackgroundColor(kSelectedColour);
        cell_->setBackgroundColor(kSelectedColour);
        return;
    }
    // In a strip the icon and the name of an item share a column.
    const int column = cell_->cellIndex();
    for (const auto& cell : table.cells())
        cell->setBackgroundColor(cell->cellIndex() == column ? kSelectedColour : kUnselectedColour);
}

void CHtmlTableCell::onfocus() {
    Highlight();
    if (parent_) parent_->ItemSelected(cell_);
}

void CHtmlTableCell::oncontextmenu() {
    Highlight();
    if (!parent_) return;
    // Hold the document: a handler may replace it while it raises.
    const std::shared_ptr<CHTMLDocument> keep = parent_->shared_from_this();
    keep->ItemSelected(cell_);
    if (parent_) keep->ItemContextMenu();
}

void CHtmlTableCell::onkeydown(int keyCode) {
    if (!parent_) return;
    if (keyCode == kKeyCtrl) ctrlDown_ = true;
    else if (keyCode == kKeyDelete) parent_->ItemDeleted();
    else parent_->KeyDown(keyCode);
}

void CHtmlTableCell::onkeyup(int keyCode) {
    if (keyCode == kKeyCtrl) ctrlDown_ = false;
}

// --- CHTMLDocument ---------------------------------------------------------------

CHTMLDocument::~CHTMLDocument() {
    for (auto& [id, cell] : cells_) cell->Dispose();
    if (page_ && page_->Listener() == this) page_->SetListener(nullptr);
}

void CHTMLDocument::SetDocument(HtmlPage* page) {
    if (page_ && page_->Listener() == this) page_->SetListener(nullptr);
    page_ = page;
    if (page_) page_->SetListener(this);
}

void CHTMLDocument::CellAdd(const std::shared_ptr<HtmlCell>& cell) {
    if (!cell) return;
    if (cells_.empty() && cell->parentElement() && cell->parentElement()->Table()) {
        const std::string& id = cell->parentElement()->Table()->Id;
        horizontal_ = id == "DatabaseTable" || id == "DatasourceTable";
    }
    cells_[cell->Id()] = std::make_unique<CHtmlTableCell>(*this, cell);
}

void CHTMLDocument::ItemDeleted() {
    const auto keep = shared_from_this();
    events_->CellDeleted();
}

void CHTMLDocument::ItemSelected(const std::shared_ptr<HtmlCell>& cell) {
    const auto keep = shared_from_this();
    events_->CellSelected(cell);
}

void CHTMLDocument::ItemContextMenu() {
    const auto keep = shared_from_this();
    cellMenuRaised_ = true;
    events_->CellContextMenu();
}

void CHTMLDocument::KeyDown(int keyCode) {
    const auto keep = shared_from_this();
    switch (keyCode) {
    case kKeyLeft: events_->CellArrowLeft(); break;
    case kKeyUp: events_->CellArrowUp(); break;
    case kKeyRight: events_->CellArrowRight(); break;
    case kKeyDown: events_->CellArrowDown(); break;
    default: break;
    }
}

CHtmlTableCell* CHTMLDocument::Wrapper(const HtmlCell& cell) {
    const auto it = cells_.find(cell.Id());
    return it == cells_.end() ? nullptr : it->second.get();
}

void CHTMLDocument::CellFocus(const std::shared_ptr<HtmlCell>& cell) {
    const auto keep = shared_from_this();
    if (CHtmlTableCell* wrapper = Wrapper(*cell)) wrapper->onfocus();
}

void CHTMLDocument::CellContextMenu(const std::shared_ptr<HtmlCell>& cell) {
    const auto keep = shared_from_this();
    if (CHtmlTableCell* wrapper = Wrapper(*cell)) wrapper->oncontextmenu();
}

void CHTMLDocument::CellKeyDown(const std::shared_ptr<HtmlCell>& cell, int keyCode) {
    const auto keep = shared_from_this();
    if (CHtmlTableCell* wrapper = Wrapper(*cell)) wrapper->onkeydown(keyCode);
}

void CHTMLDocument::CellKeyUp(const std::shared_ptr<HtmlCell>& cell, int keyCode) {
    const auto keep = shared_from_this();
    if (CHtmlTableCell* wrapper = Wrapper(*cell)) wrapper->onkeyup(keyCode);
}

void CHTMLDocument::BodyClick() {
    const auto keep = shared_from_this();
    if (!table_) return;
    // The keyboard stays with the selection when the empty part is clicked.
    for (const auto& cell : table_->cells())
        if (cell->backgroundColor() == kSelectedColour) return cell->focus();
}

void CHTMLDocument::DocumentContextMenu() {
    const auto keep = shared_from_this();
    if (!cellMenuRaised_) events_->DocumentContextMenu();
    cellMenuRaised_ = false;
}

}  // namespace flowloom::designer
