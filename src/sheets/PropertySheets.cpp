#include "sheets/PropertySheets.h"

#include "sheets/SheetTables.h"

#include "grid/Properties.h"
#include "model/AddRecord.h"
#include "model/PrintOut.h"
#include "model/SaveAs.h"
#include "model/Databases.h"
#include "model/Datasources.h"
#include "model/Groups.h"
#include "model/Process.h"
#include "model/Processes.h"
#include "model/VisitActivity.h"
#include "support/TextCompare.h"
#include "support/VbStrings.h"

#include <array>
#include <cstdlib>

namespace flowloom::sheets {

namespace {

constexpr int kFirstActivitySheet = 10;
constexpr int kSaveAsSheet = 11;
constexpr int kPrintOutSheet = 12;
constexpr int kAddRecordSheet = 16;
constexpr std::int32_t kListOnDemandRow = 4;  // ObjectName and TableName

// The object lists of a database are read when a list first needs them.
// Without any read yet, the database of the selected activity is inspected
// (an AddRecord's, the only activity that names one); the Datasource sheet
// has normally inspected its own database while it was built.
void EnsureDatabaseObjects(SheetHost& host) {
    if (host.DatabaseObjectsLoaded()) return;
    const auto activity = host.SelectedActivity();
    if (const auto* addRecord = ActivityAs<AddRecord>(activity.get())) host.LoadDatabaseObjects(addRecord->Database());
}

// The kind of object list a datasource of this type draws its name from;
// "" for "Active Object", which names no object of the database.
std::string ObjectListType(const std::string& datasourceType) {
    for (const char* type : {"Form", "Table", "Query"})
        if (EqualsNoCase(datasourceType, type)) return type;
    return {};
}

// The rows of SaveAs and PrintOut depend on the application that produces
// their input document. A SaveAs without an input document keeps the code
// of the sheet shown before.
void RememberApplication(int kind, SheetHost& host) {
    const auto activity = host.SelectedActivity();
    if (kind == kSaveAsSheet) {
        if (const auto* saveAs = ActivityAs<SaveAs>(activity.get()); saveAs && !saveAs->InputDocumentName().empty())
            host.Memory().saveAsApplication = saveAs->InputDocumentKind();
    } else if (kind == kPrintOutSheet) {
        const auto* printOut = ActivityAs<PrintOut>(activity.get());
        host.Memory().printOutApplication = printOut ? printOut->InputDocumentKind() : 0;
    }
}

}  // namespace

bool ValueChanged(const std::string& sheetTag, SheetHost& host, grid::Properties& rows, grid::Property& row,
                  std::string& sNewValue) {
    const int kind = std::atoi(sheetTag.c_str());
    const SheetTable* table = FindSheetTable(kind);
    if (!table || sheetTag != std::to_string(kind)) return true;
    return GuardedOr("frmDesigner", table->changeProcedure, false, [&] {
        SheetEdit edit{host, rows, row, row.Index(), sNewValue, vb::Trim(sNewValue)};
        return table->change(edit);
    });
}

bool IsActivitySheet(int kind) { return kind >= kFirstActivitySheet && kind <= kAddRecordSheet; }

const SheetTable* FindSheetTable(int kind) {
    switch (kind) {
    case kProcessSheet: return &ProcessSheetTable();
    case kDatabaseSheet: return &DatabaseSheetTable();
    case kDatasourceSheet: return &DatasourceSheetTable();
    default: break;
    }
    if (!IsActivitySheet(kind)) return nullptr;
    using Table = const SheetTable& (*)();
    static constexpr std::array<Table, 7> activities = {MailMergeSheetTable, SaveAsSheetTable, PrintOutSheetTable,
                                                        ConvertSheetTable,   SendMailSheetTable, SendFaxSheetTable,
                                                        AddRecordSheetTable};
    return &activities[static_cast<std::size_t>(kind - kFirstActivitySheet)]();
}

std::string SheetKindName(int kind) {
    const SheetTable* table = FindSheetTable(kind);
    return table ? std::string(table->kindName) : std::string();
}

void BuildSheet(int kind, SheetHost& host, grid::Properties& rows) {
    rows.Clear();
    const SheetTable* table = FindSheetTable(kind);
    if (!table) return;
    RememberApplication(kind, host);
    if (IsActivitySheet(kind)) AddRow(rows, {"Description", grid::ExPropText});
    table->addRows(host, rows);
    table->setValues(host, rows, GuardedSteps(table->setProcedure));
}

std::string HelpKey(int kind, const grid::Property& row) { return SheetKindName(kind) + "." + RowTag(row); }

std::string QueryCustomDataText(const grid::Property& row, const SheetHost& host) {
    const std::string tag = RowTag(row);
    if (tag == "FieldValues") return row.value().empty() ? "(None)" : "(Data)";
    if (tag == "Attachments") return row.value().empty() ? "(None)" : "(Attachments)";
    if (tag == "Groups") {
        const auto process = host.CurrentProcess();
        return process && process->Groups()->Count() != 0 ? "(List)" : "(None)";
    }
    return row.value();
}

void NeedData(int kind, const grid::Property& row, SheetHost& host, std::vector<std::string>& items) {
    if (row.Index() != kListOnDemandRow || (kind != kAddRecordSheet && kind != kDatasourceSheet)) return;
    EnsureDatabaseObjects(host);
    std::string type = "Table";
    if (kind == kDatasourceSheet) {
        // The Type row writes the model on every edit, so the member is what
        // the row shows (an empty one shows as "Active Object").
        const auto datasource = host.SelectedDatasource();
        type = datasource ? ObjectListType(datasource->Type_) : std::string();
    }
    if (std::string list; !type.empty() && host.DatabaseObjectList(type, list)) items = SplitList(list);
}

bool ShowsBrowseButton(const grid::Property& row) {
    const std::string tag = RowTag(row);
    return tag == "Attachments" || tag == "FieldValues";
}

std::vector<std::string> GetDatasourceNames(const SheetHost& host) {
    std::vector<std::string> names;
    const auto process = host.CurrentProcess();
    if (!process || !process->Datasources()) return names;
    for (const auto& datasource : *process->Datasources()) names.push_back(datasource->name());
    return names;
}

std::vector<std::string> GetDatabaseList(const SheetHost& host, bool includeCurrent) {
    std::vector<std::string> names;
    if (includeCurrent) names.emplace_back("CurrentDatabase");
    const auto processes = host.CurrentProcesses();
    if (processes && processes->Databases())
        for (const auto& database : *processes->Databases()) names.push_back(database->name);
    return SplitList(vb::Join(names, ";"));
}

}  // namespace flowloom::sheets
