#include "designer/MenuData.h"

#include <algorithm>

namespace flowloom::designer {

namespace {

struct Row {
    const char* name;
    const char* caption;
    const char* parent;
};

// The menus in order: name, caption, the menu that holds the entry. A row
// without a caption is a separator.
constexpr Row kMenus[] = {
    {"mnuFile", "&File", ""},
    {"mnuFileNew", "&New", "mnuFile"},
    {"mnuFileLoad", "&Open...", "mnuFile"},
    {"mnuFileSave", "&Save", "mnuFile"},
    {"mnuFileSaveAs", "Save &As...", "mnuFile"},
    {"mnuFileSep1", nullptr, "mnuFile"},
    {"mnuExit", "E&xit", "mnuFile"},
    {"mnuProcess", "&Process", ""},
    {"mnuProcessNew", "&New", "mnuProcess"},
    {"mnuProcessNewBlank", "&Blank", "mnuProcessNew"},
    {"mnuProcessNewFromExisting", "From &Existing", "mnuProcessNew"},
    {"mnuProcessNewTemplate", "&Template", "mnuProcessNew"},
    {"mnuProcessRename", "&Rename", "mnuProcess"},
    {"mnuProcessDelete", "&Delete", "mnuProcess"},
    {"mnuProcessSep1", nullptr, "mnuProcess"},
    {"mnuProcessCopy", "&Copy", "mnuProcess"},
    {"mnuProcessPaste", "&Paste", "mnuProcess"},
    {"mnuProcessSep2", nullptr, "mnuProcess"},
    {"mnuProcessVerify", "&Verify", "mnuProcess"},
    {"mnuProcessGenerateCode", "&Generate Code", "mnuProcess"},
    {"mnuGenerateCodeWithXML", "Load process from &XML", "mnuProcessGenerateCode"},
    {"mnuGenerateCodeWithoutXML", "Use process &classes only", "mnuProcessGenerateCode"},
    {"mnuProcessSep3", nullptr, "mnuProcess"},
    {"mnuDatabase", "Data&base", ""},
    {"mnuDatabaseInsert", "&Insert", "mnuDatabase"},
    {"mnuDatabaseDelete", "&Delete", "mnuDatabase"},
    {"mnuDatabaseSep1", nullptr, "mnuDatabase"},
    {"mnuDatabaseMoveLeft", "&Left", "mnuDatabase"},
    {"mnuDatabaseMoveRight", "&Right", "mnuDatabase"},
    {"mnuProcessDatasource", "&Datasource", ""},
    {"mnuProcessDatasourceInsert", "&Insert", "mnuProcessDatasource"},
    {"mnuProcessDatasourceDelete", "&Delete", "mnuProcessDatasource"},
    {"mnuProcessDatasourceSep1", nullptr, "mnuProcessDatasource"},
    {"mnuProcessDatasourceCopy", "&Copy", "mnuProcessDatasource"},
    {"mnuProcessDatasourcePaste", "&Paste", "mnuProcessDatasource"},
    {"mnuProcessDatasourceSep2", nullptr, "mnuProcessDatasource"},
    {"mnuProcessDatasourceLeft", "&Left", "mnuProcessDatasource"},
    {"mnuProcessDatasourceRight", "&Right", "mnuProcessDatasource"},
    {"mnuProcessActivity", "&Activity", ""},
    {"mnuProcessActivityInsert", "&Insert", "mnuProcessActivity"},
    {"mnuInsertMailMerge", "&Mail Merge", "mnuProcessActivityInsert"},
    {"mnuInsertSaveAs", "Save &As", "mnuProcessActivityInsert"},
    {"mnuInsertPrint", "&Print Out", "mnuProcessActivityInsert"},
    {"mnuInsertConvert", "&Convert", "mnuProcessActivityInsert"},
    {"mnuInsertSendMail", "&Send Mail", "mnuProcessActivityInsert"},
    {"mnuInsertSendFax", "Send &Fax", "mnuProcessActivityInsert"},
    {"mnuInsertAddRecord", "Add &Record", "mnuProcessActivityInsert"},
    {"mnuProcessActivityDelete", "&Delete", "mnuProcessActivity"},
    {"mnuProcessActivitySep1", nullptr, "mnuProcessActivity"},
    {"mnuProcessActivityCopy", "&Copy", "mnuProcessActivity"},
    {"mnuProcessActivityPaste", "&Paste", "mnuProcessActivity"},
    {"mnuProcessActivitySep2", nullptr, "mnuProcessActivity"},
    {"mnuProcessActivityUp", "&Up", "mnuProcessActivity"},
    {"mnuProcessActivityDown", "&Down", "mnuProcessActivity"},
    {"mnuTools", "&Tools", ""},
    {"mnuToolsOptions", "&Options", "mnuTools"},
    {"mnuHelp", "&Help", ""},
    {"mnuHelpContents", "&Contents", "mnuHelp"},
    {"mnuHelpSep1", nullptr, "mnuHelp"},
    {"mnuHelpAbout", "&About", "mnuHelp"},
    {"mnuPopUp", "PopUp", ""},
    {"mnuPopUpForward", "Move &Forward", "mnuPopUp"},
    {"mnuPopUpBack", "Move &Back", "mnuPopUp"},
    {"mnuPopUpSep1", nullptr, "mnuPopUp"},
    {"mnuPopUpCopy", "&Copy", "mnuPopUp"},
    {"mnuPopUpPaste", "&Paste", "mnuPopUp"},
    {"mnuPopUpSep2", nullptr, "mnuPopUp"},
    {"mnuPopUpDelete", "Delete", "mnuPopUp"},
};

}  // namespace

MenuBar::MenuBar() {
    for (const Row& row : kMenus) {
        MenuEntry entry;
        entry.name = row.name;
        entry.caption = row.caption ? row.caption : "";
        entry.parent = row.parent;
        entry.separator = row.caption == nullptr;
        entries_.push_back(std::move(entry));
    }
    // The context menu is never on the menu bar.
    Find("mnuPopUp")->visible = false;
}

MenuEntry* MenuBar::Find(const std::string& name) {
    const auto it = std::find_if(entries_.begin(), entries_.end(), [&](const MenuEntry& e) { return e.name == name; });
    return it == entries_.end() ? nullptr : &*it;
}

const MenuEntry* MenuBar::Find(const std::string& name) const {
    return const_cast<MenuBar*>(this)->Find(name);
}

std::vector<const MenuEntry*> MenuBar::Children(const std::string& menu) const {
    std::vector<const MenuEntry*> children;
    for (const MenuEntry& entry : entries_)
        if (entry.parent == menu) children.push_back(&entry);
    return children;
}

bool MenuBar::IsMenu(const std::string& name) const {
    return std::any_of(entries_.begin(), entries_.end(), [&](const MenuEntry& e) { return e.parent == name; });
}

std::vector<std::string> MenuBar::PathTo(const std::string& name) const {
    std::vector<std::string> path;
    for (const MenuEntry* entry = Find(name); entry && !entry->parent.empty(); entry = Find(entry->parent))
        path.insert(path.begin(), entry->parent);
    return path;
}

void MenuBar::SetEnabled(const std::string& name, bool enabled) {
    if (MenuEntry* entry = Find(name)) entry->enabled = enabled;
}

void MenuBar::SetVisible(const std::string& name, bool visible) {
    if (MenuEntry* entry = Find(name)) entry->visible = visible;
}

void MenuBar::SetCaption(const std::string& name, std::string caption) {
    if (MenuEntry* entry = Find(name)) entry->caption = std::move(caption);
}

const std::vector<ToolbarButton>& ToolbarButtons() {
    static const std::vector<ToolbarButton> buttons = {
        {1, "New", "New", "New XML File", "New", false},
        {2, "Open", "Load", "Load XML File", "Load", false},
        {3, "Save", "Save", "Save XML File", "Save", false},
        {4, "Save As", "Save As", "Save As", "Save As", false},
        {5, "", "Sep1", "", "", true},
        {6, "Database", "Database", "Insert Database", "Database", false},
        {7, "", "Sep2", "", "", true},
        {8, "Datasource", "Datasource", "Insert Datasource", "Datasource", false},
        {9, "", "Sep3", "", "", true},
        {10, "Mail Merge", "ActivityMailMerge", "Add MailMerge", "ActivityMailMerge", false},
        {11, "Save As", "ActivitySaveAs", "Add Activity SaveAs", "ActivitySaveAs", false},
        {12, "Print Out", "ActivityPrintOut", "Add Activity PrintOut", "ActivityPrintOut", false},
        {13, "Convert", "Convert", "Add Activity Convert", "Convert", false},
        {14, "Send Mail", "ActivitySendMail", "Add Activity SendMail", "ActivitySendMail", false},
        {15, "Send Fax", "ActivitySendFax", "Add Activity Send Fax", "ActivitySendFax", false},
        {16, "Add Record", "AddRecord", "Add Record", "AddRecord", false},
    };
    return buttons;
}

}  // namespace flowloom::designer
