// The grid on the right: which sheet it shows, its help text, the browse
// button, and what the sheets ask of the window.
#include "designer/FrmDesignerParts.h"

#include "app/CXmlMessages.h"
#include "designer/access/AccessObjects.h"
#include "grid/Properties.h"
#include "grid/Property.h"
#include "model/Database.h"
#include "model/Process.h"
#include "model/Processes.h"
#include "sheets/PropertySheets.h"
#include "support/FileHelpers.h"
#include "support/Prompts.h"
#include "support/ReportError.h"
#include "support/TextCompare.h"

#include <cstdlib>

namespace flowloom::designer {

namespace {

int KindOf(const std::string& tag) { return std::atoi(tag.c_str()); }

}  // namespace

void frmDesigner::OpenPropList(int kind) {
    // Nothing paints while the rows are added; the hold ends also after a failure.
    grid_.SetHoldDraw(true);
    Guarded("frmDesigner", "OpenPropList", [&] {
        sheets::BuildSheet(kind, *this, grid_.Rows());
        propListTag_ = std::to_string(kind);
        propInfo_.clear();
    });
    grid_.SetHoldDraw(false);
    Notify(changed::Sheet | changed::Info);
    try {
        PlaceBrowseButton();
    } catch (...) {
    }
}

void frmDesigner::ShowPropertyHelp() {
    if (messagesLoaded_) {
        if (const grid::Property* row = grid_.SelectedItem()) {
            propInfo_ = Messages().GetMessage(sheets::HelpKey(KindOf(propListTag_), *row));
            Notify(changed::Info);
        }
    }
    PlaceBrowseButton();
}

void frmDesigner::PlaceBrowseButton() {
    const grid::Property* row = grid_.SelectedItem();
    int right = 0, top = 0;
    const bool show = row && sheets::ShowsBrowseButton(*row) && grid_.RowRect(*row, right, top);
    if (show) {
        layout_.cmdBrowse.Left = layout_.PropList.Left + right * layout_.twipsPerPixelX - layout_.cmdBrowse.Width - 180;
        layout_.cmdBrowse.Top = layout_.PropList.Top + top * layout_.twipsPerPixelY + 30;
    }
    if (show || layout_.cmdBrowseVisible) {
        layout_.cmdBrowseVisible = show;
        Notify(changed::BrowseButton);
    }
}

void frmDesigner::PropList_Click() {
    Guarded("frmDesigner", "PropList_Click", [&] { ShowPropertyHelp(); });
}

void frmDesigner::SelChange(grid::Property*, grid::Property*) {
    Guarded("frmDesigner", "PropList_SelChange", [&] { ShowPropertyHelp(); });
}

void frmDesigner::QueryCustomData(grid::Property& iProp, std::string& sDisplayValue) {
    Guarded("frmDesigner", "PropList_QueryCustomData",
            [&] { sDisplayValue = sheets::QueryCustomDataText(iProp, *this); });
}

std::string frmDesigner::CustomDataText(grid::Property& row) {
    std::string shown = row.value();
    QueryCustomData(row, shown);
    return shown;
}

void frmDesigner::NeedData(grid::Property& iProp, std::vector<std::string>& sListItems) {
    Guarded("frmDesigner", "PropList_NeedData",
            [&] { sheets::NeedData(KindOf(propListTag_), iProp, *this, sListItems); });
}

void frmDesigner::ValueChanged(grid::Property& iProp, std::string& sNewValue, bool& Cancel) {
    // Any edit marks the process changed, a refused one as well.
    mNewProcessChanged = true;
    Guarded("frmDesigner", "PropList_ValueChanged",
            [&] { Cancel = !sheets::ValueChanged(propListTag_, *this, grid_.Rows(), iProp, sNewValue); });
    mNewProcessChanged = true;
}

void frmDesigner::KeyDownEdit(int& KeyCode, int) {
    Guarded("frmDesigner", "PropList_KeyDownEdit",
            [&] { sheets::KeyDownEdit(KindOf(propListTag_), KeyCode, *this, grid_.SelectedItem()); });
}

// --- what the sheets ask ------------------------------------------------------------

int frmDesigner::ShowMessage(const std::string& prompt, int style) { return MsgBox(prompt, style); }

void frmDesigner::SetSelectedCellCaption(sheets::CaptionStrip which, const std::string& caption) {
    const Strip strip = which == sheets::CaptionStrip::Database     ? Strip::Database
                        : which == sheets::CaptionStrip::Datasource ? Strip::Datasource
                                                                    : Strip::Activity;
    StripState& state = StripOf(strip);
    const std::int32_t position = SelectedStripPosition(strip);
    HtmlTable* table = state.page.getElementById(state.tableId);
    if (position < 1 || !table) return;
    // Names stand in the second row of a strip; an activity's caption under its picture.
    const int row = strip == Strip::Activity ? (position - 1) * 3 + 1 : 1;
    const int cell = strip == Strip::Activity ? 0 : position - 1;
    table->rows(row).cells(cell)->setInnerHTML(caption);
    std::int32_t live = 0;
    for (StripItem& item : state.items)
        if (item.code > 0 && ++live == position) item.name = caption;
}

void frmDesigner::SelectRow(grid::Property& row) {
    grid_.SelectRow(row);
    // The help box follows the selection, which the grid does not report.
    ShowPropertyHelp();
}

bool frmDesigner::ProcessRenamed(std::string& sNewValue) {
    const int index = list_.ListIndex();
    if (index >= 0 && list_.List(index) == kNewProcessEntry) {
        // A new process joins the file under its name, unless that is taken.
        if (Processes_->Contains(sNewValue)) {
            MsgBox("Process " + sNewValue + " already exists. Please give another name.", msgbox::Exclamation);
            sNewValue.clear();
            return false;
        }
        AddProcess(sNewValue, true);
        return true;
    }
    // The list shows the new name and keeps its selection; the process on
    // show stays, and so does the sheet being edited.
    mIgnoreProcessClick = true;
    list_.Clear();
    list_.AddItem(kNewProcessEntry);
    for (const auto& process : *Processes_) list_.AddItem(process->name());
    list_.SetListIndex(index);
    mIgnoreProcessClick = false;
    return true;
}

std::vector<std::string> frmDesigner::GetTableFields(const std::string& tableName, const std::string& databaseName) {
    if (!Processes_) return {};
    const auto database = Processes_->GetDatabaseByName(databaseName);
    return access::GetTableFields(tableName, database.get());
}

std::shared_ptr<Database> frmDesigner::SelectedDatabase() const {
    std::int32_t position = 0;
    return GetSelectedDatabase(position);
}

std::shared_ptr<Datasource> frmDesigner::SelectedDatasource() const {
    std::int32_t position = 0;
    return GetSelectedDatasource(position);
}

std::shared_ptr<Activity> frmDesigner::SelectedActivity() const {
    std::int32_t position = 0;
    return GetSelectedActivity(position);
}

void frmDesigner::LoadDatabaseObjects(const std::string& databaseName) {
    const auto database = Processes_ ? Processes_->GetDatabaseByName(databaseName) : nullptr;
    if (!database || EqualsNoCase(database->Location, mAccessObjectsLocation)) return;
    if (!FileExists(database->Location)) return;
    // The same file is not read twice in a row; a file that cannot be read
    // leaves empty lists, and the rows then simply offer nothing.
    mAccessObjects = std::make_unique<access::CAccessObjects>();
    std::string workgroup;
    mAccessObjects->GetObjects(database->Location, workgroup, "", "", "");
    mAccessObjectsLocation = database->Location;
}

bool frmDesigner::DatabaseObjectList(const std::string& type, std::string& list) const {
    if (!mAccessObjects) return false;
    // An empty list is error 5 here, and reaches the handler that asked.
    if (type == "Form") list = mAccessObjects->FormList();
    else if (type == "Table") list = mAccessObjects->TableList();
    else if (type == "Query") list = mAccessObjects->QueryList();
    else list.clear();
    return true;
}

}  // namespace flowloom::designer
