// Opens arbitrary bytes as an Access database: the lists of objects, the
// fields of every table the system table names, then the connections closed.
#include "FuzzSupport.h"

#include "designer/access/AccessConnection.h"
#include "designer/access/AccessObjects.h"
#include "support/VbError.h"

#include <cstdint>
#include <string>
#include <string_view>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

// libmdb is not instrumented, so coverage says little about which bytes
// matter: half the mutations go into one page that libmdb parses (a table
// definition or a data page), in place; the others keep the file whole pages
// long (of the size its version byte asks for), since the reader turns away
// anything else at once.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize,
                                               unsigned int seed) {
    const std::size_t page = size > 0x14 && data[0x14] == 0 ? 2048 : 4096;
    const std::size_t pages = size / page;
    if (seed % 2 == 0 && pages > 1) {
        for (std::size_t tries = 0; tries < 8; ++tries) {
            const std::size_t chosen = 1 + (seed / 2 + tries * 7919) % (pages - 1);
            std::uint8_t* at = data + chosen * page;
            if (at[0] != 1 && at[0] != 2) continue;
            const std::size_t length = 1 + (seed / 16) % page;
            const std::size_t start = (seed / 4) % (page - length + 1);
            LLVMFuzzerMutate(at + start, length, length);
            return size;
        }
    }
    size = LLVMFuzzerMutate(data, size, maxSize);
    if (seed % 10 == 1 || size <= 0x14) return size;
    const std::size_t wanted = data[0x14] == 0 ? 2048 : 4096;
    return size >= 3 * wanted ? size - size % wanted : size;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    namespace access = flowloom::access;
    static const std::string file = (flowloom::fuzz::WorkFolder("fuzz-access") / "input.mdb").string();
    flowloom::fuzz::WriteFile(file, std::string_view(reinterpret_cast<const char*>(data), size));

    access::CAccessObjects objects;
    std::string workgroup;
    if (objects.GetObjects(file, workgroup, "", "", "")) {
        for (const auto& table : objects.Tables()) (void)objects.FieldList(table, file, workgroup, "", "", "");
        // System tables and hidden ones too: every local table definition the rows point at.
        if (const auto connection = access::OpenDatabaseConnection(file, workgroup, "", "", ""))
            if (const auto rows = connection->SystemObjects())
                for (const auto& row : *rows)
                    if (row.type == 1) (void)connection->Fields(row.name);
        try {
            (void)objects.TableList();
        } catch (const flowloom::VbError&) {
        }
    }
    access::CloseConnections();
    return 0;
}
