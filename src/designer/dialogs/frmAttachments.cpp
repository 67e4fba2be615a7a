#include "designer/dialogs/frmAttachments.h"

#include "designer/dialogs/DialogLists.h"
#include "support/Prompts.h"
#include "support/TextCompare.h"
#include "support/VbStrings.h"

namespace flowloom::dialogs {

namespace {

const char* const kSuggestions[] = {
    "[Use mail merge document]",
    "[SelectFile]",
    "[SelectFileOnce]",
    "[Function:CurrentProject.Path]",
    "[Function:CurrentProject.Path]\\[Template]",
    "[My Documents]",
    "[My Documents]\\[Template]",
    "C:\\TEMP",
};

bool AsksForAFile(const std::string& expression) {
    constexpr std::string_view prefix = "[SelectFile";
    return expression.size() >= prefix.size() && EqualsNoCase(std::string_view(expression).substr(0, prefix.size()), prefix);
}

}  // namespace

frmAttachments::frmAttachments(const std::string& attachments) : ModalDialog("Attachments") {
    Add(MakeControl("lblFile", ControlKind::Label, "File", {0, 0}));
    Add(MakeControl("cboAttachment", ControlKind::ComboBox, "", {1, 0}));
    Add(MakeControl("cmdAttachmentAdd", ControlKind::Button, "Add", {1, 1}));
    Add(MakeControl("lstAttachments", ControlKind::ListBox, "", {2, 0, 3, 1}));
    Add(MakeControl("cmdAttachmentEdit", ControlKind::Button, "Edit", {2, 1}));
    Add(MakeControl("cmdAttachmentRemove", ControlKind::Button, "Remove", {3, 1}));
    Add(MakeControl("cmdOK", ControlKind::Button, "OK", {0, 2}));
    Add(MakeControl("cmdCancel", ControlKind::Button, "Cancel", {1, 2}));
    Add(MakeControl("cmdHelp", ControlKind::Button, "Help", {2, 2}));
    Control("cboAttachment").entries.assign(std::begin(kSuggestions), std::end(kSuggestions));
    auto& lines = Control("lstAttachments").entries;
    for (const std::string& line : vb::Split(attachments, "\r\n")) {
        std::string trimmed = vb::Trim(line);
        if (!trimmed.empty()) lines.push_back(std::move(trimmed));
    }
    UpdateEnabling();
}

void frmAttachments::Changed(DialogControl&) { UpdateEnabling(); }

void frmAttachments::Picked(DialogControl&) { UpdateEnabling(); }

void frmAttachments::Clicked(DialogControl& button) {
    if (button.name == "cmdAttachmentAdd") AddLine();
    else if (button.name == "cmdAttachmentEdit") EditLine();
    else if (button.name == "cmdAttachmentRemove") RemoveLine();
    else if (button.name == "cmdOK") {
        result_ = JoinLines(Control("lstAttachments").entries);
        Close(true);
    } else if (button.name == "cmdCancel") {
        Close(false);
    } else if (button.name == "cmdHelp" && OnHelp) {
        OnHelp();
    }
}

void frmAttachments::AddLine() {
    const std::string expression = Control("cboAttachment").text;
    if (vb::Trim(expression).empty()) return;
    if (MayBeAdded(expression)) Control("lstAttachments").entries.push_back(expression);
    UpdateEnabling();
}

// The line itself counts too: an answer equal to it is "already added".
void frmAttachments::EditLine() {
    DialogControl& list = Control("lstAttachments");
    const std::string* line = SelectedEntry(list);
    if (!line) return;
    auto answer = CurrentPrompts().InputBox("Edit the path and file name of Attachment", "Edit", *line);
    if (answer && !answer->empty() && MayBeAdded(*answer))
        list.entries[static_cast<std::size_t>(list.listIndex)] = *answer;
    UpdateEnabling();
}

void frmAttachments::RemoveLine() {
    DialogControl& list = Control("lstAttachments");
    if (!SelectedEntry(list)) return;
    RemoveEntry(list, list.listIndex);
    UpdateEnabling();
}

bool frmAttachments::MayBeAdded(const std::string& expression) const {
    if (AsksForAFile(expression)) return true;
    for (const std::string& line : Control("lstAttachments").entries) {
        if (EqualsNoCase(line, expression)) {
            MsgBox("This expression is already added.", msgbox::Exclamation);
            return false;
        }
    }
    return true;
}

void frmAttachments::UpdateEnabling() {
    const bool selected = SelectedEntry(Control("lstAttachments")) != nullptr;
    Control("cmdAttachmentAdd").enabled = !vb::Trim(Control("cboAttachment").text).empty();
    Control("cmdAttachmentEdit").enabled = selected;
    Control("cmdAttachmentRemove").enabled = selected;
}

}  // namespace flowloom::dialogs
