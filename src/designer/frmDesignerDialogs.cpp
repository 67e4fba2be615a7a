// The dialogs the grid's browse buttons open (field values, attachments,
// groups) and the options dialog: opening them, passing a person's actions
// on, and taking their results to the model when they close with OK.
#include "designer/FrmDesignerParts.h"

#include "app/CXmlMessages.h"
#include "designer/HelpGuide.h"
#include "designer/access/AccessObjects.h"
#include "designer/dialogs/frmAttachments.h"
#include "designer/dialogs/frmFieldValues.h"
#include "designer/dialogs/GroupsResult.h"
#include "designer/dialogs/frmGroups.h"
#include "grid/HeadlessGrid.h"
#include "grid/Properties.h"
#include "grid/Property.h"
#include "model/AddRecord.h"
#include "model/Process.h"
#include "model/Processes.h"
#include "options/dialog/frmOptions.h"
#include "sheets/FieldValuesText.h"
#include "sheets/PropertySheets.h"
#include "support/Prompts.h"
#include "support/ReportError.h"
#include "support/TextCompare.h"
#include "support/ToolLauncher.h"
#include "support/VbStrings.h"

#include <cstdlib>

namespace flowloom::designer {

namespace {

constexpr int kProcessKind = 1;
constexpr int kSendMailKind = 14;
constexpr int kAddRecordKind = 16;

int KindOf(const std::string& tag) { return std::atoi(tag.c_str()); }

// The selected row when it still is the one a dialog was opened for.
grid::Property* RowStillSelected(PropertyGridHost& grid, const grid::Property* row) {
    grid::Property* selected = grid.SelectedItem();
    return selected == row ? selected : nullptr;
}

}  // namespace

// --- showing a dialog and acting on it --------------------------------------------

void frmDesigner::ShowDialog(std::unique_ptr<ModalDialog> dialog, std::string formName, DialogDone done) {
    closedDialog_.reset();
    dialog_ = std::move(dialog);
    dialogForm_ = std::move(formName);
    dialogDone_ = std::move(done);
    Notify(changed::Dialog);
    view_.ShowDialog(*dialog_);
    FinishDialogIfClosed();
    // A window returns only once the dialog is done with.
    if (!dialog_) closedDialog_.reset();
}

void frmDesigner::FinishDialogIfClosed() {
    if (!dialog_ || !dialog_->Closed()) return;
    // The caller's part runs after the dialog is off the screen; the dialog
    // itself lives on until the window that showed it has let go.
    closedDialog_ = std::move(dialog_);
    DialogDone done = std::move(dialogDone_);
    dialogDone_ = nullptr;
    if (dialogGridHost_) dialogGridHost_->SetEvents(nullptr);
    dialogGridHost_ = nullptr;
    Notify(changed::Dialog);
    if (done) done(*closedDialog_);
}

template <typename Action>
bool frmDesigner::DialogAction(const std::string& control, const char* event, Action&& action) {
    if (!dialog_) return false;
    bool acted = false;
    // A dialog has no report of its own: what escapes a handler is reported
    // under the dialog and the control, and the dialog stays usable.
    // A handler that failed half-way has still taken the action.
    if (!Guarded(dialogForm_, control + event, [&] { acted = action(*dialog_); })) acted = true;
    FinishDialogIfClosed();
    return acted;
}

bool frmDesigner::DialogSetText(const std::string& control, const std::string& text) {
    return DialogAction(control, "_Change", [&](ModalDialog& d) { return d.SetText(control, text); });
}

bool frmDesigner::DialogPick(const std::string& control, int index) {
    return DialogAction(control, "_Click", [&](ModalDialog& d) { return d.Pick(control, index); });
}

bool frmDesigner::DialogClick(const std::string& button) {
    return DialogAction(button, "_Click", [&](ModalDialog& d) { return d.Click(button); });
}

void frmDesigner::DialogCloseBox() {
    DialogAction("Form", "_Unload", [](ModalDialog& d) {
        d.CloseBox();
        return true;
    });
}

grid::PropertyGridHost* frmDesigner::OpenDialogGrid() const noexcept { return dialog_ ? dialogGridHost_ : nullptr; }

void frmDesigner::OpenDialogHelp() {
    const int kind = KindOf(propListTag_);
    OpenHelp(kind > 0 ? SheetHelpContext(kind) : kDesignerHelpContext);
}

// --- the browse buttons ---------------------------------------------------------

void frmDesigner::Browse(grid::Property& iProp, std::string&) {
    Guarded("frmDesigner", "PropList_Browse", [&] {
        const std::string& key = iProp.Tag().Text();
        if (key == "Groups") return BrowseGroups();
        if (KindOf(propListTag_) == kSendMailKind && key == "Body") return EditSendMailBody(iProp);
    });
}

void frmDesigner::cmdBrowse_Click() {
    BeginAction();
    Guarded("frmDesigner", "cmdBrowse_Click", [&] {
        grid::Property* row = grid_.SelectedItem();
        if (!row) return;
        const std::string& key = row->Tag().Text();
        if (key == "FieldValues") return BrowseFieldValues(*row);
        if (key == "Attachments") return BrowseAttachments(*row);
    });
}

void frmDesigner::BrowseFieldValues(grid::Property& row) {
    const int kind = KindOf(propListTag_);
    auto form = std::make_unique<dialogs::frmFieldValues>();
    form->Processes = Processes_;
    form->Process = mProcess;
    if (kind == kAddRecordKind) {
        auto addRecord = std::dynamic_pointer_cast<AddRecord>(SelectedActivity());
        if (!addRecord) return;
        if (addRecord->Tablename().empty()) {
            MsgBox("Please select a table first.", msgbox::Exclamation);
            for (std::int32_t i = 1; i <= grid_.Rows().Count(); ++i)
                if (EqualsNoCase(grid_.Rows().Item(i).Tag().Text(), "TableName")) SelectRow(grid_.Rows().Item(i));
            return;
        }
        form->AddRecord = addRecord;
    } else if (kind == kProcessKind && mProcess) {
        if (const auto fields = sheets::KeptFieldList(fieldListMemo_, *mProcess))
            form->Fields = vb::Join(*fields, ";");
    }
    form->TableFields = [](const std::string& table, const Database* database) {
        return access::GetTableFields(table, database);
    };
    form->OnHelp = [this] { OpenDialogHelp(); };
    form->init();
    grid::Property* opened = &row;
    ShowDialog(std::move(form), "frmFieldValues", [this, opened](ModalDialog& dialog) {
        if (!dialog.OK()) return;
        if (grid::Property* same = RowStillSelected(grid_, opened))
            ApplyDialogResult(*same, static_cast<dialogs::frmFieldValues&>(dialog).Result());
    });
}

void frmDesigner::BrowseAttachments(grid::Property& row) {
    auto form = std::make_unique<dialogs::frmAttachments>(row.value());
    form->OnHelp = [this] { OpenDialogHelp(); };
    grid::Property* opened = &row;
    ShowDialog(std::move(form), "frmAttachments", [this, opened](ModalDialog& dialog) {
        if (!dialog.OK()) return;
        if (grid::Property* same = RowStillSelected(grid_, opened))
            ApplyDialogResult(*same, static_cast<dialogs::frmAttachments&>(dialog).Result());
    });
}

// The result becomes the row's value through the sheet's handler, as an
// edit typed into the row would.
void frmDesigner::ApplyDialogResult(grid::Property& row, std::string text) {
    bool cancel = false;
    ValueChanged(row, text, cancel);
    if (!cancel && RowStillSelected(grid_, &row)) row.SetValue(text);
    Notify(changed::Sheet);
}

void frmDesigner::BrowseGroups() {
    if (!mProcess || !Processes_) return;
    auto form = std::make_unique<dialogs::frmGroups>();
    if (!form->init(mProcess, Processes_)) return;
    form->OnHelp = [this] { OpenDialogHelp(); };
    const std::shared_ptr<Process> process = mProcess;
    ShowDialog(std::move(form), "frmGroups", [this, process](ModalDialog& dialog) {
        if (!dialog.OK()) return;
        dialogs::ReplaceProcessGroups(*process, static_cast<dialogs::frmGroups&>(dialog).Result());
        // A changed process is one whose name must be asked before leaving it.
        mNewProcessChanged = true;
        Notify(changed::Sheet);
    });
}

// --- the options --------------------------------------------------------------

void frmDesigner::ShowOptions() {
    if (!Processes_) return;
    Guarded("frmDesigner", "mnuOptions_Click", [&] {
        grid::PropertyGridHost* host = view_.DialogGrid();
        if (!host) {
            dialogGrid_ = std::make_unique<grid::HeadlessGrid>();
            host = dialogGrid_.get();
        }
        auto form = std::make_unique<options::frmOptions>(*host);
        host->SetEvents(form.get());
        dialogGridHost_ = host;
        form->SetParent(messagesLoaded_ ? &Messages() : nullptr);
        form->SetToolStarter([](editor::HtmlEditorHost& owner, std::string& text, std::string& file, bool plain) {
            return editor::OpenHtmlEditor(owner, text, file, plain, "", false);
        });
        form->SetToolResultReader([](const std::string& file) { return editor::ReadToolResult(file); });
        form->OnHelp = [this] { OpenHelp(kDesignerHelpContext); };
        form->SetProcesses(Processes_);
        ShowDialog(std::move(form), "frmOptions", nullptr);
    });
}

}  // namespace flowloom::designer
