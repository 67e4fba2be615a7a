#include "designer/dialogs/frmFieldValues.h"

#include "designer/dialogs/DialogLists.h"
#include "model/Activities.h"
#include "model/AddRecord.h"
#include "model/Convert.h"
#include "model/Database.h"
#include "model/FieldValue.h"
#include "model/Process.h"
#include "model/Processes.h"
#include "model/SaveAs.h"
#include "support/Prompts.h"
#include "support/VbStrings.h"

#include <algorithm>
#include <exception>

namespace flowloom::dialogs {

namespace {

// The value suggestions every use of the dialog offers first.
const char* const kFixedValues[] = {
    "[Function:CurrentProject.Path]",
    "[Function:Date()]",
    "[Template]_[Function:Date()]",
    "[Function:Format(Now(),'mmddyy')]",
    "[Template]_[Function:Format(Now(),'mmddyy')]",
    "[RecordNumber]",
};

// The four ways to name a document: full name, short name, hyperlink, and
// the hyperlink as "short#full#". `linkSuffix` is the suffix of the full
// name inside that last form: for numbered SaveAs activities the saved
// documents have always written it without the blank ("SaveAsn"), and the
// run-time expects it so.
void AddForms(std::vector<std::string>& to, const std::string& suffix, const std::string& linkSuffix) {
    to.push_back("[documentfullname" + suffix + "]");
    to.push_back("[documentshortname" + suffix + "]");
    to.push_back("[DocumentHyperlink" + suffix + "]");
    to.push_back("[documentshortname" + suffix + "]#[documentfullname" + linkSuffix + "]#");
}

// Only a Convert that knows its folder and file names a document to offer.
bool NamesItsFile(const Convert& convert) { return !convert.Folder().empty() && !convert.File().empty(); }

void AddConvertForms(std::vector<std::string>& to, const std::vector<std::shared_ptr<Convert>>& converts) {
    if (converts.size() == 1) {
        if (NamesItsFile(*converts.front())) AddForms(to, ":Convert", ":Convert");
        return;
    }
    // Numbered among all converts, also those that are not offered.
    for (std::size_t i = 0; i < converts.size(); ++i) {
        if (!NamesItsFile(*converts[i])) continue;
        const std::string suffix = ":Convert " + std::to_string(i + 1);
        AddForms(to, suffix, suffix);
    }
}

// The names of the documents the SaveAs and Convert activities of a process
// produce: without suffix for a lone SaveAs, else with the activity's type
// and, when there are several of a type, its number.
std::vector<std::string> DocumentSuggestions(const flowloom::Process& process) {
    std::vector<std::shared_ptr<SaveAs>> saves;
    std::vector<std::shared_ptr<Convert>> converts;
    if (auto activities = process.Activities()) {
        for (const auto& activity : *activities) {
            if (auto save = std::dynamic_pointer_cast<SaveAs>(activity)) saves.push_back(save);
            else if (auto convert = std::dynamic_pointer_cast<Convert>(activity)) converts.push_back(convert);
        }
    }
    std::vector<std::string> forms;
    if (saves.size() == 1 && converts.empty()) {
        AddForms(forms, "", "");
        return forms;
    }
    if (saves.size() == 1) {
        AddForms(forms, ":SaveAs", ":SaveAs");
    } else {
        for (std::size_t i = 1; i <= saves.size(); ++i)
            AddForms(forms, ":SaveAs " + std::to_string(i), ":SaveAs" + std::to_string(i));
    }
    AddConvertForms(forms, converts);
    return forms;
}

// Runs one filling step; a failure ends that step and nothing more.
template <typename Step>
void Quietly(Step&& step) {
    try {
        step();
    } catch (const std::exception&) {
    }
}

}  // namespace

frmFieldValues::frmFieldValues() : ModalDialog("FieldValues") {
    Add(MakeControl("lblField", ControlKind::Label, "Field", {0, 0}));
    Add(MakeControl("lblValue", ControlKind::Label, "Value", {0, 1}));
    Add(MakeControl("cboField", ControlKind::ComboBox, "", {1, 0}));
    Add(MakeControl("cboValue", ControlKind::ComboBox, "", {1, 1}));
    Add(MakeControl("cmdFieldValueAdd", ControlKind::Button, "Add", {1, 2}));
    Add(MakeControl("lstFieldValues", ControlKind::ListBox, "", {2, 0, 3, 2}));
    Add(MakeControl("cmdFieldValueEdit", ControlKind::Button, "Edit", {2, 2}));
    Add(MakeControl("cmdFieldValueRemove", ControlKind::Button, "Remove", {3, 2}));
    Add(MakeControl("cmdOK", ControlKind::Button, "OK", {0, 3}));
    Add(MakeControl("cmdCancel", ControlKind::Button, "Cancel", {1, 3}));
    Add(MakeControl("cmdHelp", ControlKind::Button, "Help", {2, 3}));
    Control("cboValue").entries.assign(std::begin(kFixedValues), std::end(kFixedValues));
    UpdateEnabling();
}

void frmFieldValues::init() {
    Quietly([this] { FillFields(); });
    Quietly([this] { ShowPresentValues(); });
    Quietly([this] { AddDocumentSuggestions(); });
    UpdateEnabling();
}

void frmFieldValues::FillFields() {
    DialogControl& combo = Control("cboField");
    if (!Fields.empty()) {
        combo.entries = vb::Split(Fields, ";");
    } else if (Processes && AddRecord && TableFields) {
        if (auto database = Processes->GetDatabaseByName(AddRecord->Database()))
            combo.entries = TableFields(AddRecord->Tablename(), database.get());
    }
    if (combo.entries.empty()) return;
    combo.listIndex = 0;
    combo.text = combo.entries.front();
}

// A field that has a value is not offered again until its line is removed.
void frmFieldValues::ShowPresentValues() {
    std::shared_ptr<FieldValues> values;
    if (AddRecord) values = AddRecord->HasFieldValues() ? AddRecord->FieldValues() : nullptr;
    else if (Process) values = Process->HasFieldValues() ? Process->FieldValues() : nullptr;
    if (!values) return;
    DialogControl& list = Control("lstFieldValues");
    DialogControl& fields = Control("cboField");
    for (const auto& value : *values) {
        list.entries.push_back(value->field + " = " + value->value);
        auto found = std::find(fields.entries.begin(), fields.entries.end(), std::string_view(value->field));
        if (found != fields.entries.end()) RemoveEntry(fields, static_cast<int>(found - fields.entries.begin()));
    }
}

void frmFieldValues::AddDocumentSuggestions() {
    auto process = Process ? Process : (AddRecord ? AddRecord->ParentProcess() : nullptr);
    if (!process) return;
    auto suggestions = DocumentSuggestions(*process);
    auto& values = Control("cboValue").entries;
    values.insert(values.end(), suggestions.begin(), suggestions.end());
}

void frmFieldValues::Changed(DialogControl&) { UpdateEnabling(); }

void frmFieldValues::Picked(DialogControl&) { UpdateEnabling(); }

void frmFieldValues::Clicked(DialogControl& button) {
    if (button.name == "cmdFieldValueAdd") AddLine();
    else if (button.name == "cmdFieldValueEdit") EditLine();
    else if (button.name == "cmdFieldValueRemove") RemoveLine();
    else if (button.name == "cmdOK") {
        result_ = JoinLines(Control("lstFieldValues").entries);
        Close(true);
    } else if (button.name == "cmdCancel") {
        Close(false);
    } else if (button.name == "cmdHelp" && OnHelp) {
        OnHelp();
    }
}

// The field offered is taken out of the combo by its selected entry, so a
// typed field (no entry selected) adds its line and then fails with error 5.
void frmFieldValues::AddLine() {
    DialogControl& field = Control("cboField");
    const DialogControl& value = Control("cboValue");
    if (field.text.empty() || value.text.empty()) return;
    Control("lstFieldValues").entries.push_back(field.text + " = " + value.text);
    RemoveEntry(field, field.listIndex);
    UpdateEnabling();
}

// The edited line is taken as typed, "=" or not.
void frmFieldValues::EditLine() {
    DialogControl& list = Control("lstFieldValues");
    const std::string* line = SelectedEntry(list);
    if (!line) return;
    auto answer = CurrentPrompts().InputBox("Edit the FieldValue", "Edit", *line);
    if (answer && !answer->empty()) list.entries[static_cast<std::size_t>(list.listIndex)] = *answer;
    UpdateEnabling();
}

// The line goes, and its field is offered again, at the end.
void frmFieldValues::RemoveLine() {
    DialogControl& list = Control("lstFieldValues");
    const std::string* line = SelectedEntry(list);
    if (!line) return;
    const std::string field = vb::Trim(line->substr(0, line->find('=')));
    RemoveEntry(list, list.listIndex);
    Control("cboField").entries.push_back(field);
    UpdateEnabling();
}

void frmFieldValues::UpdateEnabling() {
    const bool selected = SelectedEntry(Control("lstFieldValues")) != nullptr;
    Control("cmdFieldValueAdd").enabled = !Control("cboField").text.empty() && !Control("cboValue").text.empty();
    Control("cmdFieldValueEdit").enabled = selected;
    Control("cmdFieldValueRemove").enabled = selected;
}

}  // namespace flowloom::dialogs
