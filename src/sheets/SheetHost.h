#pragma once

#include <memory>
#include <string>

namespace flowloom {
class Activity;
class Database;
class Datasource;
class Process;
class Processes;
}  // namespace flowloom

namespace flowloom::sheets {

// The field list read last for a datasource (by the field values dialog):
// the datasource's object name and type, and its fields joined with ";".
struct FieldListMemo {
    std::string objectName;
    std::string type;
    std::string fields;
};

// What a sheet needs of the window that shows it: the objects selected now.
// Rows keep no reference to the model; each build and each edit asks again.
class SheetHost {
public:
    virtual ~SheetHost() = default;

    // The open file; never null while the window is loaded.
    virtual std::shared_ptr<Processes> CurrentProcesses() const = 0;
    // The process on show (a member of the file or the detached new one).
    virtual std::shared_ptr<Process> CurrentProcess() const = 0;
    // The selected item of each strip, or nothing.
    virtual std::shared_ptr<Database> SelectedDatabase() const = 0;
    virtual std::shared_ptr<Datasource> SelectedDatasource() const = 0;
    virtual std::shared_ptr<Activity> SelectedActivity() const = 0;
    // Inspects the named database for its object lists, unless its location
    // is the one inspected last.
    virtual void LoadDatabaseObjects(const std::string& databaseName) = 0;
    // The object lists of the database inspected last, joined with ";";
    // false when none has been inspected.
    virtual bool DatabaseObjectList(const std::string& type, std::string& list) const = 0;
    virtual const FieldListMemo& LastFieldList() const = 0;
};

}  // namespace flowloom::sheets
