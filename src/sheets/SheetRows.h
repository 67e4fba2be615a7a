#pragma once

#include "support/ReportError.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace flowloom::grid {
class Properties;
class Property;
}  // namespace flowloom::grid

namespace flowloom::sheets {

// One line of a sheet's row table: the key (tag, help key and, through
// SpacedName, the caption) and the item type.
struct RowDef {
    std::string_view key;
    int type;
};

// Appends the row with its caption and tag; the rest stays as the grid sets it.
grid::Property& AddRow(grid::Properties& rows, const RowDef& def);
// Appends the rows of a table in order.
void AddRows(grid::Properties& rows, const std::vector<RowDef>& defs);

// A list of fixed choices; the first is the row's value until the model says otherwise.
void SetFixedList(grid::Property& row, std::vector<std::string> items);
// The item at a 0-based position of the row's list.
const std::string& ListItemAt(const grid::Property& row, std::size_t position);

// Text members reach a row only when they hold something, so that an empty
// member leaves the row's default on show.
void SetIfNotEmpty(grid::Property& row, const std::string& text);
// A truth value as the host's string conversion gives it.
std::string BoolText(bool value);

// The row's tag as text; "" when it holds no text.
std::string RowTag(const grid::Property& row);

// The parts of a ";"-joined list; an empty text has none.
std::vector<std::string> SplitList(std::string_view joined);

// The error handler of a Set...PropertiesValues procedure: each step runs on
// its own, a failing one is reported under "frmDesigner" and the procedure's
// name, and the next step still runs, so that a half-filled sheet appears.
class GuardedSteps {
public:
    explicit GuardedSteps(std::string_view procedure) : procedure_(procedure) {}

    template <typename Step>
    void operator()(Step&& step) const {
        Guarded("frmDesigner", procedure_, std::forward<Step>(step));
    }

private:
    std::string_view procedure_;
};

}  // namespace flowloom::sheets
