// The `dump` of a session: what the window shows and the state behind it,
// one line per item, read the way a person would read the window.
#include "cli/CliPrompts.h"
#include "cli/Session.h"

#include "designer/CHTMLDocument.h"
#include "grid/Properties.h"
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
