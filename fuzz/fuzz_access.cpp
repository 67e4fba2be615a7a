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
namespace {

constexpr std::size_t kVersionByte = 0x14;  // 0 for Jet 3, whose pages are 2 KB
constexpr std::size_t kStride = 7919;       // a prime, so that retries visit other pages

std::size_t PageSize(const std::uint8_t* data, std::size_t size) {
    return size > kVersionByte && data[kVersionByte] == 0 ? 2048 : 4096;
}

// Mutates a stretch of one table-definition or data page in place; false
// when the file has no such page among the few tried.
bool MutateOnePage(std::uint8_t* data, std::size_t size, unsigned int draw) {
    const std::size_t page = PageSize(data, size);
    const std::size_t pages = size / page;
    if (pages < 2) return false;
    for (std::size_t tries = 0; tries < 8; ++tries) {
        const std::size_t chosen = 1 + (draw / 2 + tries * kStride) % (pages - 1);
        std::uint8_t* at = data + chosen * page;
        const bool parsedPage = at[0] == 1 || at[0] == 2;
        if (!parsedPage) continue;
        const std::size_t length = 1 + (draw >> 4) % page;
        const std::size_t offset = (draw >> 2) % (page - length + 1);
        LLVMFuzzerMutate(at + offset, length, length);
        return true;
    }
    return false;
}

}  // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize,
                                               unsigned int draw) {
    const bool intoOnePage = (draw & 1u) == 0;
    if (intoOnePage && MutateOnePage(data, size, draw)) return size;
    size = LLVMFuzzerMutate(data, size, maxSize);
    // Now and then a file of any length; else whole pages of at least three.
    const bool anyLength = draw % 10 == 1;
    if (anyLength || size <= kVersionByte) return size;
    const std::size_t wanted = PageSize(data, size);
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
