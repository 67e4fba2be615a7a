// The three canvases: building their tables from the model, the selection
// by colour, and the events of their cells.
#include "designer/FrmDesignerParts.h"

#include "designer/Resources.h"
#include "app/Common.h"
#include "model/Activities.h"
#include "model/Database.h"
#include "model/Databases.h"
#include "model/Datasource.h"
#include "model/Datasources.h"
#include "model/Process.h"
#include "model/Processes.h"
#include "support/AppPaths.h"
#include "support/ReportError.h"
#include "support/TextCompare.h"
#include "support/VbStrings.h"

#include <filesystem>
#include <set>

namespace flowloom::designer {

namespace fs = std::filesystem;

namespace {

// The picture of a cell, written from the program's resources on first use;
// "" when it cannot be had.
std::string GetPictureHtml(const std::string& name, const std::string& extension) {
    static std::set<std::string> known;  // files found or written already
    try {
        static const fs::path folder = WritableProgramSubfolder("icons");
        const fs::path file = folder / (name + extension);
        if (!known.count(file.string())) {
            std::error_code ec;
            if (!fs::exists(file, ec)) {
                fs::create_directories(file.parent_path(), ec);
                if (!fs::is_directory(file.parent_path(), ec)) return {};
                if (!ExtractResourceFile(file.string(), ToUpper(name), "FILES")) return {};
            }
            known.insert(file.string());
        }
        return "<img src=\"" + file.string() + "\">";
    } catch (...) {
        return {};
    }
}

void EmptyRow(HtmlRow& row) {
    while (row.CellCount() > 0) row.deleteCell();
}

}  // namespace

std::string ItemTypeName(int code, bool withSpaces) {
    std::string name;
    switch (code) {
    case kProcessCode: name = "Process"; break;
    case kDatabaseCode: name = "Database"; break;
    case kDatasourceCode: name = "Datasource"; break;
    default:
        if (const auto kind = ActivityKindOfItemType(code)) name = std::string(ActivityTypeName(*kind));
    }
    return withSpaces && !name.empty() ? SpacedName(name) : name;
}

frmDesigner::StripState::StripState(Strip which)
    : strip(which),
      tableId(which == Strip::Database ? "DatabaseTable" : which == Strip::Datasource ? "DatasourceTable" : "ActivityTable"),
      page(ControlName(ControlOf(which))) {}

frmDesigner::StripState& frmDesigner::StripOf(Strip strip) noexcept { return *strips_[static_cast<int>(strip)]; }
const frmDesigner::StripState& frmDesigner::StripOf(Strip strip) const noexcept {
    return *strips_[static_cast<int>(strip)];
}

// --- building -----------------------------------------------------------------

void frmDesigner::InitWebBrowserControl(Strip strip) {
    Guarded("frmDesigner", "InitWebBrowserControl", [&] { StripOf(strip).page.body.Scroll = "auto"; });
}

void frmDesigner::TuneWebBrowserControl(Strip strip) {
    StripState& state = StripOf(strip);
    if (state.tuned) return;
    HtmlPage::Body& body = state.page.body;
    body.topMargin = 0;
    body.leftMargin = 2;
    body.rightMargin = 2;
    body.bottomMargin = 0;
    body.Scroll = "auto";
    body.wordWrap = "break-word";
    body.fontFamily = "Tahoma";
    body.fontSize = "8pt";
    HtmlTable& table = state.page.CreateTable();
    table.cellSpacing = 0;
    table.Id = state.tableId;
    if (strip == Strip::Activity) {
        table.width = "100%";
    } else {
        table.insertRow().Align = "center";  // icons
        table.insertRow().Align = "center";  // names
    }
    state.tuned = true;
}

void frmDesigner::VisualizeDatabases() {
    Guarded("frmDesigner", "VisualizeDatabases", [&] { VisualizeStrip(Strip::Database); });
}

void frmDesigner::VisualizeDatasources() {
    Guarded("frmDesigner", "VisualizeDatasources", [&] { VisualizeStrip(Strip::Datasource); });
}

void frmDesigner::VisualizeStrip(Strip strip) {
    StripState& state = StripOf(strip);
    state.document = std::make_shared<CHTMLDocument>(*state.events);
    TuneWebBrowserControl(strip);
    state.document->SetDocument(&state.page);

    std::vector<StripItem> items;
    if (strip == Strip::Database) {
        for (const auto& database : *Processes_->Databases()) items.push_back({kDatabaseCode, vb::Trim(database->name)});
    } else if (mProcess) {
        for (const auto& datasource : *mProcess->Datasources())
            items.push_back({kDatasourceCode, vb::Trim(datasource->name())});
    }
    // An empty collection leaves the table as it was, free slots and all.
    if (!items.empty()) {
        state.items = std::move(items);
        state.itemsExist = true;
    }
    if (!state.itemsExist && !state.tuned) return;
    HtmlTable* table = state.page.getElementById(state.tableId);
    if (!table) return;
    EmptyRow(table->rows(0));
    EmptyRow(table->rows(1));
    if (!state.itemsExist) return;
    state.document->SetTable(table);
    const std::string picture = GetPictureHtml(strip == Strip::Database ? "Database" : "Datasource", ".ico");
    for (const StripItem& item : state.items) {
        if (item.code <= 0) continue;
        HtmlCell& icon = table->rows(0).insertCell();
        icon.innerHTML = picture;
        state.document->CellAdd(table->rows(0).cells(table->rows(0).CellCount() - 1));
        HtmlCell& name = table->rows(1).insertCell();
        name.innerHTML = item.name;
        name.Width = "60";
        name.noWrap = true;
        state.document->CellAdd(table->rows(1).cells(table->rows(1).CellCount() - 1));
    }
}

void frmDesigner::VisualizeActivities() {
    Guarded("frmDesigner", "VisualizeActivities", [&] {
        StripState& state = StripOf(Strip::Activity);
        state.document = std::make_shared<CHTMLDocument>(*state.events);
        TuneWebBrowserControl(Strip::Activity);
        state.document->SetDocument(&state.page);
        if (mProcess && mProcess->Activities()->Count() > 0) {
            state.items.clear();
            for (const auto& activity : *mProcess->Activities()) state.items.push_back({ItemTypeCode(activity->Kind()), {}});
            state.itemsExist = true;
        }
        if (!state.itemsExist && !state.tuned) return;
        HtmlTable* table = state.page.getElementById(state.tableId);
        if (!table) return;
        while (table->RowCount() > 0) table->deleteRow();
        if (!state.itemsExist) return;
        state.document->SetTable(table);
        BuildActivityRows(state, *table);
    });
}

void frmDesigner::BuildActivityRows(StripState& state, HtmlTable& table) {
    const auto& items = state.items;
    const auto addCell = [&](HtmlRow& row) -> HtmlCell& {
        HtmlCell& cell = row.insertCell();
        return cell;
    };
    const auto wrap = [&](HtmlRow& row) { state.document->CellAdd(row.cells(row.CellCount() - 1)); };
    const int top = static_cast<int>(items.size()) - 1;
    int live = 0;  // activities met so far, for the captions
    for (int i = 0; i <= 2 * top + 1; ++i) {
        const int k = i / 2;
        if (i % 2 == 1) {
            if (k + 1 > top) continue;
            HtmlRow& row = table.insertRow();
            row.Align = "center";
            row.Height = "8";
            HtmlCell& cell = addCell(row);
            cell.Width = "100%";
            if (items[k].code != 0 && items[k + 1].code != 0) {
                cell.innerHTML = GetPictureHtml("ArrowDown", ".ico");
                cell.Height = "10";
            }
            wrap(row);
            continue;
        }
        HtmlRow& row = table.insertRow();
        row.Align = "center";
        row.Height = "36";
        HtmlCell& icon = addCell(row);
        icon.Width = "100%";
        if (items[k].code < 1) {
            HtmlRow& extra = table.insertRow();
            addCell(extra);
            wrap(extra);
            continue;
        }
        ++live;
        icon.innerHTML = GetPictureHtml(ItemTypeName(items[k].code, false), ".ico");
        wrap(row);
        HtmlRow& captionRow = table.insertRow();
        captionRow.Align = "center";
        HtmlCell& caption = addCell(captionRow);
        const auto activity = mProcess->Activities()->Item(live);
        const std::string description = activity ? activity->Description() : std::string();
        caption.innerHTML = description.empty() ? ItemTypeName(items[k].code, true) : description;
        wrap(captionRow);
    }
}

// --- selection ----------------------------------------------------------------

bool frmDesigner::TableExists(Strip strip) const { return StripOf(strip).tuned; }

void frmDesigner::UnselectStrip(Strip strip) {
    Guarded("frmDesigner", strip == Strip::Database     ? "UnselectDatabase"
                           : strip == Strip::Datasource ? "UnselectDatasource"
                                                        : "UnselectActivity",
            [&] {
                if (HtmlTable* table = StripOf(strip).page.Table())
                    for (const auto& cell : table->cells()) cell->setBackgroundColor(kUnselectedColour);
            });
}

std::int32_t frmDesigner::SelectedStripPosition(Strip strip) const {
    const StripState& state = StripOf(strip);
    const HtmlTable* table = state.page.getElementById(state.tableId);
    if (!table || !state.itemsExist) return 0;
    int selected = -1;  // the row of a flow, the column of a strip
    if (strip == Strip::Activity) {
        for (int r = 0; r < table->RowCount() && selected < 0; ++r)
            if (table->rows(r).CellCount() > 0 && table->rows(r).cells(0)->backgroundColor() == kSelectedColour)
                selected = r / 3;
    } else if (table->RowCount() > 0) {
        const HtmlRow& icons = table->rows(0);
        for (int c = 0; c < icons.CellCount() && selected < 0; ++c)
            if (icons.cells(c)->backgroundColor() == kSelectedColour) selected = c;
    }
    if (selected < 0) return 0;
    std::int32_t position = 0;
    for (int i = 0; i < static_cast<int>(state.items.size()) && i <= selected; ++i)
        if (state.items[static_cast<std::size_t>(i)].code > 0) ++position;
    return selected < static_cast<int>(state.items.size()) ? position : 0;
}

std::shared_ptr<Database> frmDesigner::GetSelectedDatabase(std::int32_t& position) const {
    return GuardedOr("frmDesigner", "GetSelectedDatabase", std::shared_ptr<Database>(), [&] {
        position = SelectedStripPosition(Strip::Database);
        return position > 0 ? Processes_->Databases()->Item(position) : nullptr;
    });
}

std::shared_ptr<Datasource> frmDesigner::GetSelectedDatasource(std::int32_t& position) const {
    return GuardedOr("frmDesigner", "GetSelectedDatasource", std::shared_ptr<Datasource>(), [&] {
        position = SelectedStripPosition(Strip::Datasource);
        return position > 0 && mProcess ? mProcess->Datasources()->Item(position) : nullptr;
    });
}

std::shared_ptr<Activity> frmDesigner::GetSelectedActivity(std::int32_t& position) const {
    return GuardedOr("frmDesigner", "GetSelectedActivity", std::shared_ptr<Activity>(), [&] {
        position = SelectedStripPosition(Strip::Activity);
        return position > 0 && mProcess ? mProcess->Activities()->Item(position) : nullptr;
    });
}

}  // namespace flowloom::designer
