#include "options/dialog/frmOptions.h"

#include "app/CDictionary.h"
#include "app/CXmlMessages.h"
#include "app/XmlDocument.h"
#include "grid/Properties.h"
#include "grid/Property.h"
#include "grid/PropertyGridHost.h"
#include "model/OptionPlaceholders.h"
#include "model/Processes.h"
#include "options/DefaultOptions.h"
#include "options/OptionKinds.h"
#include "options/Options.h"
#include "sheets/SheetRows.h"
#include "support/CFSO.h"
#include "support/FileHelpers.h"
#include "support/Printers.h"
#include "support/Prompts.h"
#include "support/ReportError.h"
#include "support/TextCompare.h"
#include "support/ToolLauncher.h"
#include "support/VbStrings.h"

#include <utility>

namespace flowloom::options {

namespace {

constexpr const char* kModule = "frmOptions";
constexpr std::string_view kHtmlTemplate = "DefaultEmailTemplateHTML";
constexpr std::string_view kPlainTemplate = "DefaultEmailTemplatePlainText";
constexpr const char* kControls[] = {"lstOptions", "PropList", "txtOptionInfo", "txtPropInfo",
                                     "cmdOK",      "cmdCancel", "cmdHelp"};

int ItemTypeOf(OptionEditor editor) {
    switch (editor) {
    case OptionEditor::Text: return grid::ExPropText;
    case OptionEditor::YesNo: return grid::ExPropBoolean;
    case OptionEditor::Number: return grid::ExPropNumber;
    case OptionEditor::Memo: return grid::ExPropMemo;
    case OptionEditor::List: return grid::ExPropCustomList;
    case OptionEditor::File: return grid::ExPropFile;
    case OptionEditor::Folder: return grid::ExPropFolder;
    case OptionEditor::Tool: return grid::ExPropBrowse;
    }
    return grid::ExPropText;
}

bool IsTemplateKey(std::string_view key) { return EqualsNoCase(key, kHtmlTemplate) || EqualsNoCase(key, kPlainTemplate); }

// A mail template is edited in the tool and shown only by its style.
std::string TemplateShortText(std::string_view key, const std::string& value) {
    if (value.empty()) return "(None)";
    return EqualsNoCase(key, kHtmlTemplate) ? "(HTML)" : "(Text)";
}

// The file's options without the details, which only the definitions use.
std::shared_ptr<flowloom::Options> CopyValues(const flowloom::Options* source) {
    auto copy = std::make_shared<flowloom::Options>();
    if (!source) return copy;
    for (const auto& item : *source) {
        if (!item || (!item->name.empty() && copy->Find(item->name))) continue;
        auto clone = std::make_shared<OptionItem>();
        clone->name = item->name;
        if (item->Attributes)
            for (const auto& attribute : *item->Attributes)
                if (attribute)
                    clone->Attributes->TryAdd(std::make_shared<CDictionary>(attribute->name, attribute->value),
                                              attribute->name);
        copy->Add(clone, clone->name);
    }
    return copy;
}

DialogControl MakeControl(std::string name, ControlKind kind, ControlCell cell, std::string caption = {}) {
    DialogControl control;
    control.name = std::move(name);
    control.kind = kind;
    control.cell = cell;
    control.caption = std::move(caption);
    return control;
}

// Nothing paints while the rows are built.
class HoldDraw {
public:
    explicit HoldDraw(grid::PropertyGridHost& grid) : grid_(grid) { grid_.SetHoldDraw(true); }
    ~HoldDraw() { grid_.SetHoldDraw(false); }
    HoldDraw(const HoldDraw&) = delete;
    HoldDraw& operator=(const HoldDraw&) = delete;

private:
    grid::PropertyGridHost& grid_;
};

// Applies the details of a value (file filter, list) to its row; the default
// text, still with its placeholders.
std::string ApplyDetails(const OptionItem& definition, const std::string& name, grid::Property& row) {
    std::string fallback;
    const auto details = definition.Properties ? definition.Properties->Find(name) : nullptr;
    if (!details) return fallback;
    for (const auto& detail : *details) {
        if (!detail || detail->value.IsObject()) continue;
        const std::string text = detail->value.Text();
        if (EqualsNoCase(detail->name, "FileFilter")) row.SetDialogFilter(vb::Replace(text, "{0}", std::string(1, '\0')));
        else if (EqualsNoCase(detail->name, "Default")) fallback = text;
        else if (EqualsNoCase(detail->name, "List")) row.SetListItems(sheets::SplitList(text));
    }
    return fallback;
}

}  // namespace

std::vector<std::string> OptionsHelpKeys() {
    std::vector<std::string> keys;
    const auto definitions = LoadDefaultOptions();
    for (const auto& group : *definitions) {
        keys.push_back(group->name);
        for (const auto& attribute : *group->Attributes) keys.push_back(group->name + "." + attribute->name);
    }
    return keys;
}

frmOptions::frmOptions(grid::PropertyGridHost& grid) : ModalDialog("Options"), grid_(grid) {
    // The list left, the grid right, their help texts under them, the buttons at the bottom.
    Add(MakeControl("lstOptions", ControlKind::ListBox, {0, 0, 1, 1}));
    Add(MakeControl("PropList", ControlKind::Grid, {0, 1, 1, 3}));
    Add(MakeControl("txtOptionInfo", ControlKind::TextBox, {1, 0, 1, 1})).readOnly = true;
    Add(MakeControl("txtPropInfo", ControlKind::TextBox, {1, 1, 1, 3})).readOnly = true;
    Add(MakeControl("cmdOK", ControlKind::Button, {2, 1, 1, 1}, "OK"));
    Add(MakeControl("cmdCancel", ControlKind::Button, {2, 2, 1, 1}, "Cancel"));
    Add(MakeControl("cmdHelp", ControlKind::Button, {2, 3, 1, 1}, "Help"));
}

void frmOptions::SetProcesses(std::shared_ptr<Processes> processes) {
    processes_ = std::move(processes);
    values_ = CopyValues(processes_ ? processes_->Options().get() : nullptr);
    OptionList();
}

const flowloom::Options& frmOptions::Options() const {
    static const flowloom::Options kNone;
    return definitions_ ? *definitions_ : kNone;
}

std::string frmOptions::ToolsFolder() const {
    const std::string folder = processes_ ? DatabaseFolder(*processes_) : std::string();
    return folder.empty() ? std::string() : folder + "tools";
}

void frmOptions::Dispose() {
    // Only the references go: after OK the copy is the file's options.
    processes_.reset();
    values_.reset();
    definitions_.reset();
    messages_ = nullptr;
}

bool frmOptions::LoadOptionsList() {
    definitions_.reset();
    XmlDocument document;
    const std::string_view text = definitionsXml_ ? std::string_view(*definitionsXml_) : DefaultOptionsXml();
    std::string failure;
    if (!document.LoadXml(text) || !document.DocumentElement()) {
        const XmlParseError& error = document.ParseError();
        failure = "Error: Line " + std::to_string(error.line) + "\r\n" + error.reason + "\r\n" + error.srcText;
    } else if (const pugi::xml_node root = document.Native().child("Options"); !root) {
        failure = "The top level node is not 'Options'.";
    } else {
        auto definitions = std::make_shared<flowloom::Options>();
        definitions->LoadElement(root);
        definitions_ = std::move(definitions);
    }
    if (!failure.empty()) MsgBox(failure, msgbox::Critical);
    return definitions_ != nullptr;
}

void frmOptions::OptionList() {
    Guarded(kModule, "OptionList", [&] {
        if (!LoadOptionsList()) definitions_ = values_;
        DialogControl& list = Control("lstOptions");
        list.entries.clear();
        list.listIndex = -1;
        if (!definitions_) return;
        for (const auto& item : *definitions_) list.entries.push_back(item->name);
        if (list.entries.empty()) return;
        list.listIndex = 0;
        lstOptions_Click();
    });
}

void frmOptions::lstOptions_Click() {
    const DialogControl& list = Control("lstOptions");
    if (list.listIndex < 0) return;
    if (messages_) Control("txtOptionInfo").text = messages_->GetMessage(list.entries[static_cast<std::size_t>(list.listIndex)]);
    OpenPropList();
}

void frmOptions::OpenPropList() {
    Guarded(kModule, "OpenPropList", [&] {
        const int selected = Control("lstOptions").listIndex;
        if (!definitions_ || selected < 0) return;
        const auto definition = definitions_->Item(selected + 1);
        propListTag_ = definition->name;
        HoldDraw hold(grid_);
        grid_.Rows().Clear();
        for (const auto& attribute : *definition->Attributes) AddOptionRow(*definition, *attribute);
    });
}

void frmOptions::AddOptionRow(const OptionItem& definition, const CDictionary& attribute) {
    const std::string name = attribute.name;
    const OptionKind kind = KindOfDigit(attribute.value.Text());
    grid::Property& row = sheets::AddRow(grid_.Rows(), {name, ItemTypeOf(kind.editor)});
    row.SetLockedEdit(kind.lockedEdit);
    const bool isList = row.ItemType() == grid::ExPropCustomList;
    if (isList && EqualsNoCase(name, "PostscriptPrinter")) row.SetListItems(GetPrinterChoices());

    std::string fallback;
    try {
        fallback = ApplyDetails(definition, name, row);
    } catch (...) {
        // Details that do not read leave the row as the grid made it.
    }
    // The stored value, else the default as it reads for this file; only an
    // edit stores anything.
    std::string value = OptionValue(values_.get(), definition.name, name);
    if (value.empty() && processes_) value = ReplaceOptionPlaceholders(fallback, *processes_);
    if (value.empty() && isList && row.ListItems() && !row.ListItems()->empty()) value = row.ListItems()->front();
    row.SetValue(IsTemplateKey(name) ? TemplateShortText(name, value) : value);
}

std::string frmOptions::StoreValue(grid::Property& row, const std::string& text) {
    if (!values_) return text;
    // Captions differ from the names only by blanks.
    const std::string name = vb::Replace(row.name(), " ", "");
    auto group = values_->Find(propListTag_);
    if (!group) {
        group = std::make_shared<OptionItem>();
        group->name = propListTag_;
        values_->Add(group, propListTag_);
    }
    auto entry = group->Attributes->Find(name);
    if (!entry) {
        entry = std::make_shared<CDictionary>(name, row.value());
        group->Attributes->Add(entry, name);
    }
    entry->value = TaggedValue(text);

    const std::string key = sheets::RowTag(row);
    if (!IsTemplateKey(key)) return text;
    std::string shown = TemplateShortText(key, text);
    row.SetValue(shown);
    return shown;
}

void frmOptions::SelChange(grid::Property*, grid::Property* iPropNew) {
    if (!messages_ || !iPropNew) return;
    Control("txtPropInfo").text = messages_->GetMessage(propListTag_ + "." + sheets::RowTag(*iPropNew));
}

void frmOptions::ValueChanged(grid::Property& iProp, std::string& sNewValue, bool&) {
    Guarded(kModule, "PropList_ValueChanged", [&] { sNewValue = StoreValue(iProp, sNewValue); });
}

void frmOptions::Browse(grid::Property& iProp, std::string&) {
    const std::string key = sheets::RowTag(iProp);
    if (!IsTemplateKey(key) || !starter_ || ToolRunning()) return;
    Guarded(kModule, "PropList_Browse", [&] {
        std::string text = OptionValue(values_.get(), propListTag_, key);
        std::string file;
        toolWindow_ = starter_(*this, text, file, EqualsNoCase(key, kPlainTemplate));
        toolFile_ = std::move(file);
    });
}

void frmOptions::SetEnabled(bool enabled) {
    enabled_ = enabled;
    for (const char* name : kControls) Control(name).enabled = enabled;
}

void frmOptions::Timer1_Timer(bool formInFront, bool toolWindowThere) {
    if (!ToolRunning()) return;
    // The tool stays on top of the dialog for as long as it lives.
    const bool ended = !toolWindowThere || (formInFront && !CurrentToolLauncher().BringToFront());
    if (!ended) return;
    if (OnBringToFront) OnBringToFront();
    ToolEnded();
}

void frmOptions::ToolEnded() {
    SetTimerInterval(0);
    toolWindow_ = 0;
    const std::string file = std::exchange(toolFile_, std::string());
    try {
        grid::Property* row = grid_.SelectedItem();
        if (reader_ && row) row->SetValue(StoreValue(*row, reader_(file)));
    } catch (...) {
        // The template keeps its old text.
    }
    if (!file.empty() && FileExists(file)) SharedFSO().DeleteFile(file, false, false, true);
    SetEnabled(true);
}

void frmOptions::Picked(DialogControl& control) {
    if (control.name == "lstOptions") lstOptions_Click();
}

void frmOptions::Clicked(DialogControl& button) {
    if (button.name == "cmdOK") {
        // Replacing the options counts as an edit of the file; whether
        // anything changed, the unsaved-change check finds out.
        if (processes_ && values_) processes_->SetOptions(values_);
        Dispose();
        Close(true);
    } else if (button.name == "cmdCancel") {
        Dispose();
        Close(false);
    } else if (button.name == "cmdHelp") {
        if (OnHelp) OnHelp();
    }
}

}  // namespace flowloom::options
