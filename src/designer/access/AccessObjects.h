#pragma once

#include <memory>
#include <string>
#include <vector>

namespace flowloom {
class Database;
}

namespace flowloom::access {

// An Access database file opened for reading (.mdb of Jet 3 and 4, .accdb).
// Connections are shared through the cache of OpenDatabaseConnection.
class AccessConnection;

// The connection to `file` from the cache, else a newly opened one that the
// cache keeps; null when the file does not exist or cannot be read as an
// Access database. The workgroup file, user and passwords have no meaning
// for this reader; they are kept so that callers read as they always did
// (`workgroup` comes back as it went in).
std::shared_ptr<AccessConnection> OpenDatabaseConnection(const std::string& file, std::string& workgroup,
                                                         const std::string& user, const std::string& password,
                                                         const std::string& databasePassword);
// Closes the cached connections, from the last opened to the first.
void CloseConnections();
// How many connections the cache holds.
std::size_t CachedConnections();

// The objects of an Access database: forms, tables, queries and reports, in
// the order the system table gives them, without system and hidden objects.
class CAccessObjects {
public:
    const std::vector<std::string>& Forms() const noexcept { return forms_; }
    const std::vector<std::string>& Tables() const noexcept { return tables_; }
    const std::vector<std::string>& Queries() const noexcept { return queries_; }
    const std::vector<std::string>& Reports() const noexcept { return reports_; }

    // The collection joined with ";". An empty collection raises error 5
    // (invalid procedure call), as cutting the last separator of nothing does.
    std::string FormList() const;
    std::string TableList() const;
    std::string QueryList() const;
    std::string ReportList() const;

    // Reads the lists from the system table of `file`; false, silently, when
    // the file cannot be opened or read.
    bool GetObjects(const std::string& file, std::string& workgroup, const std::string& user,
                    const std::string& password, const std::string& databasePassword);
    // The fields of `table` joined with ";", auto-increment columns left
    // out; empty, silently, when the file or the table cannot be read.
    std::string FieldList(const std::string& table, const std::string& file, std::string& workgroup,
                          const std::string& user, const std::string& password,
                          const std::string& databasePassword);

private:
    std::vector<std::string> forms_, tables_, queries_, reports_;
};

// The field names of a table of a database of the model; empty when the
// database is null, its Location does not exist or cannot be read.
std::vector<std::string> GetTableFields(const std::string& tableName, const Database* database);

}  // namespace flowloom::access
