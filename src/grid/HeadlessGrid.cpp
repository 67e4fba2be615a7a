#include "grid/HeadlessGrid.h"

#include "grid/Property.h"
#include "support/Prompts.h"

namespace flowloom::grid {

namespace {
constexpr int kRowHeight = 16;
constexpr int kGridWidth = 240;
}  // namespace

bool HeadlessGrid::RowRect(const Property& row, int& right, int& top) const {
    const std::int32_t index = rows_.IndexOf(&row);
    if (index == 0) return false;
    right = kGridWidth;
    top = (index - 1) * kRowHeight;
    return true;
}

bool HeadlessGrid::ClickRow(int index, const std::function<void()>& click) {
    if (index < 1 || index > rows_.Count()) return false;
    Property* old = selected_;
    Property* row = &rows_.Item(index);
    if (row != old) {
        selected_ = row;
        if (events_) events_->SelChange(old, row);
    }
    if (click) click();
    return true;
}

void HeadlessGrid::SelectRow(Property& row) { selected_ = &row; }

bool HeadlessGrid::CommitEdit(Property& row, std::string value) {
    bool cancel = false;
    editing_ = &row;
    if (events_) events_->ValueChanged(row, value, cancel);
    const bool alive = editing_ == &row;
    editing_ = nullptr;
    if (cancel) return false;
    if (alive) row.SetValue(value);
    return true;
}

void HeadlessGrid::PressBrowse(Property& row) {
    if (row.ItemType() == ExPropFile || row.ItemType() == ExPropFolder) {
        // The file and folder rows ask for a path and commit it as typed.
        FileDialogRequest request;
        request.title = row.DialogTitle();
        request.filter = row.DialogFilter();
        request.fileName = row.value();
        if (const auto path = CurrentPrompts().SelectFile(request); path && !path->empty()) CommitEdit(row, *path);
        return;
    }
    std::string fill = row.value();
    editing_ = &row;
    if (events_) events_->Browse(row, fill);
    const bool alive = editing_ == &row;
    editing_ = nullptr;
    // The row takes what the handler left, if it is still the selected one.
    if (alive && selected_ == &row) row.SetValue(fill);
}

std::vector<std::string> HeadlessGrid::DropEntries(Property& row) {
    if (row.ListItems()) return *row.ListItems();
    std::vector<std::string> entries;
    if (events_) events_->NeedData(row, entries);
    return entries;
}

std::string HeadlessGrid::ShownText(Property& row) {
    std::string shown = row.value();
    if (row.UseCustomData() && events_) events_->QueryCustomData(row, shown);
    return shown;
}

}  // namespace flowloom::grid
