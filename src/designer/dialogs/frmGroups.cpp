#include "designer/dialogs/frmGroups.h"

#include "designer/dialogs/DialogLists.h"
#include "model/Group.h"
#include "model/Groups.h"
#include "model/Process.h"
#include "model/Processes.h"
#include "support/Prompts.h"
#include "support/TextCompare.h"
#include "support/VbStrings.h"

#include <exception>

namespace flowloom::dialogs {

namespace {

std::shared_ptr<Group> MakeGroup(const std::string& name) {
    auto group = std::make_shared<Group>();
    group->name = name;
    return group;
}

// Renaming and deleting go on past a failing step: a process need not hold
// the group at all.
template <typename Step>
void IgnoringErrors(Step&& step) {
    try {
        step();
    } catch (const std::exception&) {
    }
}

// Swaps `from` for a new group `to` in a groups collection that holds it.
void RenameIn(Groups& groups, const std::string& from, const std::string& to) {
    if (!groups.Contains(from)) return;
    IgnoringErrors([&] { groups.Remove(from); });
    IgnoringErrors([&] { groups.Add(MakeGroup(to), to); });
}

}  // namespace

frmGroups::frmGroups() : ModalDialog("Groups") {
    Add(MakeControl("lblGroup", ControlKind::Label, "Group", {0, 0}));
    Add(MakeControl("cboGroup", ControlKind::ComboBox, "", {1, 0}));
    Add(MakeControl("cmdGroupAdd", ControlKind::Button, "Add", {1, 1}));
    Add(MakeControl("lstGroups", ControlKind::ListBox, "", {2, 0, 4, 1}));
    Add(MakeControl("cmdGroupEdit", ControlKind::Button, "Edit", {2, 1}));
    Add(MakeControl("cmdGroupRemove", ControlKind::Button, "Remove", {3, 1}));
    Add(MakeControl("cmdNew", ControlKind::Button, "Add New  Group", {1, 2}));
    Add(MakeControl("cmdRename", ControlKind::Button, "Rename  Group", {2, 2}));
    Add(MakeControl("cmdDelete", ControlKind::Button, "Delete Group", {3, 2}));
    Add(MakeControl("cmdOK", ControlKind::Button, "OK", {0, 3}));
    Add(MakeControl("cmdCancel", ControlKind::Button, "Cancel", {1, 3}));
    Add(MakeControl("cmdHelp", ControlKind::Button, "Help", {2, 3}));
    UpdateEnabling();
}

bool frmGroups::init(std::shared_ptr<Process> process, std::shared_ptr<Processes> processes) {
    if (!process || !processes) return false;
    process_ = std::move(process);
    processes_ = std::move(processes);
    IgnoringErrors([this] { FillGroupCombo(); });
    if (process_->HasGroups()) {
        for (const auto& group : *process_->Groups())
            names_.TryAdd(std::make_shared<std::string>(group->name), group->name);
    }
    FillGroupList();
    UpdateEnabling();
    return true;
}

void frmGroups::Changed(DialogControl&) { UpdateEnabling(); }

void frmGroups::Picked(DialogControl&) { UpdateEnabling(); }

void frmGroups::Clicked(DialogControl& button) {
    // cmdGroupEdit has no action of its own.
    if (button.name == "cmdGroupAdd") AddName();
    else if (button.name == "cmdGroupRemove") RemoveName();
    else if (button.name == "cmdNew") NewGroup();
    else if (button.name == "cmdRename") RenameGroup();
    else if (button.name == "cmdDelete") DeleteGroup();
    else if (button.name == "cmdOK") {
        result_ = JoinLines(Control("lstGroups").entries);
        Close(true);
    } else if (button.name == "cmdCancel") {
        Close(false);
    } else if (button.name == "cmdHelp" && OnHelp) {
        OnHelp();
    }
}

// A name the process already has is left as it is.
void frmGroups::AddName() {
    const std::string name = Control("cboGroup").text;
    if (vb::Trim(name).empty()) return;
    if (names_.TryAdd(std::make_shared<std::string>(name), name)) Control("lstGroups").entries.push_back(name);
    UpdateEnabling();
}

void frmGroups::RemoveName() {
    DialogControl& list = Control("lstGroups");
    const std::string* name = SelectedEntry(list);
    if (!name) return;
    names_.TryRemoveAt(*name);
    RemoveEntry(list, list.listIndex);
    UpdateEnabling();
}

std::string frmGroups::AskUnusedName(const std::string& prompt, const std::string& title,
                                     const std::string& defaultText) {
    for (;;) {
        auto answer = CurrentPrompts().InputBox(prompt, title, defaultText);
        std::string name = answer ? vb::Trim(*answer) : std::string();
        if (name.empty() || !processes_->Groups()->Contains(name)) return name;
        MsgBox("The Group with name '" + name + "' already exists!", msgbox::Exclamation);
    }
}

void frmGroups::NewGroup() {
    if (!processes_) return;
    const std::string name = AskUnusedName("Type the name of a new Group", "New Group", "");
    if (name.empty()) return;
    processes_->Groups()->Add(MakeGroup(name), name);
    DialogControl& combo = Control("cboGroup");
    combo.entries.push_back(name);
    combo.text = name;
    combo.listIndex = -1;
    UpdateEnabling();
}

void frmGroups::RenameGroup() {
    if (!processes_) return;
    const std::string from = Control("cboGroup").text;
    const std::string to = AskUnusedName("Type a new name", "Rename Group", from);
    if (to.empty()) return;
    Rename(from, to);
    UpdateEnabling();
}

// The file's group goes to the end of its list under the new name, and so
// does each process's; the list shown here keeps its order.
void frmGroups::Rename(const std::string& from, const std::string& to) {
    auto groups = processes_->Groups();
    IgnoringErrors([&] { groups->Remove(from); });
    IgnoringErrors([&] { groups->Add(MakeGroup(to), to); });
    IgnoringErrors([this] { FillGroupCombo(); });
    Control("cboGroup").text = to;
    for (const auto& process : processes_->Snapshot())
        if (process->HasGroups()) RenameIn(*process->Groups(), from, to);
    if (names_.Contains(from)) {
        RenameInWorkingList(from, to);
        FillGroupList();
    }
}

void frmGroups::RenameInWorkingList(const std::string& from, const std::string& to) {
    std::int32_t at = 1;
    for (const auto& name : names_) {
        if (EqualsNoCase(*name, from)) break;
        ++at;
    }
    names_.TryRemoveAt(from);
    const CollectionPosition before = at <= names_.Count() ? CollectionPosition{at} : CollectionPosition{};
    names_.TryAdd(std::make_shared<std::string>(to), to, before);
}

void frmGroups::DeleteGroup() {
    if (!processes_) return;
    const std::string name = Control("cboGroup").text;
    if (MsgBox("Do you want to delete Group '" + name + "'?", msgbox::OKCancel | msgbox::Question) != msgbox::OK)
        return;
    IgnoringErrors([&] { processes_->Groups()->Remove(name); });
    for (const auto& process : processes_->Snapshot())
        if (process->HasGroups()) IgnoringErrors([&] { process->Groups()->Remove(name); });
    IgnoringErrors([this] { FillGroupCombo(); });
    names_.TryRemoveAt(name);
    FillGroupList();
    UpdateEnabling();
}

// Refilling empties the combo's text as well.
void frmGroups::FillGroupCombo() {
    DialogControl& combo = Control("cboGroup");
    ClearEntries(combo);
    if (!processes_->HasGroups()) return;
    for (const auto& group : *processes_->Groups()) combo.entries.push_back(group->name);
}

void frmGroups::FillGroupList() {
    DialogControl& list = Control("lstGroups");
    ClearEntries(list);
    for (const auto& name : names_) list.entries.push_back(*name);
}

void frmGroups::UpdateEnabling() {
    const bool named = !vb::Trim(Control("cboGroup").text).empty();
    const bool selected = SelectedEntry(Control("lstGroups")) != nullptr;
    Control("cmdGroupAdd").enabled = named;
    Control("cmdRename").enabled = named;
    Control("cmdDelete").enabled = named;
    Control("cmdGroupRemove").enabled = selected;
    Control("cmdGroupEdit").enabled = selected;
}

}  // namespace flowloom::dialogs
