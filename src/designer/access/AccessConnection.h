#pragma once

#include "designer/access/AccessFile.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace flowloom::access {

// A row of the system table "MSysObjects".
struct SystemObject {
    std::string name;
    int type = 0;
    std::uint32_t id = 0;  // for a local table, its definition page in the low 24 bits
};

// A column of a table, in the order of the table's definition.
struct TableField {
    std::string name;
    bool autoIncrement = false;  // an AutoNumber: a long integer or a replication ID
};

// An Access database file opened for reading through libmdb. Every read
// answers nullopt when the file turns out to be damaged; libmdb's warnings
// never reach stderr.
class AccessConnection {
    struct Key {};
    class Impl;

public:
    // The open database; null when `path` is no Access database file, is
    // protected by a password, or its system table cannot be read.
    static std::shared_ptr<AccessConnection> Open(const std::string& path);
    ~AccessConnection();
    AccessConnection(const AccessConnection&) = delete;
    AccessConnection& operator=(const AccessConnection&) = delete;

    const std::string& Path() const noexcept { return path_; }
    const AccessFileInfo& Info() const noexcept { return info_; }
    bool IsOpen() const noexcept;
    // Releases the file; later reads answer nullopt.
    void Close() noexcept;

    // The rows of the system table, in their stored order (read anew each call).
    std::optional<std::vector<SystemObject>> SystemObjects();
    // The columns of the local table `table` (its name compared without regard
    // to case); nullopt for an unknown name or an attached table.
    std::optional<std::vector<TableField>> Fields(const std::string& table);

    // Made by Open only.
    AccessConnection(Key, std::string path, const AccessFileInfo& info, std::unique_ptr<Impl> impl);

private:
    std::string path_;
    AccessFileInfo info_;
    std::unique_ptr<Impl> impl_;
};

}  // namespace flowloom::access
