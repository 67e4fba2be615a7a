// One script line of a session: an answer for a prompt still to come, or
// one thing a person does to the window.
#include "cli/Session.h"

#include "grid/Property.h"
#include "model/Processes.h"

#include <charconv>
#include <sstream>
#include <string_view>

namespace flowloom::cli {

namespace {

using designer::Control;
using designer::MenuResult;
using designer::Strip;

int Number(const std::string& word) {
    int value = 0;
    const char* end = word.data() + word.size();
    const auto [ptr, ec] = std::from_chars(word.data(), end, value);
    if (ec != std::errc{} || ptr != end) throw ScriptError("'" + word + "' is not a number");
    return value;
}

Strip StripFrom(const std::string& word) {
    if (word == "database") return Strip::Database;
    if (word == "datasource") return Strip::Datasource;
    if (word == "activity") return Strip::Activity;
    throw ScriptError("'" + word + "' is not a strip (database, datasource, activity)");
}

Control ControlFrom(const std::string& word) {
    if (word == "list") return Control::List;
    if (word == "grid") return Control::Grid;
    if (word == "info") return Control::Info;
    switch (StripFrom(word)) {
    case Strip::Database: return Control::Database;
    case Strip::Datasource: return Control::Datasource;
    case Strip::Activity: return Control::Activity;
    }
    return Control::None;
}

// "\n" in a script value stands for a line break, as the multi-line editor
// commits it: CR LF.
std::string ExpandLineBreaks(const std::string& text) {
    std::string expanded;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\\' && i + 1 < text.size() && text[i + 1] == 'n') {
            expanded += "\r\n";
            ++i;
        } else {
            expanded += text[i];
        }
    }
    return expanded;
}

std::vector<std::string> SplitWords(std::string_view text) {
    std::vector<std::string> words;
    std::istringstream stream{std::string(text)};
    for (std::string word; stream >> word;) words.push_back(std::move(word));
    return words;
}

}  // namespace

void Session::Execute(const std::string& rawLine) {
    std::string_view line = rawLine;
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    const std::size_t start = line.find_first_not_of(" \t");
    if (start == std::string_view::npos || line[start] == '#') return;
    line.remove_prefix(start);

    const std::size_t verbEnd = line.find_first_of(" \t");
    const std::string verb(line.substr(0, verbEnd));
    // The rest of the line after the one blank that ends the verb.
    const std::string rest(verbEnd == std::string_view::npos ? std::string_view{} : line.substr(verbEnd + 1));
    const Words words = SplitWords(rest);

    if (verb == "answer") {
        const auto answer = words.size() == 1 ? AnswerFromWord(words[0]) : std::nullopt;
        if (!answer) throw ScriptError("usage: answer ok|cancel|yes|no|abort|retry|ignore");
        prompts_.QueueAnswer(*answer);
        return;
    }
    if (verb == "input") return prompts_.QueueInput(rest);
    if (verb == "file") return prompts_.QueueFile(rest.empty() ? std::nullopt : std::optional<std::string>(rest));

    if (DialogAct(verb, rest)) return;
    if (Blocked(verb)) {
        out_ << "blocked: " << verb << '\n';
        return;
    }
    // Any action closes an open context menu; a menu entry is chosen from it first.
    if (verb != "menu" && designer_.PopupOpen()) designer_.ClosePopup();
    if (verb == "row") return EditRow(rest);
    Act(verb, words);
}

bool Session::Blocked(const std::string& verb) const {
    if (verb == "dump" || verb == "xml") return false;
    const bool dialog = designer_.OpenDialog() != nullptr;
    // A dialog's own grid takes row edits and its browse buttons.
    if (dialog && designer_.OpenDialogGrid() && (verb == "row" || verb == "browse" || verb == "drop"))
        return !designer_.Enabled() || !designer_.OpenDialog()->Enabled();
    return dialog || !designer_.Enabled();
}

