// Menus, toolbar and context menus: the enabling rules run when a menu
// opens, and each entry's command.
#include "designer/FrmDesignerParts.h"

#include "designer/HelpGuide.h"
#include "codegen/CCodeGenerator.h"
#include "codegen/GenerateCodeCommands.h"
#include "model/Activities.h"
#include "model/Process.h"
#include "model/Processes.h"
#include "support/Prompts.h"
#include "support/ReportError.h"
#include "verify/ProcessVerifier.h"

#include <map>

namespace flowloom::designer {

namespace {

std::string PasteCaption(bool enabled, const std::string& name) { return enabled ? "Paste " + name : "Paste"; }

}  // namespace

// --- enabling rules -------------------------------------------------------------

void frmDesigner::OpenMenu(const std::string& menu) {
    if (menu == "mnuProcess") mnuProcess_Click();
    else if (menu == "mnuDatabase") mnuDatabase_Click();
    else if (menu == "mnuProcessDatasource") mnuProcessDatasource_Click();
    else if (menu == "mnuProcessActivity") mnuProcessActivity_Click();
}

void frmDesigner::mnuProcess_Click() {
    Guarded("frmDesigner", "mnuProcess_Click", [&] {
        const bool member = list_.ListIndex() != 0;
        for (const char* name : {"mnuProcessRename", "mnuProcessDelete", "mnuProcessCopy", "mnuProcessNewFromExisting"})
            menus_.SetEnabled(name, member);
        const bool paste = mClipboard.TypeName() == "Process";
        menus_.SetEnabled("mnuProcessPaste", paste);
        menus_.SetCaption("mnuProcessPaste", PasteCaption(paste, "copy of " + mClipboard.Name()));
    });
}

// The rule shared by the two strips: Delete (and Copy) with a selection,
// the moves within the strip's ends.
void frmDesigner::StripMenuRule(Strip strip, const StripMenuEntries& entries) {
    try {
        const StripState& state = StripOf(strip);
        const HtmlTable* table = state.page.getElementById(state.tableId);
        const int n = table && table->RowCount() > 0 ? table->rows(0).CellCount() : 0;
        const std::int32_t p = n != 0 ? SelectedStripPosition(strip) : 0;
        const int k = p - 1;
        menus_.SetEnabled(entries.remove, p != 0);
        if (entries.copy) menus_.SetEnabled(entries.copy, p != 0);
        menus_.SetEnabled(entries.right, p != 0 && k >= 0 && k < n - 1);
        menus_.SetEnabled(entries.left, p != 0 && k >= 1 && k <= n - 1);
    } catch (...) {
    }
}

void frmDesigner::mnuDatabase_Click() {
    StripMenuRule(Strip::Database, {"mnuDatabaseDelete", nullptr, "mnuDatabaseMoveLeft", "mnuDatabaseMoveRight"});
}

void frmDesigner::mnuProcessDatasource_Click() {
    StripMenuRule(Strip::Datasource, {"mnuProcessDatasourceDelete", "mnuProcessDatasourceCopy",
                                      "mnuProcessDatasourceLeft", "mnuProcessDatasourceRight"});
    menus_.SetEnabled("mnuProcessDatasourcePaste", mClipboard.TypeName() == "Datasource");
}

void frmDesigner::mnuProcessActivity_Click() {
    try {
        const std::int32_t c = mProcess ? mProcess->Activities()->Count() : 0;
        std::int32_t p = 0;
        if (c != 0) GetSelectedActivity(p);
        menus_.SetEnabled("mnuProcessActivityDelete", p != 0);
        menus_.SetEnabled("mnuProcessActivityCopy", p != 0);
        menus_.SetEnabled("mnuProcessActivityDown", p >= 1 && p < c);
        menus_.SetEnabled("mnuProcessActivityUp", p >= 2 && p <= c);
        // A process on the clipboard is offered here as well.
        menus_.SetEnabled("mnuProcessActivityPaste", !mClipboard.Empty() && mClipboard.TypeName() != "Datasource");
    } catch (...) {
    }
}

// --- choosing -------------------------------------------------------------------

MenuResult frmDesigner::ChooseMenu(const std::string& name) {
    const MenuEntry* entry = menus_.Find(name);
    if (!entry || entry->separator) return MenuResult::Unknown;
    const std::vector<std::string> path = menus_.PathTo(name);
    const bool popup = !path.empty() && path.front() == "mnuPopUp";
    if (popup) {
        if (!popupOpen_) return MenuResult::NotOpen;
        if (!entry->visible) return MenuResult::Hidden;
        if (!entry->enabled) return MenuResult::Disabled;
        popupOpen_ = false;
        RunPopupEntry(name);
        return MenuResult::Chosen;
    }
    BeginAction();
    for (const std::string& menu : path) OpenMenu(menu);
    if (!entry->visible) return MenuResult::Hidden;
    if (!entry->enabled) return MenuResult::Disabled;
    if (menus_.IsMenu(name)) {
        OpenMenu(name);
        return MenuResult::Chosen;
    }
    RunMenuEntry(name);
    return MenuResult::Chosen;
}

void frmDesigner::RunMenuEntry(const std::string& name) {
    static const std::map<std::string, void (frmDesigner::*)()> commands = {
        {"mnuFileNew", &frmDesigner::FileNew},
        {"mnuFileLoad", &frmDesigner::FileOpen},
        {"mnuFileSave", &frmDesigner::FileSave},
        {"mnuFileSaveAs", &frmDesigner::FileSaveAs},
        {"mnuExit", &frmDesigner::Exit},
        {"mnuProcessNewFromExisting", &frmDesigner::NewFromExisting},
        {"mnuProcessNewTemplate", &frmDesigner::NewTemplate},
        {"mnuProcessDelete", &frmDesigner::DeleteProcess},
        {"mnuProcessCopy", &frmDesigner::CopyProcessToClipboard},
        {"mnuProcessVerify", &frmDesigner::mnuProcessVerify_Click},
        {"mnuGenerateCodeWithXML", &frmDesigner::GenerateCodeWithXml},
        {"mnuGenerateCodeWithoutXML", &frmDesigner::GenerateCodeWithoutXml},
        {"mnuDatabaseInsert", &frmDesigner::InsertDatabase},
        {"mnuDatabaseDelete", &frmDesigner::DeleteDatabase},
        {"mnuDatabaseMoveLeft", &frmDesigner::DatabaseMoveForward},
        {"mnuDatabaseMoveRight", &frmDesigner::DatabaseMoveBack},
        {"mnuProcessDatasourceInsert", &frmDesigner::InsertDatasource},
        {"mnuProcessDatasourceDelete", &frmDesigner::DeleteDatasource},
        {"mnuProcessDatasourceCopy", &frmDesigner::CopyDatasourceToClipboard},
        {"mnuProcessDatasourceLeft", &frmDesigner::DatasourceMoveForward},
        {"mnuProcessDatasourceRight", &frmDesigner::DatasourceMoveBack},
        {"mnuProcessActivityDelete", &frmDesigner::DeleteActivity},
        {"mnuProcessActivityCopy", &frmDesigner::CopyActivityToClipboard},
        {"mnuProcessActivityUp", &frmDesigner::ActivityMoveForward},
        {"mnuProcessActivityDown", &frmDesigner::ActivityMoveBack},
        {"mnuToolsOptions", &frmDesigner::ShowOptions},
        {"mnuHelpContents", &frmDesigner::HelpRequested},
        {"mnuHelpAbout", &frmDesigner::ShowAbout},
    };
    static const std::map<std::string, int> insertButtons = {
        {"mnuInsertMailMerge", 10}, {"mnuInsertSaveAs", 11},  {"mnuInsertPrint", 12},    {"mnuInsertConvert", 13},
        {"mnuInsertSendMail", 14},  {"mnuInsertSendFax", 15}, {"mnuInsertAddRecord", 16},
    };
    if (name == "mnuProcessPaste") return PasteProcess("mnuProcessPaste_Click");
    if (name == "mnuProcessDatasourcePaste") return PasteDatasource("mnuProcessDatasourcePaste_Click");
    if (name == "mnuProcessActivityPaste") return PasteActivity("mnuProcessActivityPaste_Click");
    if (const auto it = insertButtons.find(name); it != insertButtons.end()) return RunToolbarButton(it->second);
    if (const auto it = commands.find(name); it != commands.end()) (this->*(it->second))();
    // mnuProcessNewBlank and mnuProcessRename have no command.
}

void frmDesigner::RunPopupEntry(const std::string& name) {
    // The target is the control that had the focus last, in this order.
    const Control target = activeControl_;
    const bool datasource = target == Control::Datasource, activity = target == Control::Activity;
    const bool list = target == Control::List, database = target == Control::Database;
    if (name == "mnuPopUpForward") {
        if (datasource) DatasourceMoveForward();
        else if (activity) ActivityMoveForward();
        else if (list) ProcessMoveForward();
        else if (database) DatabaseMoveForward();
    } else if (name == "mnuPopUpBack") {
        if (datasource) DatasourceMoveBack();
        else if (activity) ActivityMoveBack();
        else if (list) ProcessMoveBack();
        else if (database) DatabaseMoveBack();
    } else if (name == "mnuPopUpDelete") {
        if (datasource) DeleteDatasource();
        else if (activity) DeleteActivity();
        else if (list) DeleteProcess();
        else if (database) DeleteDatabase();
    } else if (name == "mnuPopUpCopy") {
        if (datasource) CopyDatasourceToClipboard();
        else if (activity) CopyActivityToClipboard();
        else if (list) CopyProcessToClipboard();
    } else if (name == "mnuPopUpPaste") {
        if (datasource) PasteDatasource("mnuPopUpPaste_Click");
        else if (activity) PasteActivity("mnuPopUpPaste_Click");
        else if (list) {
            PasteProcess("mnuPopUpPaste_Click");
            ShowProcess();
        }
    }
}

void frmDesigner::OpenPopup() {
    popupOpen_ = true;
    view_.ShowPopupMenu();
}

void frmDesigner::ShowListPopup() {
    Guarded("frmDesigner", "lstProcesses_MouseUp", [&] {
        const int index = list_.ListIndex();
        menus_.SetEnabled("mnuPopUpBack", index < list_.ListCount() - 1);
        menus_.SetEnabled("mnuPopUpForward", index >= 2);
        menus_.SetCaption("mnuPopUpBack", "Down");
        menus_.SetCaption("mnuPopUpForward", "Up");
        for (const char* name : {"mnuPopUpCopy", "mnuPopUpPaste", "mnuPopUpSep2"}) menus_.SetVisible(name, true);
        const bool paste = mClipboard.TypeName() == "Process";
        menus_.SetEnabled("mnuPopUpPaste", paste);
        menus_.SetCaption("mnuPopUpPaste", PasteCaption(paste, "copy of " + mClipboard.Name()));
        OpenPopup();
    });
}

// --- toolbar and the other entries ---------------------------------------------------

void frmDesigner::ToolbarClick(int index) {
    BeginAction();
    RunToolbarButton(index);
}

void frmDesigner::RunToolbarButton(int index) {
    switch (index) {
    case 1: return FileNew();
    case 2: return FileOpen();
    case 3: return FileSave();
    case 6: return InsertDatabase();
    case 8: return InsertDatasource();
    default:
        // Button 4 ("Save As") has no branch: the menu is the only way to Save As.
        if (index >= 10 && index <= 16) InsertActivity(index);
    }
}

void frmDesigner::FileNew() {
    if (SaveChanges() != msgbox::Cancel) Guarded("frmDesigner", "Toolbar1_ButtonClick", [&] { NewXMLFile(); });
}

void frmDesigner::FileOpen() {
    if (SaveChanges() != msgbox::Cancel) LoadXMLFileDialog();
}

void frmDesigner::FileSave() { SaveXMLFile(false); }
void frmDesigner::FileSaveAs() { SaveXMLFile(true); }

void frmDesigner::Exit() { Form_Unload(); }

void frmDesigner::NewTemplate() { MsgBox("Not ready ...", msgbox::Information); }

void frmDesigner::mnuProcessVerify_Click() {
    Guarded("frmDesigner", "mnuProcessVerify_Click", [&] { Verify(mProcess, true); });
}

void frmDesigner::GenerateCodeWithoutXml() {
    Guarded("frmDesigner", "mnuGenerateCodeWithoutXML_Click", [&] { GenerateCodeWithoutXML(Processes_, mProcess); });
}

void frmDesigner::GenerateCodeWithXml() {
    Guarded("frmDesigner", "mnuGenerateCodeWithXML_Click", [&] {
        if (mFileName.empty()) return void(MsgBox("XML file is not saved.", msgbox::Exclamation));
        if (mProcess->name().empty()) return void(MsgBox("New process is not saved with name.", msgbox::Exclamation));
        CCodeGenerator generator;
        generator.GenerateCode(mProcess, mFileName);
    });
}

void frmDesigner::ShowAbout() { view_.ShowAbout(); }

void frmDesigner::HelpRequested() {
    std::int32_t context = kDesignerHelpContext;
    if (activeControl_ == Control::Grid || activeControl_ == Control::Info) {
        const int kind = std::atoi(propListTag_.c_str());
        if (kind > 0) context = SheetHelpContext(kind);
    }
    OpenHelp(context);
}

void frmDesigner::OpenHelp(std::int32_t context) {
    const std::string url = HelpPageUrl(context);
    if (url.empty() || !CurrentPrompts().OpenUrl(url))
        MsgBox("The user guide could not be opened.", msgbox::Exclamation);
}

}  // namespace flowloom::designer
