// The grid on the right: which sheet it shows, its help text, the browse
// button, and what the sheets ask of the window.
#include "designer/FrmDesignerParts.h"

#include "app/CXmlMessages.h"
#include "grid/Properties.h"
#include "grid/Property.h"
#include "model/Database.h"
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

void frmDesigner::ValueChanged(grid::Property&, std::string&, bool& Cancel) {
    // Edits reach the model once the sheets handle them; until then a row
    // keeps the value the model has rather than show one it does not.
    Cancel = true;
}

void frmDesigner::KeyDownEdit(int&, int) {}

void frmDesigner::Browse(grid::Property&, std::string&) {
    MsgBox("Not ready ...", msgbox::Information);
}

void frmDesigner::cmdBrowse_Click() {
    BeginAction();
    MsgBox("Not ready ...", msgbox::Information);
}

// --- what the sheets ask ------------------------------------------------------------

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
    // Reading the objects of an Access file comes with the database browser;
    // the location is remembered so that it is not inspected twice in a row.
    mAccessObjectsLocation = database->Location;
}

bool frmDesigner::DatabaseObjectList(const std::string&, std::string&) const { return false; }

}  // namespace flowloom::designer
