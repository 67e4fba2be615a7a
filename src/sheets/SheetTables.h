#pragma once

#include "sheets/SheetHost.h"
#include "sheets/SheetRows.h"

#include "model/Activity.h"
#include "model/FileActivity.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace flowloom::grid {
class Properties;
}

namespace flowloom::sheets {

// One committed edit, as a change handler sees it.
struct SheetEdit {
    SheetHost& host;
    grid::Properties& rows;
    // The row edited; gone once the handler has rebuilt the sheet.
    grid::Property& row;
    std::int32_t index;      // the row's Index, which the handlers go by
    std::string& sNewValue;  // the grid's text; a handler may change it
    std::string text;        // the text without blanks on either side
};

// One kind of sheet: its name for help keys, the rows it adds after the
// common ones, the procedure that loads the model into them and the one
// that takes an edit back (with the names their failures are reported
// under). A change handler gives false to refuse the edit.
struct SheetTable {
    std::string_view kindName;
    std::string_view setProcedure;
    void (*addRows)(SheetHost& host, grid::Properties& rows);
    void (*setValues)(SheetHost& host, grid::Properties& rows, const GuardedSteps& step);
    std::string_view changeProcedure;
    bool (*change)(SheetEdit& edit);
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

// The selected activity when it is of the class T; nullptr otherwise (the
// edit then changes nothing).
template <typename T>
std::shared_ptr<T> SelectedActivityOf(const SheetHost& host) {
    auto activity = host.SelectedActivity();
    if (!activity || activity->Kind() != T::kKind) return nullptr;
    return std::shared_ptr<T>(activity, static_cast<T*>(activity.get()));
}

// Row 1 of every activity sheet: the description, which is also the
// caption of the activity's cell (its spaced type name when empty).
void ChangeDescription(SheetEdit& edit, Activity& activity);

// A new input document of a SaveAs or PrintOut (kind): it may come from
// another application, whose rows differ, so the sheet is built again and
// the input row selected once more. The same name changes nothing.
void ChangeInputDocument(SheetEdit& edit, FileActivity& activity, int kind);

// The offers of document names for input rows and the rows of the
// documents before and after a mail merge.
std::vector<std::string> GetDocumentNames(const SheetHost& host);

// The choices of the target folder and file of SaveAs and Convert; both
// rows take any other text as well.
void SetTargetLists(grid::Property& folder, grid::Property& file);

// Error 30075 ("Document '...' already exists.") when the process has a
// document of that name, so that an activity cannot take it as its output.
void CheckNewOutputDocument(const SheetHost& host, const std::string& name);

}  // namespace flowloom::sheets
