// The activity sheets (kinds 10 to 16). Each begins with the common
// "Description" row; the rows of its own follow from its table.
#include "sheets/SheetTables.h"

#include "grid/Properties.h"
#include "model/Activity.h"

namespace flowloom::sheets {

namespace {

void NoRowsOfItsOwn(SheetHost&, grid::Properties&) {}

void SetDescriptionOnly(SheetHost& host, grid::Properties& rows, const GuardedSteps& step) {
    SetActivityDescription(host, rows, step);
}

}  // namespace

void SetActivityDescription(SheetHost& host, grid::Properties& rows, const GuardedSteps& step) {
    const auto activity = host.SelectedActivity();
    if (!activity) return;
    step([&] { SetIfNotEmpty(rows.Item(1), activity->Description()); });
}

const SheetTable& MailMergeSheetTable() {
    static constexpr SheetTable table{"MailMerge", "SetMailMergePropertiesValues", NoRowsOfItsOwn, SetDescriptionOnly};
    return table;
}

const SheetTable& SaveAsSheetTable() {
    static constexpr SheetTable table{"SaveAs", "SetSaveAsPropertiesValues", NoRowsOfItsOwn, SetDescriptionOnly};
    return table;
}

const SheetTable& PrintOutSheetTable() {
    static constexpr SheetTable table{"PrintOut", "SetPrintOutPropertiesValues", NoRowsOfItsOwn, SetDescriptionOnly};
    return table;
}

const SheetTable& ConvertSheetTable() {
    static constexpr SheetTable table{"Convert", "SetConvertPropertiesValues", NoRowsOfItsOwn, SetDescriptionOnly};
    return table;
}

const SheetTable& SendMailSheetTable() {
    static constexpr SheetTable table{"SendMail", "SetSendMailPropertiesValues", NoRowsOfItsOwn, SetDescriptionOnly};
    return table;
}

const SheetTable& SendFaxSheetTable() {
    static constexpr SheetTable table{"SendFax", "SetSendFaxPropertiesValues", NoRowsOfItsOwn, SetDescriptionOnly};
    return table;
}

const SheetTable& AddRecordSheetTable() {
    static constexpr SheetTable table{"AddRecord", "SetAddRecordPropertiesValues", NoRowsOfItsOwn, SetDescriptionOnly};
    return table;
}

}  // namespace flowloom::sheets
