// Insert, delete, move, copy and paste of databases, datasources and
// activities, and the context menus of the canvases.
#include "designer/FrmDesignerParts.h"

#include "designer/ItemCopies.h"
#include "model/Activities.h"
#include "model/Database.h"
#include "model/Databases.h"
#include "model/Datasource.h"
#include "model/Datasources.h"
#include "model/Process.h"
#include "model/Processes.h"
#include "support/Prompts.h"
#include "support/ReportError.h"

namespace flowloom::designer {

namespace {

constexpr int kYesNoQuestion = msgbox::YesNo | msgbox::Question;

}  // namespace

// --- insert -----------------------------------------------------------------------

int frmDesigner::InsertSlot(Strip strip, int code) {
    StripState& state = StripOf(strip);
    int p = 0;
    if (state.itemsExist) {
        p = static_cast<int>(state.items.size());
        for (int i = 0; i < static_cast<int>(state.items.size()); ++i)
            if (state.items[static_cast<std::size_t>(i)].code == 0) {
                p = i;
                break;
            }
        if (p == static_cast<int>(state.items.size())) state.items.emplace_back();
    } else {
        state.items.assign(1, StripItem{});
        state.itemsExist = true;
    }
    state.items[static_cast<std::size_t>(p)].code = code;
    return p;
}

void frmDesigner::InsertDatabase() {
    Guarded("frmDesigner", "InsertDatabase", [&] {
        const int p = InsertSlot(Strip::Database, kDatabaseCode);
        auto database = std::make_shared<Database>();
        const auto databases = Processes_->Databases();
        if (databases->Count() == 0) database->name = "CurrentDatabase";
        if (p > 0) databases->Add(database, {}, p);
        else databases->Add(database);
        VisualizeDatabases();
        FocusCell(Strip::Database, 0, p);
        mNewProcessChanged = true;
    });
}

void frmDesigner::InsertDatasource() {
    Guarded("frmDesigner", "InsertDatasource", [&] {
        const int p = InsertSlot(Strip::Datasource, kDatasourceCode);
        auto datasource = std::make_shared<Datasource>();
        if (p > 0) mProcess->Datasources()->Add(datasource, {}, p);
        else mProcess->Datasources()->Add(datasource);
        VisualizeDatasources();
        FocusCell(Strip::Datasource, 0, p);
        mNewProcessChanged = true;
    });
}

void frmDesigner::InsertActivity(int code) {
    Guarded("frmDesigner", "InsertActivity", [&] {
        const auto kind = ActivityKindOfItemType(code);
        if (!kind) RaiseStandardError(vberr::InvalidProcedureCall);
        const int p = InsertSlot(Strip::Activity, code);
        const std::shared_ptr<Activity> activity = CreateActivity(*kind);
        activity->SetParentProcess(mProcess);
        if (p > 0) mProcess->Activities()->Add(activity, {}, p);
        else mProcess->Activities()->Add(activity);
        VisualizeActivities();
        FocusCell(Strip::Activity, 3 * p, 0);
        mNewProcessChanged = true;
    });
}

// --- delete -----------------------------------------------------------------------

void frmDesigner::FreeSlot(Strip strip, std::int32_t position) {
    auto& items = StripOf(strip).items;
    if (position >= 1 && position <= static_cast<std::int32_t>(items.size()))
        items[static_cast<std::size_t>(position - 1)] = StripItem{};
}

void frmDesigner::DeleteDatabase() {
    Guarded("frmDesigner", "DeleteDatabase", [&] {
        std::int32_t position = 0;
        const auto database = GetSelectedDatabase(position);
        if (!database) return;
        if (MsgBox("Do you want to delete the Database " + database->name + "?", kYesNoQuestion) != msgbox::Yes) return;
        Processes_->Databases()->Remove(position);
        FreeSlot(Strip::Database, position);
        VisualizeDatabases();
        mNewProcessChanged = true;
        OpenPropList(0);
    });
}

void frmDesigner::DeleteDatasource() {
    Guarded("frmDesigner", "DeleteDatasource", [&] {
        std::int32_t position = 0;
        const auto datasource = GetSelectedDatasource(position);
        if (!datasource) return;
        if (MsgBox("Do you want to delete the Datasource " + datasource->name() + "?", kYesNoQuestion) != msgbox::Yes)
            return;
        datasource->Dispose();
        mProcess->Datasources()->Remove(position);
        FreeSlot(Strip::Datasource, position);
        VisualizeDatasources();
        mNewProcessChanged = true;
        OpenPropList(0);
    });
}

void frmDesigner::DeleteActivity() {
    Guarded("frmDesigner", "DeleteActivity", [&] {
        std::int32_t position = 0;
        const auto activity = GetSelectedActivity(position);
        if (!activity) return;
        if (MsgBox("Do you want to delete the " + activity->ActivityType() + "?", kYesNoQuestion) != msgbox::Yes) return;
        mProcess->Activities()->Remove(position);
        FreeSlot(Strip::Activity, position);
        VisualizeActivities();
        mNewProcessChanged = true;
        OpenPropList(0);
    });
}

// --- move ---------------------------------------------------------------------------

void frmDesigner::DatabaseMoveForward() {
    Guarded("frmDesigner", "DatabaseMoveForward", [&] {
        std::int32_t p = 0;
        const auto database = GetSelectedDatabase(p);
        if (!database) return;
        // Added back after the place before it, which is where it was: only
        // the selection moves.
        Processes_->Databases()->Remove(p);
        Processes_->Databases()->Add(database, {}, p - 1);
        VisualizeDatabases();
        FocusCell(Strip::Database, 0, p - 2);
    });
}

void frmDesigner::DatabaseMoveBack() {
    Guarded("frmDesigner", "DatabaseMoveBack", [&] {
        std::int32_t p = 0;
        const auto database = GetSelectedDatabase(p);
        if (!database) return;
        Processes_->Databases()->Remove(p);
        Processes_->Databases()->Add(database, {}, p);
        VisualizeDatabases();
        FocusCell(Strip::Database, 0, p);
    });
}

void frmDesigner::DatasourceMoveForward() {
    Guarded("frmDesigner", "DatasourceMoveForward", [&] {
        std::int32_t p = 0;
        const auto datasource = GetSelectedDatasource(p);
        if (!datasource || !mProcess) return;
        mProcess->Datasources()->Remove(p);
        mProcess->Datasources()->Add(datasource, p - 1);
        VisualizeDatasources();
        FocusCell(Strip::Datasource, 0, p - 2);
    });
}

void frmDesigner::DatasourceMoveBack() {
    Guarded("frmDesigner", "DatasourceMoveBack", [&] {
        std::int32_t p = 0;
        const auto datasource = GetSelectedDatasource(p);
        if (!datasource || !mProcess) return;
        mProcess->Datasources()->Remove(p);
        mProcess->Datasources()->Add(datasource, {}, p);
        VisualizeDatasources();
        FocusCell(Strip::Datasource, 0, p);
    });
}

void frmDesigner::ActivityMoveForward() {
    Guarded("frmDesigner", "ActivityMoveForward", [&] {
        std::int32_t p = 0;
        const auto activity = GetSelectedActivity(p);
        if (!activity) return;
        mProcess->Activities()->Remove(p);
        mProcess->Activities()->Add(activity, p - 1);
        VisualizeActivities();
        FocusCell(Strip::Activity, 3 * (p - 1) - 3, 0);
    });
}

void frmDesigner::ActivityMoveBack() {
    Guarded("frmDesigner", "ActivityMoveBack", [&] {
        std::int32_t p = 0;
        const auto activity = GetSelectedActivity(p);
        if (!activity) return;
        mProcess->Activities()->Remove(p);
        mProcess->Activities()->Add(activity, {}, p);
        VisualizeActivities();
        FocusCell(Strip::Activity, 3 * (p - 1) + 3, 0);
    });
}

// --- copy and paste --------------------------------------------------------------------

void frmDesigner::CopyDatasourceToClipboard() {
    Guarded("frmDesigner", "mnuProcessDatasourceCopy_Click", [&] {
        std::int32_t p = 0;
        if (const auto datasource = GetSelectedDatasource(p)) mClipboard.Set(CopyDatasource(*datasource, true));
    });
}

void frmDesigner::CopyActivityToClipboard() {
    Guarded("frmDesigner", "mnuProcessActivityCopy_Click", [&] {
        std::int32_t p = 0;
        const auto activity = GetSelectedActivity(p);
        if (!activity) return;
        auto copy = CopyActivity(*activity, true);
        copy->SetParentProcess(mProcess);
        mClipboard.Set(std::move(copy));
    });
}

void frmDesigner::PasteDatasource(const char* procedure) {
    Guarded("frmDesigner", procedure, [&] {
        const auto* datasource = std::get_if<std::shared_ptr<Datasource>>(&mClipboard.Get());
        if (!datasource) RaiseStandardError(vberr::TypeMismatch);
        // The clipboard keeps its copy: a second paste offers the same object again.
        mProcess->Datasources()->Add(*datasource);
        ShowProcess();
    });
}

void frmDesigner::PasteActivity(const char* procedure) {
    Guarded("frmDesigner", procedure, [&] {
        const auto* activity = std::get_if<std::shared_ptr<Activity>>(&mClipboard.Get());
        if (!activity) RaiseStandardError(vberr::TypeMismatch);
        mProcess->Activities()->Add(*activity);
        ShowProcess();
    });
}

}  // namespace flowloom::designer
