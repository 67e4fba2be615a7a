#pragma once

#include "app/KeyedCollection.h"
#include "model/Forward.h"
#include "support/ModalDialog.h"

#include <functional>
#include <memory>
#include <string>

namespace flowloom::dialogs {

// Edits which groups may use a process, one name a line. The combo offers
// the groups the file knows; new, rename and delete change those at once
// (and in every process of the file), also when the dialog is cancelled
// afterwards. Only the process's own list waits for OK: the caller applies
// Result() (see ReplaceProcessGroups).
class frmGroups : public ModalDialog {
public:
    frmGroups();

    // Takes the process and its file and shows their groups; false, and
    // nothing shown, without both.
    bool init(std::shared_ptr<Process> process, std::shared_ptr<Processes> processes);
    // The names with "\r\n" between them, as cmdOK left them.
    std::string Result() const { return result_; }

    // Run by cmdHelp.
    std::function<void()> OnHelp;

protected:
    void Changed(DialogControl& control) override;
    void Picked(DialogControl& control) override;
    void Clicked(DialogControl& button) override;

private:
    void AddName();
    void RemoveName();
    void NewGroup();
    void RenameGroup();
    void DeleteGroup();
    void Rename(const std::string& from, const std::string& to);
    void RenameInWorkingList(const std::string& from, const std::string& to);
    // A name the file's groups do not hold yet, asked for until one is typed
    // or the person gives up (empty when so).
    std::string AskUnusedName(const std::string& prompt, const std::string& title, const std::string& defaultText);
    void FillGroupCombo();
    void FillGroupList();
    void UpdateEnabling();

    std::shared_ptr<Process> process_;
    std::shared_ptr<Processes> processes_;
    // The process's group names as edited here, keyed by name.
    KeyedCollection<std::string> names_;
    std::string result_;
};

}  // namespace flowloom::dialogs
