// The Process sheet (kind 1): the settings of the process on show.
#include "sheets/FieldValuesText.h"
#include "sheets/PropertySheets.h"
#include "sheets/SheetTables.h"

#include "grid/Properties.h"
#include "model/Groups.h"
#include "model/Process.h"
#include "support/Prompts.h"

namespace flowloom::sheets {

namespace {

enum Row : std::int32_t {
    Name = 1,
    ProcessRecords,
    MainDatasourceName,
    AbortOnError,
    OnErrorNotifyUser,
    Groups,
    FieldValues,
    LogDatasourceName,
};

void AddProcessRows(SheetHost& host, grid::Properties& rows) {
    using namespace grid;
    AddRows(rows, {{"Name", ExPropText},
                   {"ProcessRecords", ExPropCustomList},
                   {"MainDatasourceName", ExPropCustomList},
                   {"AbortOnError", ExPropBoolean},
                   {"OnErrorNotifyUser", ExPropBoolean},
                   {"Groups", ExPropBrowse},
                   {"FieldValues", ExPropMemo},
                   {"LogDatasourceName", ExPropCustomList}});
    SetFixedList(rows.Item(ProcessRecords), {"0 - Current Record", "1 - All Records"});
    // Datasource names are offered, but a name still to be added can be typed.
    for (const Row row : {MainDatasourceName, LogDatasourceName}) {
        rows.Item(row).SetLockedEdit(false);
        rows.Item(row).SetListItems(GetDatasourceNames(host));
    }
    rows.Item(Groups).SetUseCustomData(true);
    rows.Item(FieldValues).SetUseCustomData(true);
}

void SetFieldValues(const SheetHost& host, const Process& process, grid::Property& row) {
    if (!process.HasFieldValues() || process.FieldValues()->Count() == 0) return;
    const auto lines = FieldValueLines(*process.FieldValues(), KeptFieldList(host.LastFieldList(), process));
    if (!lines.empty()) row.SetValue(JoinLines(lines));
}

void SetProcessPropertiesValues(SheetHost& host, grid::Properties& rows, const GuardedSteps& step) {
    const auto process = host.CurrentProcess();
    if (!process) return;
    step([&] { SetIfNotEmpty(rows.Item(Name), process->name()); });
    step([&] {
        // Any mode other than the current record shows as all records.
        grid::Property& row = rows.Item(ProcessRecords);
        ShowListItem(row, process->ProcessRecords() != 0 ? 1 : 0);
    });
    step([&] { SetIfNotEmpty(rows.Item(MainDatasourceName), process->MainDataSourceName()); });
    step([&] { rows.Item(AbortOnError).SetValue(BoolText(process->AbortOnError())); });
    step([&] { rows.Item(OnErrorNotifyUser).SetValue(BoolText(process->OnErrorNotifyUser())); });
    step([&] { rows.Item(Groups).SetValue(process->Groups()->Count() == 0 ? "(None)" : "(List)"); });
    step([&] { SetFieldValues(host, *process, rows.Item(FieldValues)); });
    step([&] { SetIfNotEmpty(rows.Item(LogDatasourceName), process->LogDatasourceName()); });
}

// Only an exact difference renames. The model takes the name before the
// window checks it, so a new process refused for a taken name still carries
// it; members of the file are not checked against each other at all.
bool Rename(SheetEdit& edit, Process& process) {
    if (edit.sNewValue == process.name()) return true;
    if (edit.sNewValue.empty()) {
        edit.host.ShowMessage("Incorrect name of Process.", msgbox::Exclamation);
        edit.sNewValue = process.name();
        return false;
    }
    process.SetName(edit.sNewValue);
    return edit.host.ProcessRenamed(edit.sNewValue);
}

// The process's own text is taken as typed, blanks and all.
bool ProcessChange(SheetEdit& edit) {
    const auto process = edit.host.CurrentProcess();
    if (!process) return true;
    const std::string& text = edit.sNewValue;
    switch (edit.index) {
    case Name: return Rename(edit, *process);
    case ProcessRecords: process->SetProcessRecords(text == ListItemAt(edit.row, 0) ? 0 : 1); break;
    case MainDatasourceName: process->SetMainDataSourceName(text); break;
    case AbortOnError: process->SetAbortOnError(TextAsBool(text)); break;
    case OnErrorNotifyUser: process->SetOnErrorNotifyUser(TextAsBool(text)); break;
    case FieldValues: ParseFieldValues(*process, text); break;
    case LogDatasourceName: process->SetLogDatasourceName(text); break;
    default: break;  // the groups change through their dialog only
    }
    return true;
}

}  // namespace

const SheetTable& ProcessSheetTable() {
    static constexpr SheetTable table{"Process",       "SetProcessPropertiesValues", AddProcessRows,
                                      SetProcessPropertiesValues, "ProcessChange", ProcessChange};
    return table;
}

}  // namespace flowloom::sheets
