#pragma once

#include "sheets/SheetHost.h"
#include "sheets/SheetRows.h"

#include <string_view>

namespace flowloom::grid {
class Properties;
}

namespace flowloom::sheets {

// One kind of sheet: its name for help keys, the rows it adds after the
// common ones, and the procedure that loads the model into them (with the
// name its failures are reported under).
struct SheetTable {
    std::string_view kindName;
    std::string_view setProcedure;
    void (*addRows)(SheetHost& host, grid::Properties& rows);
    void (*setValues)(SheetHost& host, grid::Properties& rows, const GuardedSteps& step);
};

// The table of a kind, or nullptr for a number without a sheet.
const SheetTable* FindSheetTable(int kind);

// Sheet kinds 10 to 16: the activities, whose sheets begin with "Description".
bool IsActivitySheet(int kind);

const SheetTable& ProcessSheetTable();
const SheetTable& DatabaseSheetTable();
const SheetTable& DatasourceSheetTable();

// The activity sheets, kinds 10 to 16 in order.
const SheetTable& MailMergeSheetTable();
const SheetTable& SaveAsSheetTable();
const SheetTable& PrintOutSheetTable();
const SheetTable& ConvertSheetTable();
const SheetTable& SendMailSheetTable();
const SheetTable& SendFaxSheetTable();
const SheetTable& AddRecordSheetTable();

// Row 1 of an activity sheet from the selected activity's Description.
void SetActivityDescription(SheetHost& host, grid::Properties& rows, const GuardedSteps& step);

}  // namespace flowloom::sheets
