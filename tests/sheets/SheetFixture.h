#pragma once

#include "grid/Properties.h"
#include "model/Database.h"
#include "model/Databases.h"
#include "model/Datasource.h"
#include "model/Datasources.h"
#include "model/Process.h"
#include "model/Processes.h"
#include "sheets/PropertySheets.h"
#include "support/AppPaths.h"
#include "support/VbError.h"
#include "testsupport/ScriptedPrompts.h"
#include "testsupport/TempFolder.h"

#include <gtest/gtest.h>

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
    bool DatabaseObjectList(const std::string& type, std::string& list) const override {
        if (!inspected) return false;
        auto it = inspected->find(type);
        list = it == inspected->end() ? "" : it->second;
        return true;
    }
    const sheets::FieldListMemo& LastFieldList() const override { return memo; }

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
};

// Reports go to a temporary program folder and to recorded boxes.
class SheetFixture : public ::testing::Test {
protected:
    SheetFixture() { SetProgramFolder(folder.Path()); }
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
    grid::Properties& Build(int kind) {
        sheets::BuildSheet(kind, host, rows);
        return rows;
    }
    const std::string& Value(std::int32_t index) const { return rows.Item(index).value(); }

    TempFolder folder;
    ScriptedPrompts prompts;
    FakeHost host;
    grid::Properties rows;
};

}  // namespace flowloom::test
