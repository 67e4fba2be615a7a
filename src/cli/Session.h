#pragma once

#include "cli/SessionPrompts.h"
#include "cli/SessionTool.h"
#include "designer/DesignerView.h"
#include "grid/HeadlessGrid.h"
#include "designer/frmDesigner.h"

#include <istream>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace flowloom::cli {

// A script line the session does not understand.
class ScriptError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// The window of a session: nothing to paint; it prints the context menu as
// it opens and notes that the window unloaded.
class SessionView : public designer::DesignerView {
public:
    explicit SessionView(std::ostream& out) : out_(out) {}
    void SetMenus(const designer::MenuBar* menus) noexcept { menus_ = menus; }
    void ShowPopupMenu() override;
    void Unload() override { unloaded_ = true; }
    bool Unloaded() const noexcept { return unloaded_; }

private:
    std::ostream& out_;
    const designer::MenuBar* menus_ = nullptr;
    bool unloaded_ = false;
};

// The designer without a window: the core of the main window over a grid of
// plain rows, driven by one action per script line and writing a transcript
// of everything it shows. The prompts are installed for its lifetime.
class Session {
public:
    explicit Session(std::ostream& out);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    // Form_Load with the command line the designer builds from these
    // arguments, then Form_Activate; false when the window unloaded.
    bool Start(const std::vector<std::string>& designerArgs);
    // Carries out one script line; ScriptError for a line it cannot read.
    void Execute(const std::string& line);
    // The window unloaded: the session reads no further.
    bool Ended() const noexcept;
    // 1 after a failed start, otherwise 0.
    int ExitCode() const noexcept;

    // A click on the 1-based row of the grid, then `value` committed as the
    // user's edit; false when the edit was cancelled.
    bool CommitRow(int index, const std::string& value);

    designer::frmDesigner& Designer() noexcept { return designer_; }
    grid::HeadlessGrid& Grid() noexcept { return grid_; }

private:
    using Words = std::vector<std::string>;

    void Act(const std::string& verb, const Words& words);
    void EditRow(const std::string& arguments);
    // The grid a row action goes to: the open dialog's, else the window's.
    grid::HeadlessGrid& RowGrid();
    bool ClickRow(int index);
    void Browse(int index);
    // Opens the drop list of row N and prints its entries.
    void Drop(int index);
    // The dialog actions; false when the verb is none of them.
    bool DialogAct(const std::string& verb, const std::string& rest);
    // Whether the window can take the action now: a modal dialog or a
    // running tool keeps it from the window.
    bool Blocked(const std::string& verb) const;
    void ChooseMenu(const std::string& name);
    void Dump();
    void Xml();

    std::ostream& out_;
    SessionPrompts prompts_;
    ScopedPrompts promptsInUse_;
    SessionToolLauncher tool_;
    ToolLauncher* previousTool_ = nullptr;
    grid::HeadlessGrid grid_;
    SessionView view_;
    designer::frmDesigner designer_;
    bool failedStart_ = false;
};

// Runs a whole session: start-up, then one line of `in` after the other
// until the end of input or the window unloads. Returns the exit code; a
// line that cannot be read goes to `err` as "flowloom-cli: line N: ..." and
// ends the session with 2.
int RunSession(const std::vector<std::string>& designerArgs, std::istream& in, std::ostream& out,
               std::ostream& err);

// The state of the designer as the `dump` action prints it, with the open
// dialog and the tool after the window's lines.
void WriteDump(designer::frmDesigner& designer, grid::HeadlessGrid& grid, std::ostream& out);
// The open dialog: "dialog: CAPTION", then one line per control.
void WriteDialog(designer::frmDesigner& designer, std::ostream& out);
// The sheet on show: "sheet: KIND", then one "row N: ..." line per row.
void WriteSheet(designer::frmDesigner& designer, grid::HeadlessGrid& grid, std::ostream& out);
// The open context menu as one transcript line, without its line break.
std::string PopupLine(const designer::MenuBar& menus);

}  // namespace flowloom::cli
