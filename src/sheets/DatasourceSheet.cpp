// The Datasource sheet (kind 8): where the records of a process come from.
#include "sheets/PropertySheets.h"
#include "sheets/SheetTables.h"

#include "grid/Properties.h"
#include "model/Datasource.h"
#include "support/TextCompare.h"
#include "support/VbStrings.h"

namespace flowloom::sheets {

namespace {

enum Row : std::int32_t { Name = 1, Database, Type, ObjectName, SubformFullName };

void AddDatasourceRows(SheetHost& host, grid::Properties& rows) {
    using namespace grid;
    AddRows(rows, {{"Name", ExPropText},
                   {"Database", ExPropCustomList},
                   {"Type", ExPropCustomList},
                   {"ObjectName", ExPropCustomList},
                   // The model's member is SubFormFullName; the key keeps the file's spelling.
                   {"SubformFullName", ExPropText}});
    // The list leaves out the current database, yet that is what an empty member means.
    rows.Item(Database).SetListItems(GetDatabaseList(host, false));
    rows.Item(Database).SetValue("CurrentDatabase");
    SetFixedList(rows.Item(Type), {"Active Object", "Form", "Table", "Query"});
    // No list: the object names are asked for when the row drops down.
    rows.Item(ObjectName).SetLockedEdit(false);
}

void SetDatasourcePropertiesValues(SheetHost& host, grid::Properties& rows, const GuardedSteps& step) {
    const auto datasource = host.SelectedDatasource();
    if (!datasource) return;
    step([&] {
        if (!datasource->name().empty()) rows.Item(Name).SetValue(vb::Trim(datasource->name()));
    });
    if (!datasource->Database.empty()) {
        step([&] { rows.Item(Database).SetValue(datasource->Database); });
        // The object names are ready when the ObjectName row drops down.
        step([&] { host.LoadDatabaseObjects(datasource->Database); });
    }
    step([&] { SetIfNotEmpty(rows.Item(Type), datasource->Type_); });
    step([&] { SetIfNotEmpty(rows.Item(ObjectName), datasource->ObjectName); });
    step([&] { SetIfNotEmpty(rows.Item(SubformFullName), datasource->SubFormFullName); });
}

bool DatasourceChange(SheetEdit& edit) {
    const auto datasource = edit.host.SelectedDatasource();
    if (!datasource) return true;
    const std::string& text = edit.text;
    switch (edit.index) {
    case Name:
        if (!EqualsNoCase(text, datasource->name())) {
            datasource->SetName(text);
            edit.host.SetSelectedCellCaption(CaptionStrip::Datasource, text);
        }
        break;
    case Database:
        datasource->Database = text;
        edit.host.LoadDatabaseObjects(text);
        break;
    case Type:
        // Another type names another kind of object: the name on show goes,
        // while the model keeps it until the name is edited.
        if (text != datasource->Type_) {
            datasource->Type_ = text;
            edit.rows.Item(ObjectName).SetValue({});
        }
        break;
    case ObjectName: datasource->ObjectName = text; break;
    case SubformFullName: datasource->SubFormFullName = text; break;
    default: break;
    }
    return true;
}

}  // namespace

const SheetTable& DatasourceSheetTable() {
    static constexpr SheetTable table{"Datasource",       "SetDatasourcePropertiesValues", AddDatasourceRows,
                                      SetDatasourcePropertiesValues, "DatasourceChange", DatasourceChange};
    return table;
}

}  // namespace flowloom::sheets
