#include "designer/access/AccessObjects.h"

#include "designer/access/AccessConnection.h"
#include "designer/access/SystemObjects.h"
#include "model/Database.h"
#include "support/FileHelpers.h"
#include "support/VbError.h"
#include "support/VbStrings.h"

#include <utility>

namespace flowloom::access {

namespace {

// The connections of the run, in the order they were opened, by path.
class ConnectionCache {
public:
    ConnectionCache() = default;
    ~ConnectionCache() { CloseAll(); }
    ConnectionCache(const ConnectionCache&) = delete;
    ConnectionCache& operator=(const ConnectionCache&) = delete;

    // The open connection to `file`; one that was closed leaves the cache.
    std::shared_ptr<AccessConnection> Find(const std::string& file) {
        for (auto it = entries_.begin(); it != entries_.end(); ++it) {
            if (it->first != file) continue;
            if (it->second->IsOpen()) return it->second;
            entries_.erase(it);
            break;
        }
        return nullptr;
    }
    void Add(const std::string& file, std::shared_ptr<AccessConnection> connection) {
        entries_.emplace_back(file, std::move(connection));
    }
    void CloseAll() noexcept {
        while (!entries_.empty()) {
            entries_.back().second->Close();
            entries_.pop_back();
        }
    }
    std::size_t Count() const noexcept { return entries_.size(); }

private:
    std::vector<std::pair<std::string, std::shared_ptr<AccessConnection>>> entries_;
};

ConnectionCache& Cache() {
    static ConnectionCache cache;
    return cache;
}

// The list joined with ";"; an empty one fails as cutting the last separator
// off an empty text does.
std::string JoinList(const std::vector<std::string>& list) {
    if (list.empty()) RaiseStandardError(vberr::InvalidProcedureCall);
    return vb::Join(list, ";");
}

}  // namespace

std::shared_ptr<AccessConnection> OpenDatabaseConnection(const std::string& file, std::string& /*workgroup*/,
                                                         const std::string& /*user*/,
                                                         const std::string& /*password*/,
                                                         const std::string& /*databasePassword*/) {
    try {
        if (auto cached = Cache().Find(file)) return cached;
        if (!FileExists(file)) return nullptr;
        auto connection = AccessConnection::Open(file);
        if (connection) Cache().Add(file, connection);
        return connection;
    } catch (...) {
        return nullptr;
    }
}

void CloseConnections() { Cache().CloseAll(); }

std::size_t CachedConnections() { return Cache().Count(); }

std::string CAccessObjects::FormList() const { return JoinList(forms_); }
std::string CAccessObjects::TableList() const { return JoinList(tables_); }
std::string CAccessObjects::QueryList() const { return JoinList(queries_); }
std::string CAccessObjects::ReportList() const { return JoinList(reports_); }

bool CAccessObjects::GetObjects(const std::string& file, std::string& workgroup, const std::string& user,
                                const std::string& password, const std::string& databasePassword) {
    try {
        const auto connection = OpenDatabaseConnection(file, workgroup, user, password, databasePassword);
        if (!connection) return false;
        const auto rows = connection->SystemObjects();
        if (!rows) return false;
        std::vector<std::string> forms, tables, queries, reports;
        for (const auto& row : *rows) {
            switch (ClassifyObject(row.type, row.name)) {
            case ObjectList::Forms: forms.push_back(row.name); break;
            case ObjectList::Tables: tables.push_back(row.name); break;
            case ObjectList::Queries: queries.push_back(row.name); break;
            case ObjectList::Reports: reports.push_back(row.name); break;
            case ObjectList::None: break;
            }
        }
        forms_ = std::move(forms);
        tables_ = std::move(tables);
        queries_ = std::move(queries);
        reports_ = std::move(reports);
        return true;
    } catch (...) {
        return false;
    }
}

std::string CAccessObjects::FieldList(const std::string& table, const std::string& file, std::string& workgroup,
                                      const std::string& user, const std::string& password,
                                      const std::string& databasePassword) {
    try {
        const auto connection = OpenDatabaseConnection(file, workgroup, user, password, databasePassword);
        if (!connection) return {};
        const auto fields = connection->Fields(table);
        if (!fields) return {};
        std::string list;
        for (const auto& field : *fields) {
            if (field.autoIncrement) continue;
            if (!list.empty()) list += ';';
            list += field.name;
        }
        return list;
    } catch (...) {
        return {};
    }
}

std::vector<std::string> GetTableFields(const std::string& tableName, const Database* database) {
    if (!database || !FileExists(database->Location)) return {};
    std::string workgroup;
    const std::string list = CAccessObjects().FieldList(tableName, database->Location, workgroup, {}, {}, {});
    if (list.empty()) return {};
    return vb::Split(list, ";");
}

}  // namespace flowloom::access
