// The `dump` of a session: what the window shows and the state behind it,
// one line per item, read the way a person would read the window.
#include "cli/CliPrompts.h"
#include "cli/Session.h"

#include "designer/CHTMLDocument.h"
#include "grid/HeadlessGrid.h"
#include "grid/Properties.h"
#include "support/ModalDialog.h"
#include "grid/Property.h"

#include <initializer_list>

namespace flowloom::cli {

namespace {

using designer::HtmlPage;
using designer::HtmlTable;
using designer::Strip;

// "key: value" on one line, with no blank at its end.
void Line(std::ostream& out, const std::string& key, const std::string& value) {
    std::string text = key + ": " + OneLine(value);
    text.erase(text.find_last_not_of(' ') + 1);
    out << text << '\n';
}

std::string Join(std::initializer_list<std::string> parts, const char* separator) {
    std::string text;
    for (const std::string& part : parts) {
        if (&part != parts.begin()) text += separator;
        text += part;
    }
    return text;
}

// Entries between " | ", the selected one marked with "*"; an empty entry
// still takes its place.
class Entries {
public:
    void Add(const std::string& entry, bool selected) {
        if (count_++ > 0) text_ += " | ";
        if (selected) text_ += '*';
        text_ += entry;
    }
    const std::string& Text() const noexcept { return text_; }

private:
    std::string text_;
    int count_ = 0;
};

std::string ListText(const designer::ListBoxData& list) {
    Entries entries;
    for (int i = 0; i < list.ListCount(); ++i) entries.Add(list.List(i), i == list.ListIndex());
    return entries.Text();
}

bool Selected(const designer::HtmlCell& cell) { return cell.backgroundColor() == designer::kSelectedColour; }

// The name cells of a strip: row 1 of its table.
std::string StripText(const HtmlPage& page, const char* tableId) {
    const HtmlTable* table = page.getElementById(tableId);
    if (!table || table->RowCount() < 2) return {};
    const designer::HtmlRow& names = table->rows(1);
    Entries entries;
    for (int c = 0; c < names.CellCount(); ++c) entries.Add(names.cells(c)->innerHTML, Selected(*names.cells(c)));
    return entries.Text();
}

// The caption cells of the activity flow: row 3k+1 for activity k.
std::string ActivityText(const HtmlPage& page) {
    const HtmlTable* table = page.getElementById("ActivityTable");
    if (!table) return {};
    Entries entries;
    for (int r = 1; r < table->RowCount(); r += 3) {
        const designer::HtmlRow& row = table->rows(r);
        if (row.CellCount() > 0) entries.Add(row.cells(0)->innerHTML, Selected(*row.cells(0)));
    }
    return entries.Text();
}

std::string ListItemsText(const grid::Property& row) {
    std::string text;
    if (!row.ListItems()) return text;
    for (std::size_t i = 0; i < row.ListItems()->size(); ++i) {
        if (i > 0) text += ';';
        text += (*row.ListItems())[i];
    }
    return text;
}

std::string RowText(designer::frmDesigner& designer, grid::Property& row) {
    std::string value = row.value();
    if (row.UseCustomData()) value += " {" + designer.CustomDataText(row) + "}";
    return Join({row.Tag().Text(), row.Caption(), std::to_string(row.ItemType()), value,
                 row.LockedEdit() ? "locked" : "free", ListItemsText(row)},
                " | ");
}

std::string EntriesText(const DialogControl& control) {
    Entries entries;
    for (std::size_t i = 0; i < control.entries.size(); ++i)
        entries.Add(control.entries[i], static_cast<int>(i) == control.listIndex);
    return "[" + entries.Text() + "]";
}

// The rows of a dialog's grid, as the window's sheet rows are printed.
void WriteDialogGrid(designer::frmDesigner& designer, std::ostream& out) {
    auto* grid = dynamic_cast<grid::HeadlessGrid*>(designer.OpenDialogGrid());
    if (!grid) return;
    grid::Properties& rows = grid->Rows();
    for (std::int32_t i = 1; i <= rows.Count(); ++i) {
        grid::Property& row = rows.Item(i);
        std::string value = row.value();
        if (row.UseCustomData()) value += " {" + grid->ShownText(row) + "}";
        const bool selected = grid->SelectedItem() == &row;
        Line(out, std::string(selected ? "*" : "") + "dialog-row " + std::to_string(i),
             Join({row.Tag().Text(), row.Caption(), std::to_string(row.ItemType()), value,
                   row.LockedEdit() ? "locked" : "free", ListItemsText(row)},
                  " | "));
    }
}

std::string ClipboardText(const designer::Clipboard& clipboard) {
    if (clipboard.Empty()) return "none";
    const std::string name = clipboard.Name();
    return name.empty() ? clipboard.TypeName() : clipboard.TypeName() + " " + name;
}

}  // namespace

void WriteDump(designer::frmDesigner& designer, grid::HeadlessGrid& grid, std::ostream& out) {
    Line(out, "caption", designer.Caption());
    Line(out, "list", ListText(designer.lstProcesses()));
    Line(out, "list-mark", designer.ProcessListMarked() ? "on" : "off");
    Line(out, "database", StripText(designer.Canvas(Strip::Database), "DatabaseTable"));
    Line(out, "datasource", StripText(designer.Canvas(Strip::Datasource), "DatasourceTable"));
    Line(out, "activity", ActivityText(designer.Canvas(Strip::Activity)));
    WriteSheet(designer, grid, out);
    Line(out, "info", designer.txtPropInfo());
    Line(out, "changed", designer.HasUnsavedChanges() ? "yes" : "no");
    Line(out, "clipboard", ClipboardText(designer.mClipboardContent()));
    Line(out, "active-object",
         Join({designer.ActiveObjectType(), designer.ActiveObjectName(), designer.ActiveObjectFields()}, " | "));
    // Only what differs from an idle window, so that plain dumps stay short.
    if (!designer.Enabled()) Line(out, "enabled", "no");
    if (designer.ToolWatched()) Line(out, "tool", "running");
    WriteDialog(designer, out);
}

void WriteDialog(designer::frmDesigner& designer, std::ostream& out) {
    const ModalDialog* dialog = designer.OpenDialog();
    if (!dialog) return;
    // A dialog waiting for its tool takes no input.
    Line(out, "dialog", dialog->Enabled() ? dialog->Caption() : dialog->Caption() + " | disabled");
    for (const DialogControl& control : dialog->Controls()) {
        std::string text;
        switch (control.kind) {
        case ControlKind::Label: text = "label | " + control.caption; break;
        case ControlKind::Button: text = "button | " + control.caption; break;
        case ControlKind::TextBox: text = "text | " + control.text; break;
        case ControlKind::ComboBox: text = "combo | " + control.text + " | " + EntriesText(control); break;
        case ControlKind::ListBox: text = "list | " + EntriesText(control); break;
        case ControlKind::Grid: text = "grid"; break;
        }
        if (!control.enabled) text += " | disabled";
        Line(out, "control " + control.name, text);
        if (control.kind == ControlKind::Grid) WriteDialogGrid(designer, out);
    }
}

void WriteSheet(designer::frmDesigner& designer, grid::HeadlessGrid& grid, std::ostream& out) {
    Line(out, "sheet", designer.PropListTag());
    grid::Properties& rows = grid.Rows();
    for (std::int32_t i = 1; i <= rows.Count(); ++i)
        Line(out, "row " + std::to_string(i), RowText(designer, rows.Item(i)));
}

std::string PopupLine(const designer::MenuBar& menus) {
    std::string line = "popup:";
    bool first = true;
    for (const designer::MenuEntry* entry : menus.Children("mnuPopUp")) {
        if (entry->separator || !entry->visible) continue;
        line += first ? " " : ", ";
        first = false;
        line += entry->name + "=" + entry->caption;
        if (!entry->enabled) line += " (disabled)";
    }
    return line;
}

}  // namespace flowloom::cli
