// The canvases' keys, focus and events: arrow keys, a strip taking the
// focus, and what the window does when a cell is selected or deleted.
#include "designer/FrmDesignerParts.h"

#include "model/Activities.h"
#include "model/Process.h"
#include "support/ReportError.h"
#include "support/VbError.h"

namespace flowloom::designer {

namespace {
constexpr int kKeyLeft = 37, kKeyUp = 38, kKeyRight = 39, kKeyDown = 40;
}  // namespace

// --- keys and focus -------------------------------------------------------------

void frmDesigner::HtmlCellArrowKeyDown(Strip strip, int key) {
    Guarded("frmDesigner", "HtmlCellArrowKeyDown", [&] {
        const std::int32_t p = SelectedStripPosition(strip);
        if (p == 0) return;
        HtmlTable* table = StripOf(strip).page.Table();
        if (!table) return;
        const int k = p - 1;
        const int n = table->rows(0).CellCount();
        if (key == kKeyLeft && k >= 1 && k <= n - 1) table->rows(0).cells(k - 1)->focus();
        if (key == kKeyRight && k >= 0 && k < n - 1) table->rows(0).cells(k + 1)->focus();
    });
}

void frmDesigner::HtmlActivityCellArrowKeyDown(int key) {
    Guarded("frmDesigner", "HtmlActivityCellArrowKeyDown", [&] {
        std::int32_t p = 0;
        GetSelectedActivity(p);
        const std::int32_t c = mProcess ? mProcess->Activities()->Count() : 0;
        if (c == 0) return;
        HtmlTable* table = StripOf(Strip::Activity).page.Table();
        if (!table) return;
        if (key == kKeyUp && p >= 2 && p <= c) table->rows(3 * (p - 1) - 3).cells(0)->focus();
        if (key == kKeyDown && p >= 1 && p < c) table->rows(3 * (p - 1) + 3).cells(0)->focus();
    });
}

void frmDesigner::StripGotFocus(Strip strip) {
    try {
        for (const Strip other : {Strip::Database, Strip::Datasource, Strip::Activity})
            if (other != strip && TableExists(other)) UnselectStrip(other);
        MarkProcessList(false);
        HtmlTable* table = StripOf(strip).page.Table();
        if (!table) return;
        for (const auto& cell : table->cells())
            if (cell->backgroundColor() == kSelectedColour) return;
        // Tabbing into a strip selects its first item.
        if (table->RowCount() > 0 && table->rows(0).CellCount() > 0) table->rows(0).cells(0)->focus();
    } catch (...) {
    }
}

void frmDesigner::FocusCell(Strip strip, int row, int cell) {
    SetFocusTo(ControlOf(strip));
    HtmlTable* table = StripOf(strip).page.Table();
    if (!table) RaiseStandardError(vberr::ObjectRequired);
    table->rows(row).cells(cell)->focus();
}

// --- the canvases' events ---------------------------------------------------------

void frmDesigner::OnCellSelected(Strip strip, const std::shared_ptr<HtmlCell>& cell) {
    if (cell == mSelectedCell) return;
    mSelectedCell = cell;
    if (strip == Strip::Database) return OpenPropList(kDatabaseCode);
    if (strip == Strip::Datasource) return OpenPropList(kDatasourceCode);
    StripState& state = StripOf(Strip::Activity);
    Guarded("frmDesigner", "mActivityHtmlDocument_CellSelected", [&] {
        state.page.body.cursor = "wait";
        waitCursor_ = true;
        Notify(changed::Cursor);
        std::int32_t position = 0;
        if (const auto activity = GetSelectedActivity(position)) OpenPropList(ItemTypeCode(activity->Kind()));
    });
    waitCursor_ = false;
    state.page.body.cursor = "default";
    Notify(changed::Cursor);
}

void frmDesigner::OnCellDeleted(Strip strip) {
    switch (strip) {
    case Strip::Database: return DeleteDatabase();
    case Strip::Datasource: return DeleteDatasource();
    case Strip::Activity: return DeleteActivity();
    }
}

void frmDesigner::OnArrow(Strip strip, int key) {
    const bool horizontal = key == kKeyLeft || key == kKeyRight;
    if (strip == Strip::Activity) {
        if (!horizontal) HtmlActivityCellArrowKeyDown(key);
    } else if (horizontal) {
        HtmlCellArrowKeyDown(strip, key);
    }
}

void frmDesigner::StripEvents::CellDeleted() { form_.OnCellDeleted(strip_); }
void frmDesigner::StripEvents::CellSelected(const std::shared_ptr<HtmlCell>& cell) { form_.OnCellSelected(strip_, cell); }
void frmDesigner::StripEvents::CellContextMenu() { form_.CellContextMenu(strip_); }
void frmDesigner::StripEvents::DocumentContextMenu() { form_.DocumentContextMenu(strip_); }
void frmDesigner::StripEvents::CellArrowLeft() { form_.OnArrow(strip_, kKeyLeft); }
void frmDesigner::StripEvents::CellArrowRight() { form_.OnArrow(strip_, kKeyRight); }
void frmDesigner::StripEvents::CellArrowUp() { form_.OnArrow(strip_, kKeyUp); }
void frmDesigner::StripEvents::CellArrowDown() { form_.OnArrow(strip_, kKeyDown); }

}  // namespace flowloom::designer
