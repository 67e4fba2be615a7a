// The Database sheet (kind 6): a database the processes file knows.
#include "sheets/SheetTables.h"

#include "grid/Properties.h"
#include "model/Database.h"
#include "support/VbStrings.h"

namespace flowloom::sheets {

namespace {

enum Row : std::int32_t { Name = 1, Type, Location };

void AddDatabaseRows(SheetHost&, grid::Properties& rows) {
    using namespace grid;
    AddRows(rows, {{"Name", ExPropText}, {"Type", ExPropCustomList}, {"Location", ExPropFile}});
    SetFixedList(rows.Item(Type), {"Microsoft Access"});
    rows.Item(Location).SetLockedEdit(false);
}

void SetDatabasePropertiesValues(SheetHost& host, grid::Properties& rows, const GuardedSteps& step) {
    const auto database = host.SelectedDatabase();
    if (!database) return;
    step([&] {
        if (!database->name.empty()) rows.Item(Name).SetValue(vb::Trim(database->name));
    });
    step([&] {
        // A database without a type takes the one on show merely by being
        // selected, so that the file names the type from then on.
        grid::Property& row = rows.Item(Type);
        if (database->Type_.empty()) database->Type_ = row.value();
        else row.SetValue(database->Type_);
    });
    step([&] { SetIfNotEmpty(rows.Item(Location), database->Location); });
}

bool DatabaseChange(SheetEdit& edit) {
    const auto database = edit.host.SelectedDatabase();
    if (!database) return true;
    switch (edit.index) {
    case Name:
        database->name = edit.text;
        edit.host.SetSelectedCellCaption(CaptionStrip::Database, edit.text);
        break;
    case Type: database->Type_ = edit.text; break;
    case Location: database->Location = edit.text; break;
    default: break;
    }
    return true;
}

}  // namespace

const SheetTable& DatabaseSheetTable() {
    static constexpr SheetTable table{"Database",       "SetDatabasePropertiesValues", AddDatabaseRows,
                                      SetDatabasePropertiesValues, "DatabaseChange", DatabaseChange};
    return table;
}

}  // namespace flowloom::sheets
