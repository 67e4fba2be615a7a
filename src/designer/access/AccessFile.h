#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace flowloom::access {

// The generation of the database engine that wrote a file.
enum class AccessFormat { Jet3, Jet4, Ace };

// What the header page of an Access database file tells before anything
// else of it is read.
struct AccessFileInfo {
    AccessFormat format = AccessFormat::Jet3;
    std::uint32_t pageSize = 0;
    std::uint64_t pageCount = 0;
    // The key of the Jet engine's page encoding; 0 when the pages are plain.
    std::uint32_t encodingKey = 0;
    // A database password is set, or the file is encrypted with one.
    bool passwordProtected = false;
};

// The header of `path` when it is an Access database file: the signature and
// engine version of a .mdb (Jet 3, Jet 4) or .accdb, a size of whole pages
// within the engine's limit of 2 GB, and at least the pages up to the system
// table. nullopt for anything else, or when the file cannot be read.
std::optional<AccessFileInfo> ProbeAccessFile(const std::string& path);

}  // namespace flowloom::access