bool Session::DialogAct(const std::string& verb, const std::string& rest) {
    if (verb == "tool-close") {
        if (!tool_.Close(ExpandLineBreaks(rest))) throw ScriptError("no tool runs");
        designer_.ToolEnded();
        return true;
    }
    if (verb.rfind("dialog-", 0) != 0) return false;
    if (!designer_.OpenDialog()) throw ScriptError("no dialog is open");
    if (!designer_.OpenDialog()->Enabled()) {
        out_ << "blocked: " << verb << '\n';
        return true;
    }
    const std::size_t blank = rest.find(' ');
    const std::string control = rest.substr(0, blank);
    const std::string argument = blank == std::string::npos ? std::string() : rest.substr(blank + 1);
    bool acted = false;
    if (verb == "dialog-set") {
        if (blank == std::string::npos) throw ScriptError("usage: dialog-set CONTROL TEXT");
        acted = designer_.DialogSetText(control, ExpandLineBreaks(argument));
    } else if (verb == "dialog-pick") {
        if (SplitWords(argument).size() != 1) throw ScriptError("usage: dialog-pick CONTROL N");
        acted = designer_.DialogPick(control, Number(SplitWords(argument)[0]));
    } else if (verb == "dialog-click") {
        if (control.empty() || blank != std::string::npos) throw ScriptError("usage: dialog-click BUTTON");
        acted = designer_.DialogClick(control);
    } else if (verb == "dialog-close") {
        if (!rest.empty()) throw ScriptError("usage: dialog-close");
        designer_.DialogCloseBox();
        acted = true;
    } else {
        throw ScriptError("unknown action '" + verb + "'");
    }
    if (!acted) out_ << "refused: " << verb << ' ' << control << '\n';
    return true;
}

grid::HeadlessGrid& Session::RowGrid() {
    if (auto* dialogGrid = dynamic_cast<grid::HeadlessGrid*>(designer_.OpenDialogGrid())) return *dialogGrid;
    return grid_;
}

bool Session::ClickRow(int index) {
    grid::HeadlessGrid& grid = RowGrid();
    if (index < 1 || index > grid.Rows().Count()) throw ScriptError("there is no row " + std::to_string(index));
    if (&grid != &grid_) return grid.ClickRow(index, nullptr);
    // The press gives the grid the focus; the grid then selects the row.
    designer_.GridRowClick(index);
    return grid_.ClickRow(index, [this] { designer_.PropList_Click(); });
}

void Session::Drop(int index) {
    ClickRow(index);
    grid::HeadlessGrid& grid = RowGrid();
    if (index > grid.Rows().Count()) return;  // the click rebuilt the sheet
    std::string line = "drop: row " + std::to_string(index) + ":";
    const auto entries = grid.DropEntries(grid.Rows().Item(index));
    for (std::size_t i = 0; i < entries.size(); ++i) line += (i == 0 ? " " : " | ") + entries[i];
    out_ << line << '\n';
}

void Session::Browse(int index) {
    ClickRow(index);
    grid::HeadlessGrid& grid = RowGrid();
    if (index > grid.Rows().Count()) return;  // the click rebuilt the sheet
    grid::Property& row = grid.Rows().Item(index);
    const int type = row.ItemType();
    if (type == grid::ExPropBrowse || type == grid::ExPropFile || type == grid::ExPropFolder)
        return grid.PressBrowse(row);
    if (&grid == &grid_ && designer_.Layout().cmdBrowseVisible) return designer_.cmdBrowse_Click();
    throw ScriptError("row " + std::to_string(index) + " has no browse button");
}

void Session::EditRow(const std::string& arguments) {
    // "N VALUE": the value is all after the blank that ends N, blanks kept.
    const std::size_t blank = arguments.find(' ');
    if (blank == std::string::npos) throw ScriptError("usage: row N VALUE");
    const int index = Number(arguments.substr(0, blank));
    if (!CommitRow(index, ExpandLineBreaks(arguments.substr(blank + 1)))) out_ << "cancelled: row " << index << '\n';
}

bool Session::CommitRow(int index, const std::string& value) {
    // The press selects the row; the typed text is then committed as Enter
    // commits it.
    ClickRow(index);
    grid::HeadlessGrid& grid = RowGrid();
    if (index > grid.Rows().Count()) return false;  // the click rebuilt the sheet
    return grid.CommitEdit(grid.Rows().Item(index), value);
}

