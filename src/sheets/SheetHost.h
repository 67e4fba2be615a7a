#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace flowloom {
class Activity;
class Database;
class Datasource;
class Process;
class Processes;
}  // namespace flowloom

namespace flowloom::grid {
class Property;
}

namespace flowloom::sheets {

// The strips of the canvas whose cells show a caption the sheets edit.
enum class CaptionStrip { Database, Datasource, Activity };

// What the window keeps between building a sheet and the edits on it: the
// application code of the input document of the SaveAs and of the PrintOut
// sheet (1 Word, 2 Excel, ...). The SaveAs code is worked out only when the
// activity names an input document, so a SaveAs without one goes by the
// code left by the one shown before.
struct SheetMemory {
    std::int32_t saveAsApplication = 0;
    std::int32_t printOutApplication = 0;
};

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
    // Whether a database has been inspected for its object lists.
    virtual bool DatabaseObjectsLoaded() const = 0;
    // The object lists of the database inspected last, joined with ";";
    // false when none has been inspected.
    virtual bool DatabaseObjectList(const std::string& type, std::string& list) const = 0;
    virtual const FieldListMemo& LastFieldList() const = 0;

    // --- what the edits need of the window ----------------------------------
    virtual SheetMemory& Memory() = 0;
    // A message box with the program's title; gives the button chosen.
    virtual int ShowMessage(const std::string& prompt, int style) = 0;
    // Writes a caption into the cell of the item selected in the strip.
    virtual void SetSelectedCellCaption(CaptionStrip strip, const std::string& caption) = 0;
    // Builds the sheet of the kind again for the selection (the rows that
    // were there are gone afterwards).
    virtual void RebuildSheet(int kind) = 0;
    // Makes the row the grid's selected one.
    virtual void SelectRow(grid::Property& row) = 0;
    // The process on show took a new name: a new process joins the file
    // under it (false, with `sNewValue` emptied, when the file has a process
    // of that name already); a member of the file shows it in the list.
    virtual bool ProcessRenamed(std::string& sNewValue) = 0;
    // The field names of a table of a database of the file; none when the
    // database or its table cannot be read.
    virtual std::vector<std::string> GetTableFields(const std::string& tableName, const std::string& databaseName) = 0;
};

}  // namespace flowloom::sheets
