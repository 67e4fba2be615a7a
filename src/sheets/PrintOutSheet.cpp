// The PrintOut sheet (kind 12): the print arguments of Word or Excel,
// whichever produced the input document; other documents have none.
#include "sheets/SheetTables.h"

#include "grid/Properties.h"
#include "model/Process.h"
#include "model/PrintOut.h"
#include "support/Printers.h"
#include "support/TextCompare.h"
#include "support/VbStrings.h"

#include <algorithm>
#include <span>

namespace flowloom::sheets {

namespace {

enum Row : std::int32_t { Description = 1, InputDocumentName, Printer };

constexpr std::int32_t kFirstApplicationRow = 4;

// One print argument row: key, type, the argument, and for a list its
// entries (a choice stores its position).
struct PrintRow {
    const char* key;
    int type;
    PrintOutArg arg;
    std::vector<std::string> items = {};
};

const std::vector<PrintRow>& WordRows() {
    using namespace grid;
    static const std::vector<PrintRow> rows = {
        {"Background", ExPropBoolean, PrintOutArg::Background},
        {"Append", ExPropBoolean, PrintOutArg::Append},
        {"Range", ExPropCustomList, PrintOutArg::Range,
         {"0 - wdPrintAllDocument", "1 - wdPrintSelection", "2 - wdPrintCurrentPage", "3 - wdPrintFromTo",
          "4 - wdPrintRangeOfPages"}},
        {"OutputFileName", ExPropFile, PrintOutArg::OutputFileName},
        {"From", ExPropText, PrintOutArg::From},
        {"To", ExPropText, PrintOutArg::To_},
        {"Item", ExPropCustomList, PrintOutArg::Item,
         {"0 - wdPrintDocumentContent", "1 - wdPrintProperties", "2 - wdPrintComments", "3 - wdPrintStyles",
          "4 - wdPrintAutoTextEntries", "5 - wdPrintKeyAssignments", "6 - wdPrintEnvelope",
          "7 - wdPrintDocumentWithMarkup"}},
        {"Copies", ExPropNumber, PrintOutArg::Copies},
        {"Pages", ExPropText, PrintOutArg::Pages},
        {"PageType", ExPropCustomList, PrintOutArg::PageType,
         {"0 - wdPrintAllPages", "1 - wdPrintOddPagesOnly", "2 - wdPrintEvenPagesOnly"}},
        {"PrintToFile", ExPropBoolean, PrintOutArg::PrintToFile},
        {"Collate", ExPropBoolean, PrintOutArg::Collate},
        {"ManualDuplexPrint", ExPropBoolean, PrintOutArg::ManualDuplexPrint},
        {"PrintZoomColumn", ExPropText, PrintOutArg::PrintZoomColumn},
        {"PrintZoomRow", ExPropText, PrintOutArg::PrintZoomRow},
        {"PrintZoomPaperWidth", ExPropText, PrintOutArg::PrintZoomPaperWidth},
        {"PrintZoomPaperHeight", ExPropText, PrintOutArg::PrintZoomPaperHeight},
        {"FileName", ExPropText, PrintOutArg::FileName},
    };
    return rows;
}

const std::vector<PrintRow>& ExcelRows() {
    using namespace grid;
    static const std::vector<PrintRow> rows = {
        {"From", ExPropText, PrintOutArg::From},
        {"To", ExPropText, PrintOutArg::To_},
        {"Copies", ExPropNumber, PrintOutArg::Copies},
        {"Preview", ExPropBoolean, PrintOutArg::Preview},
        {"PrintToFile", ExPropBoolean, PrintOutArg::PrintToFile},
        {"Collate", ExPropBoolean, PrintOutArg::Collate},
        {"OutputFileName", ExPropFile, PrintOutArg::OutputFileName},
        {"IgnorePrintAreas", ExPropBoolean, PrintOutArg::IgnorePrintAreas},
    };
    return rows;
}

std::span<const PrintRow> ApplicationRows(std::int32_t application) {
    if (application == dockind::Word) return WordRows();
    if (application == dockind::Excel) return ExcelRows();
    return {};
}

void AddPrintOutRows(SheetHost& host, grid::Properties& rows) {
    using namespace grid;
    AddRows(rows, {{"InputDocumentName", ExPropCustomList}, {"Printer", ExPropCustomList}});
    rows.Item(InputDocumentName).SetListItems(GetDocumentNames(host));
    rows.Item(Printer).SetLockedEdit(false);
    rows.Item(Printer).SetListItems(GetPrinterChoices());
    for (const PrintRow& def : ApplicationRows(host.Memory().printOutApplication)) {
        Property& row = AddRow(rows, {def.key, def.type});
        if (!def.items.empty()) SetFixedList(row, def.items);
        else if (def.type == ExPropFile) row.SetLockedEdit(false);
        else if (def.arg == PrintOutArg::Copies) row.SetValue("1");
    }
}

bool PrinterInstalled(const std::string& name) {
    const auto printers = GetPrinters();
    return std::any_of(printers.begin(), printers.end(),
                       [&](const std::string& printer) { return EqualsNoCase(printer, name); });
}

void SetPrintRow(const PrintRow& def, const TaggedValue& value, grid::Property& row) {
    if (value.IsEmpty() || value.Text().empty()) return;
    const std::string text = value.Text();
    if (def.items.empty()) return row.SetValue(text);
    if (vb::IsNumeric(text)) ShowListItem(row, vb::CLng(vb::Val(text)));
}

void SetPrintOutPropertiesValues(SheetHost& host, grid::Properties& rows, const GuardedSteps& step) {
    const auto activity = SelectedActivityOf<PrintOut>(host);
    if (!activity) return;
    step([&] { SetIfNotEmpty(rows.Item(InputDocumentName), activity->InputDocumentName()); });
    step([&] {
        // A printer this machine does not have shows as the default one; the
        // model keeps its name.
        grid::Property& row = rows.Item(Printer);
        if (!activity->Printer().empty() && PrinterInstalled(activity->Printer())) row.SetValue(activity->Printer());
        if (row.value().empty()) row.SetValue(kDefaultPrinterLabel);
    });
    SetActivityDescription(host, rows, step);
    std::int32_t index = kFirstApplicationRow;
    for (const PrintRow& def : ApplicationRows(host.Memory().printOutApplication))
        step([&, i = index++] { SetPrintRow(def, activity->Argument(def.arg), rows.Item(i)); });
}

// One copy is what printing does anyway: it is not stored.
void ChangeCopies(PrintOut& activity, const std::string& text) {
    if (!vb::IsNumeric(text)) RaiseStandardError(vberr::TypeMismatch);
    if (vb::Val(text) == 1) activity.SetArgument(PrintOutArg::Copies, TaggedValue());
    else activity.SetArgument(PrintOutArg::Copies, text);
}

void ChangeArgument(SheetEdit& edit, PrintOut& activity) {
    const auto defs = ApplicationRows(edit.host.Memory().printOutApplication);
    const auto at = static_cast<std::size_t>(edit.index - kFirstApplicationRow);
    if (edit.index < kFirstApplicationRow || at >= defs.size()) return;
    const PrintRow& def = defs[at];
    if (def.arg == PrintOutArg::Copies) return ChangeCopies(activity, edit.text);
    if (def.type == grid::ExPropBoolean) return activity.SetArgument(def.arg, BoolText(TextAsBool(edit.text)));
    if (def.items.empty()) return activity.SetArgument(def.arg, edit.text);
    if (const auto position = ListPosition(edit.row, edit.text)) activity.SetArgument(def.arg, *position);
}

bool PrintOutChange(SheetEdit& edit) {
    const auto activity = SelectedActivityOf<PrintOut>(edit.host);
    if (!activity) return true;
    switch (edit.index) {
    case Description: ChangeDescription(edit, *activity); break;
    case InputDocumentName: ChangeInputDocument(edit, *activity, 12); break;
    case Printer: activity->SetPrinter(edit.text == kDefaultPrinterLabel ? std::string() : edit.text); break;
    default: ChangeArgument(edit, *activity); break;
    }
    return true;
}

}  // namespace

const SheetTable& PrintOutSheetTable() {
    static constexpr SheetTable table{"PrintOut",       "SetPrintOutPropertiesValues", AddPrintOutRows,
                                      SetPrintOutPropertiesValues, "PrintOutChange", PrintOutChange};
    return table;
}

}  // namespace flowloom::sheets