void Session::Act(const std::string& verb, const Words& words) {
    struct Action {
        std::string_view verb;
        std::size_t count;
        const char* usage;
        void (*run)(Session&, const Words&);
    };
    static constexpr Action kActions[] = {
        {"list", 1, "list N", [](Session& s, const Words& w) { s.designer_.ListClick(Number(w[0])); }},
        {"list-right", 1, "list-right N",
         [](Session& s, const Words& w) { s.designer_.ListRightClick(Number(w[0])); }},
        {"list-key", 1, "list-key CODE", [](Session& s, const Words& w) { s.designer_.ListKeyUp(Number(w[0])); }},
        {"cell", 3, "cell STRIP R C",
         [](Session& s, const Words& w) { s.designer_.CellClick(StripFrom(w[0]), Number(w[1]), Number(w[2])); }},
        {"cell-right", 3, "cell-right STRIP R C",
         [](Session& s, const Words& w) {
             s.designer_.CellRightClick(StripFrom(w[0]), Number(w[1]), Number(w[2]));
         }},
        {"strip-click", 1, "strip-click STRIP",
         [](Session& s, const Words& w) { s.designer_.StripClick(StripFrom(w[0])); }},
        {"strip-right", 1, "strip-right STRIP",
         [](Session& s, const Words& w) { s.designer_.StripRightClick(StripFrom(w[0])); }},
        {"key", 2, "key STRIP CODE",
         [](Session& s, const Words& w) { s.designer_.StripKeyDown(StripFrom(w[0]), Number(w[1])); }},
        {"focus", 1, "focus list|database|datasource|activity|grid|info",
         [](Session& s, const Words& w) { s.designer_.FocusControl(ControlFrom(w[0])); }},
        {"menu", 1, "menu NAME", [](Session& s, const Words& w) { s.ChooseMenu(w[0]); }},
        {"toolbar", 1, "toolbar N",
         [](Session& s, const Words& w) {
             const int index = Number(w[0]);
             if (index < 1 || index > static_cast<int>(designer::ToolbarButtons().size()))
                 throw ScriptError("there is no toolbar button " + w[0]);
             s.designer_.ToolbarClick(index);
         }},
        {"grid-row", 1, "grid-row N",
         [](Session& s, const Words& w) {
             // The press gives the grid the focus; the grid then selects the row.
             const int row = Number(w[0]);
             s.designer_.GridRowClick(row);
             s.grid_.ClickRow(row, [&s] { s.designer_.PropList_Click(); });
         }},
        {"browse", 1, "browse N", [](Session& s, const Words& w) { s.Browse(Number(w[0])); }},
        {"drop", 1, "drop N", [](Session& s, const Words& w) { s.Drop(Number(w[0])); }},
        {"close", 0, "close", [](Session& s, const Words&) { s.designer_.Form_Unload(); }},
        {"dump", 0, "dump", [](Session& s, const Words&) { s.Dump(); }},
        {"xml", 0, "xml", [](Session& s, const Words&) { s.Xml(); }},
    };
    for (const Action& action : kActions) {
        if (action.verb != verb) continue;
        if (words.size() != action.count) throw ScriptError(std::string("usage: ") + action.usage);
        action.run(*this, words);
        return;
    }
    throw ScriptError("unknown action '" + verb + "'");
}

void Session::ChooseMenu(const std::string& name) {
    const designer::MenuEntry* entry = designer_.Menus().Find(name);
    if (!entry || entry->separator || designer_.Menus().IsMenu(name))
        throw ScriptError("'" + name + "' is no menu entry");
    const bool fromPopup = entry->parent == "mnuPopUp";
    if (!fromPopup && designer_.PopupOpen()) designer_.ClosePopup();
    switch (designer_.ChooseMenu(name)) {
    case MenuResult::Chosen: break;
    case MenuResult::Disabled: out_ << "disabled: " << name << '\n'; break;
    case MenuResult::Hidden: out_ << "hidden: " << name << '\n'; break;
    case MenuResult::NotOpen: out_ << "not open: " << name << '\n'; break;
    case MenuResult::Unknown: throw ScriptError("'" + name + "' is no menu entry");
    }
    if (fromPopup && designer_.PopupOpen()) designer_.ClosePopup();
}

void Session::Dump() { WriteDump(designer_, grid_, out_); }

void Session::Xml() {
    if (const auto processes = designer_.CurrentProcesses()) out_ << processes->XML();
    out_ << '\n';
}

}  // namespace flowloom::cli
