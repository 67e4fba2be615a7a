#pragma once

#include "designer/editor/HtmlEditor.h"
#include "grid/PropertyEvents.h"
#include "support/ModalDialog.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace flowloom {
class CXmlMessages;
class OptionItem;
class Options;
class Processes;
struct CDictionary;
}  // namespace flowloom

namespace flowloom::grid {
class PropertyGridHost;
}

namespace flowloom::options {

// Starts the mail-body tool on `text` (the exchange file is named in `file`
// when empty, and handed back) in HTML or plain-text style; the tool's
// window, or 0 when it did not start. The designer passes the editor's
// starter; tests pass their own.
using ToolStarter =
    std::function<editor::ToolWindow(editor::HtmlEditorHost& form, std::string& text, std::string& file, bool plainText)>;
// The text the tool left in its exchange file.
using ToolResultReader = std::function<std::string(const std::string& file)>;

// The catalogue keys of the help the options dialog shows: each group's name
// and, for each of its values, "Group.Value".
std::vector<std::string> OptionsHelpKeys();

// The options dialog: a list of option groups, a grid with the values of the
// selected group and a help text for each. It edits a copy of the file's
// options, which replaces them only on OK. The mail templates are edited in
// the external tool, which the dialog watches through its timer.
class frmOptions : public ModalDialog, public grid::PropertyEventsIgnored, public editor::HtmlEditorHost {
public:
    // `grid` shows the rows; its host routes the grid's events here.
    explicit frmOptions(grid::PropertyGridHost& grid);

    // The catalogue of help texts (the designer's Messages); may be null.
    void SetParent(const CXmlMessages* messages) noexcept { messages_ = messages; }
    // Copies the file's options and fills the list of groups and the grid.
    void SetProcesses(std::shared_ptr<Processes> processes);
    // The definitions the dialog shows: the groups of the default options
    // document, or the copied values when that document did not load.
    const flowloom::Options& Options() const;
    // The database folder + "tools"; empty without a database.
    std::string ToolsFolder() const;
    // Drops the file, both option sets and the catalogue.
    void Dispose();

    // The text the definitions are read from; the program's default options
    // document unless replaced before SetProcesses.
    void SetDefinitionsXml(std::string xml) { definitionsXml_ = std::move(xml); }
    // Parses the definitions; false (after a stop box) when they did not load.
    bool LoadOptionsList();

    // The name of the group the grid shows (the grid's Tag).
    const std::string& PropListTag() const noexcept { return propListTag_; }

    void SetToolStarter(ToolStarter starter) { starter_ = std::move(starter); }
    void SetToolResultReader(ToolResultReader reader) { reader_ = std::move(reader); }
    // The Help button.
    std::function<void()> OnHelp;
    // The tool has gone: the window comes to the front again.
    std::function<void()> OnBringToFront;

    // The window is disabled while the tool runs; the timer ticks meanwhile.
    bool Enabled() const noexcept override { return enabled_; }
    int TimerInterval() const noexcept { return timerInterval_; }
    bool ToolRunning() const noexcept { return toolWindow_ != 0; }
    // One tick of the timer: keeps the tool in front of the dialog while it
    // lives, and ends the edit once its window has gone or cannot come forward.
    void Timer1_Timer(bool formInFront, bool toolWindowThere);
    // The tool has ended: its text goes into the template row, the exchange
    // file is removed and the window enabled again.
    void ToolEnded();

    // --- editor::HtmlEditorHost --------------------------------------------
    std::shared_ptr<Processes> ToolProcesses() const override { return processes_; }
    void SetEnabled(bool enabled) override;
    void SetTimerInterval(int milliseconds) override { timerInterval_ = milliseconds; }

    // --- grid::PropertyEvents ----------------------------------------------
    void SelChange(grid::Property* iPropOld, grid::Property* iPropNew) override;
    void ValueChanged(grid::Property& iProp, std::string& sNewValue, bool& Cancel) override;
    void Browse(grid::Property& iProp, std::string& sFillWith) override;

protected:
    void Picked(DialogControl& control) override;
    void Clicked(DialogControl& button) override;

private:
    void OptionList();
    void lstOptions_Click();
    void OpenPropList();
    void AddOptionRow(const OptionItem& definition, const CDictionary& attribute);
    // Stores `text` as the value the row names in the copy; gives what the
    // row shows afterwards.
    std::string StoreValue(grid::Property& row, const std::string& text);
    std::string Message(const std::string& key) const;

    grid::PropertyGridHost& grid_;
    const CXmlMessages* messages_ = nullptr;
    std::shared_ptr<Processes> processes_;
    std::shared_ptr<flowloom::Options> values_;       // the copy being edited
    std::shared_ptr<flowloom::Options> definitions_;  // what the grid shows
    std::optional<std::string> definitionsXml_;
    std::string propListTag_;

    ToolStarter starter_;
    ToolResultReader reader_;
    editor::ToolWindow toolWindow_ = 0;
    std::string toolFile_;
    bool enabled_ = true;
    int timerInterval_ = 0;
};

}  // namespace flowloom::options
