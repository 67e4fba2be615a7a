#pragma once

#include "support/ReportError.h"

#include <cstdint>
#include <initializer_list>
#include <optional>
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
// The item at a 0-based position of the row's list; error 9 outside it.
const std::string& ListItemAt(const grid::Property& row, std::int32_t position);
// The row shows the item at a 0-based position of its list (error 9 outside it).
void ShowListItem(grid::Property& row, std::int32_t position);

// Text members reach a row only when they hold something, so that an empty
// member leaves the row's default on show.
void SetIfNotEmpty(grid::Property& row, const std::string& text);
// A truth value as the host's string conversion gives it.
std::string BoolText(bool value);

// The 0-based position of the text among the row's list items, compared as
// they stand; nullopt for any other text.
std::optional<std::int32_t> ListPosition(const grid::Property& row, std::string_view text);
// A text as a truth value, as the host converts it ("True", "false", "-1",
// "0"); error 13 for a text that is none.
bool TextAsBool(std::string_view text);
// The number a list label begins with: "3 - Email" gives 3, a text without
// one 0.
std::int32_t NumberInFront(std::string_view text);
// Removes the rows at these positions, in the order given; a position the
// sheet does not have (any more) is passed over.
void RemoveRowsQuietly(grid::Properties& rows, std::initializer_list<std::int32_t> indices);

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
