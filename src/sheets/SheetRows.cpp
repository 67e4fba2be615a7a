#include "sheets/SheetRows.h"

#include "app/Common.h"
#include "grid/Properties.h"
#include "support/VbStrings.h"

namespace flowloom::sheets {

grid::Property& AddRow(grid::Properties& rows, const RowDef& def) {
    const std::string key(def.key);
    grid::Property& row = rows.Add(SpacedName(key), def.type, "");
    row.SetTag(TaggedValue(key));
    return row;
}

void AddRows(grid::Properties& rows, const std::vector<RowDef>& defs) {
    for (const RowDef& def : defs) AddRow(rows, def);
}

void SetFixedList(grid::Property& row, std::vector<std::string> items) {
    const std::string first = items.empty() ? std::string() : items.front();
    row.SetListItems(std::move(items));
    row.SetValue(first);
}

const std::string& ListItemAt(const grid::Property& row, std::int32_t position) {
    const auto& items = row.ListItems();
    if (!items || position < 0 || static_cast<std::size_t>(position) >= items->size())
        RaiseStandardError(vberr::SubscriptOutOfRange);
    return (*items)[static_cast<std::size_t>(position)];
}

void ShowListItem(grid::Property& row, std::int32_t position) { row.SetValue(ListItemAt(row, position)); }

void SetIfNotEmpty(grid::Property& row, const std::string& text) {
    if (!text.empty()) row.SetValue(text);
}

std::optional<std::int32_t> ListPosition(const grid::Property& row, std::string_view text) {
    const auto& items = row.ListItems();
    if (!items) return std::nullopt;
    for (std::size_t i = 0; i < items->size(); ++i)
        if ((*items)[i] == text) return static_cast<std::int32_t>(i);
    return std::nullopt;
}

bool TextAsBool(std::string_view text) {
    const auto truth = vb::ToBool(text);
    if (!truth) RaiseStandardError(vberr::TypeMismatch);
    return *truth;
}

std::int32_t NumberInFront(std::string_view text) { return vb::CLng(vb::Val(text)); }

void RemoveRowsQuietly(grid::Properties& rows, std::initializer_list<std::int32_t> indices) {
    for (const std::int32_t index : indices)
        if (index >= 1 && index <= rows.Count()) rows.Remove(index);
}

std::string BoolText(bool value) { return value ? "True" : "False"; }

std::string RowTag(const grid::Property& row) { return row.Tag().IsText() ? row.Tag().Text() : std::string(); }

std::vector<std::string> SplitList(std::string_view joined) {
    if (joined.empty()) return {};
    return vb::Split(joined, ";");
}

}  // namespace flowloom::sheets
