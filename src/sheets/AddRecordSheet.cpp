// The AddRecord sheet (kind 16): which table of which database gets a
// record, and the values of its fields.
#include "sheets/FieldValuesText.h"
#include "sheets/PropertySheets.h"
#include "sheets/SheetTables.h"

#include "grid/Properties.h"
#include "model/AddRecord.h"
#include "model/Database.h"
#include "model/Databases.h"
#include "model/Processes.h"

namespace flowloom::sheets {

namespace {

enum Row : std::int32_t { Description = 1, DatasourceName, Database, TableName, FieldValues };

void AddAddRecordRows(SheetHost& host, grid::Properties& rows) {
    using namespace grid;
    AddRows(rows, {{"DatasourceName", ExPropCustomList},
                   {"Database", ExPropCustomList},
                   {"TableName", ExPropCustomList},
                   {"FieldValues", ExPropMemo}});
    rows.Item(DatasourceName).SetLockedEdit(false);
    rows.Item(DatasourceName).SetListItems(GetDatasourceNames(host));
    // As on the Datasource sheet: the current database is shown, not offered.
    rows.Item(Database).SetListItems(GetDatabaseList(host, false));
    rows.Item(Database).SetValue("CurrentDatabase");
    rows.Item(TableName).SetLockedEdit(false);  // the tables are asked for on drop-down
    rows.Item(FieldValues).SetUseCustomData(true);
}

// An AddRecord without a database takes the file's first one on selection.
void TakeFirstDatabase(const SheetHost& host, AddRecord& activity) {
    if (!activity.Database().empty()) return;
    try {
        const auto processes = host.CurrentProcesses();
        if (processes && processes->Databases() && processes->Databases()->Count() > 0)
            activity.SetDatabase(processes->Databases()->Item(1)->name);
    } catch (...) {
        // Without a database the row shows the current one.
    }
}

void SetFieldValuesRow(SheetHost& host, AddRecord& activity, grid::Property& row) {
    std::vector<std::string> fields;
    if (!activity.Tablename().empty()) fields = host.GetTableFields(activity.Tablename(), activity.Database());
    if (activity.HasFieldValues() && activity.FieldValues()->Count() > 0)
        fields = FieldValueLines(*activity.FieldValues(),
                                 fields.empty() ? std::nullopt : std::optional<std::vector<std::string>>(fields));
    if (!fields.empty()) row.SetValue(JoinLines(fields));
}

void SetAddRecordPropertiesValues(SheetHost& host, grid::Properties& rows, const GuardedSteps& step) {
    const auto activity = SelectedActivityOf<AddRecord>(host);
    if (!activity) return;
    TakeFirstDatabase(host, *activity);
    step([&] {
        SetIfNotEmpty(rows.Item(Database), activity->Database());
        host.LoadDatabaseObjects(activity->Database());
    });
    step([&] { SetIfNotEmpty(rows.Item(TableName), activity->Tablename()); });
    SetActivityDescription(host, rows, step);
    step([&] { SetFieldValuesRow(host, *activity, rows.Item(FieldValues)); });
    step([&] { SetIfNotEmpty(rows.Item(DatasourceName), activity->DatasourceName()); });
}

bool AddRecordChange(SheetEdit& edit) {
    const auto activity = SelectedActivityOf<AddRecord>(edit.host);
    if (!activity) return true;
    const std::string& text = edit.text;
    switch (edit.index) {
    case Description:
        if (text != activity->Description()) ChangeDescription(edit, *activity);
        break;
    case DatasourceName: activity->SetDatasourceName(text); break;
    case Database:
        if (text != activity->Database()) {
            activity->SetDatabase(text);
            edit.host.LoadDatabaseObjects(text);
        }
        break;
    case TableName:
        if (text != activity->Tablename()) {
            // Another table has other fields: the values start again from its field list.
            activity->SetTablename(text);
            activity->SetFieldValues(std::make_shared<flowloom::FieldValues>());
            edit.rows.Item(FieldValues).SetValue(JoinLines(edit.host.GetTableFields(text, activity->Database())));
        }
        break;
    case FieldValues: ParseFieldValues(*activity, text); break;
    default: break;
    }
    return true;
}

}  // namespace

const SheetTable& AddRecordSheetTable() {
    static constexpr SheetTable table{"AddRecord",       "SetAddRecordPropertiesValues", AddAddRecordRows,
                                      SetAddRecordPropertiesValues, "AddRecordChange", AddRecordChange};
    return table;
}

}  // namespace flowloom::sheets
