#pragma once

#include "grid/Properties.h"
#include "model/Database.h"
#include "model/Databases.h"
#include "model/Datasource.h"
#include "model/Datasources.h"
#include "model/Activities.h"
#include "model/Process.h"
#include "model/Processes.h"
#include "sheets/PropertySheets.h"
#include "support/AppPaths.h"
#include "support/VbError.h"
#include "testsupport/ScriptedPrompts.h"
#include "testsupport/TempFolder.h"

#include <gtest/gtest.h>
#include <pugixml.hpp>

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace flowloom::test {

// A window that has selected what the test puts here. Inspecting a database
// makes the object lists given for its name the current ones.
class FakeHost : public sheets::SheetHost {
public:
    using ObjectLists = std::map<std::string, std::string>;  // type to ";"-joined names

    std::shared_ptr<Processes> CurrentProcesses() const override { return processes; }
    std::shared_ptr<Process> CurrentProcess() const override { return process; }
    std::shared_ptr<Database> SelectedDatabase() const override { return database; }
    std::shared_ptr<Datasource> SelectedDatasource() const override { return datasource; }
    std::shared_ptr<Activity> SelectedActivity() const override { return activity; }
    void LoadDatabaseObjects(const std::string& name) override {
        loads.push_back(name);
        if (failLoading) throw VbError(53, "File not found");
        if (auto it = objects.find(name); it != objects.end()) inspected = &it->second;
    }
    bool DatabaseObjectsLoaded() const override { return inspected != nullptr; }
    bool DatabaseObjectList(const std::string& type, std::string& list) const override {
        if (!inspected) return false;
        auto it = inspected->find(type);
        list = it == inspected->end() ? "" : it->second;
        return true;
    }
    const sheets::FieldListMemo& LastFieldList() const override { return memo; }
    sheets::SheetMemory& Memory() override { return memory; }
    int ShowMessage(const std::string& prompt, int) override {
        messages.push_back(prompt);
        return 1;
    }
    void SetSelectedCellCaption(sheets::CaptionStrip, const std::string& caption) override {
        captions.push_back(caption);
    }
    // Building again goes to the rows the test has handed over.
    void RebuildSheet(int kind) override {
        rebuilt.push_back(kind);
        if (rows) sheets::BuildSheet(kind, *this, *rows);
    }
    void SelectRow(grid::Property& row) override { selectedRow = rows ? rows->IndexOf(&row) : 0; }
    bool ProcessRenamed(std::string& sNewValue) override {
        renamed.push_back(sNewValue);
        return renameAccepted;
    }
    std::vector<std::string> GetTableFields(const std::string& table, const std::string&) override {
        auto it = tableFields.find(table);
        return it == tableFields.end() ? std::vector<std::string>{} : it->second;
    }

    std::shared_ptr<Processes> processes = Processes::Create();
    std::shared_ptr<Process> process = Process::Create();
    std::shared_ptr<Database> database;
    std::shared_ptr<Datasource> datasource;
    std::shared_ptr<Activity> activity;
    sheets::FieldListMemo memo;
    std::map<std::string, ObjectLists> objects;  // by database name
    const ObjectLists* inspected = nullptr;
    std::vector<std::string> loads;
    bool failLoading = false;
    sheets::SheetMemory memory;
    std::vector<std::string> messages;
    std::vector<std::string> captions;
    std::vector<int> rebuilt;
    std::vector<std::string> renamed;
    bool renameAccepted = true;
    std::map<std::string, std::vector<std::string>> tableFields;
    grid::Properties* rows = nullptr;
    std::int32_t selectedRow = 0;
};

// Reports go to a temporary program folder and to recorded boxes.
class SheetFixture : public ::testing::Test {
protected:
    SheetFixture() {
        SetProgramFolder(folder.Path());
        host.rows = &rows;
    }
    ~SheetFixture() override { SetProgramFolder({}); }

    std::shared_ptr<Datasource> AddDatasource(const std::string& name) {
        auto datasource = std::make_shared<Datasource>();
        datasource->SetName(name);
        host.process->Datasources()->Add(datasource);
        return datasource;
    }
    std::shared_ptr<Database> AddDatabase(const std::string& name) {
        auto database = std::make_shared<Database>();
        database->name = name;
        host.processes->Databases()->Add(database);
        return database;
    }
    // The process of the test as the file would give it; the activity at
    // `selected` (1-based) is the selected one.
    void UseProcess(const std::string& xml, std::int32_t selected = 0) {
        XmlElements element;
        ASSERT_TRUE(element.Read(xml));
        host.process = Process::Create();
        host.process->LoadElement(element.Root(), host.processes);
        if (selected > 0) host.activity = host.process->Activities()->Item(selected);
    }
    grid::Properties& Build(int kind) {
        sheets::BuildSheet(kind, host, rows);
        return rows;
    }
    // Selects the activity at `position` (1-based) and builds its sheet of `kind`.
    grid::Properties& BuildFor(int kind, std::int32_t position) {
        host.activity = host.process->Activities()->Item(position);
        return Build(kind);
    }
    const std::string& Value(std::int32_t index) const { return rows.Item(index).value(); }
    // Commits `text` into a row of the sheet of `kind` on show, as the grid
    // does: false when refused; an accepted row takes the text the handler left.
    bool Edit(int kind, std::int32_t index, std::string text) {
        grid::Property& row = rows.Item(index);
        const std::size_t rebuilds = host.rebuilt.size();
        if (!sheets::ValueChanged(std::to_string(kind), host, rows, row, text)) return false;
        if (host.rebuilt.size() == rebuilds) row.SetValue(text);  // a rebuild took the row away
        return true;
    }

    TempFolder folder;
    ScriptedPrompts prompts;
    FakeHost host;
    grid::Properties rows;
};

}  // namespace flowloom::test
