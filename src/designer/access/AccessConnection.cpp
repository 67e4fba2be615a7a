#include "designer/access/AccessConnection.h"

#include "support/TextCompare.h"

#include <mdbtools.h>

#include <charconv>
#include <cstdio>
#include <cstring>
#include <string_view>

namespace flowloom::access {

namespace {

// What a row value is bound into; libmdb writes at most this much into each buffer.
constexpr std::size_t kBindSize = 4096;
constexpr unsigned long kSystemTablePage = 2;
// Far beyond what Access allows (255 columns, 32 indexes per table) and low
// enough that damaged counts cannot send libmdb walking through the file.
constexpr unsigned kMaxColumns = MDB_MAX_COLS;
constexpr std::uint32_t kMaxIndexes = 256;
// More objects than a database of 2 GB could describe: the walk is broken.
constexpr std::size_t kMaxSystemRows = 1u << 20;
constexpr std::uint8_t kTableDefinitionPage = 0x02;

// libmdb tells of damaged data with fprintf(stderr, ...) and perror. While it
// runs, the C stream stderr writes to /dev/null; what writes to the
// descriptor itself (the sanitizers' reports) still gets through.
class QuietStderr {
public:
    QuietStderr() noexcept {
        static FILE* const sink = std::fopen("/dev/null", "w");
        if (!sink) return;
        std::fflush(stderr);
        saved_ = stderr;
        stderr = sink;
    }
    ~QuietStderr() {
        if (!saved_) return;
        std::fflush(stderr);
        stderr = saved_;
    }
    QuietStderr(const QuietStderr&) = delete;
    QuietStderr& operator=(const QuietStderr&) = delete;

private:
    FILE* saved_ = nullptr;
};

struct HandleCloser {
    void operator()(MdbHandle* handle) const noexcept {
        const QuietStderr quiet;
        mdb_close(handle);
    }
};
struct TableFreer {
    void operator()(MdbTableDef* table) const noexcept { mdb_free_tabledef(table); }
};
using HandlePtr = std::unique_ptr<MdbHandle, HandleCloser>;
using TablePtr = std::unique_ptr<MdbTableDef, TableFreer>;

// A table definition with its columns read. libmdb's table keeps a pointer to
// its catalog entry, which therefore lives here beside it.
struct OpenTable {
    std::unique_ptr<MdbCatalogEntry> entry;
    TablePtr table;
};

std::uint32_t PageUInt32(const MdbHandle& mdb, int at) {
    std::uint32_t value = 0;
    for (int i = 3; i >= 0; --i) value = value << 8 | mdb.pg_buf[at + i];
    return value;
}
unsigned PageUInt16(const MdbHandle& mdb, int at) { return mdb.pg_buf[at] | unsigned{mdb.pg_buf[at + 1]} << 8; }

std::string BoundText(const std::vector<char>& buffer) { return {buffer.data(), strnlen(buffer.data(), buffer.size())}; }

template <typename Number>
std::optional<Number> BoundNumber(const std::vector<char>& buffer) {
    const std::string_view text(buffer.data(), strnlen(buffer.data(), buffer.size()));
    Number value{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc{} || end != text.data() + text.size()) return std::nullopt;
    return value;
}

// An AutoNumber column: a long integer counting up, or a replication ID made
// anew for each row. The replication flag means something else on other
// types in Jet 3 files (text and date columns of nwind.mdb carry it).
bool IsAutoIncrement(const MdbColumn& column) {
    return column.is_long_auto != 0 || (column.is_uuid_auto != 0 && column.col_type == MDB_REPID);
}

MdbColumn* ColumnOf(MdbTableDef& table, std::string_view name) {
    for (guint i = 0; i < table.columns->len; ++i) {
        auto* column = static_cast<MdbColumn*>(g_ptr_array_index(table.columns, i));
        if (EqualsNoCase(std::string_view(column->name, strnlen(column->name, sizeof column->name)), name))
            return column;
    }
    return nullptr;
}

}  // namespace

class AccessConnection::Impl {
public:
    Impl(HandlePtr mdb, const AccessFileInfo& info) : mdb_(std::move(mdb)), info_(info) {}

    bool IsOpen() const noexcept { return mdb_ != nullptr; }
    void Close() noexcept { mdb_.reset(); }

    std::optional<std::vector<SystemObject>> SystemObjects() {
        if (!mdb_) return std::nullopt;
        const QuietStderr quiet;
        auto open = ReadTable(kSystemTablePage, "MSysObjects");
        if (!open) return std::nullopt;
        MdbTableDef& table = *open->table;
        // Only these three columns are converted: libmdb follows the long-value
        // chains of memo and OLE columns without a bound, and the types are
        // checked so that a damaged definition cannot make Name a memo.
        std::vector<char> id(kBindSize), name(kBindSize), type(kBindSize);
        if (!Bind(table, "Id", MDB_LONGINT, id) || !Bind(table, "Name", MDB_TEXT, name) ||
            !Bind(table, "Type", MDB_INT, type))
            return std::nullopt;
        std::vector<SystemObject> rows;
        mdb_rewind_table(&table);
        while (mdb_fetch_row(&table)) {
            if (rows.size() == kMaxSystemRows) return std::nullopt;
            const auto typeValue = BoundNumber<int>(type);
            const auto idValue = BoundNumber<long>(id);
            if (!typeValue || !idValue) continue;  // a null Type or Id: no object
            rows.push_back({BoundText(name), *typeValue, static_cast<std::uint32_t>(*idValue)});
        }
        return rows;
    }

    std::optional<std::vector<TableField>> Fields(std::uint32_t page, const std::string& name) {
        if (!mdb_) return std::nullopt;
        const QuietStderr quiet;
        auto open = ReadTable(page, name);
        if (!open) return std::nullopt;
        std::vector<TableField> fields;
        const GPtrArray& columns = *open->table->columns;
        for (guint i = 0; i < columns.len; ++i) {
            const auto* column = static_cast<const MdbColumn*>(g_ptr_array_index(&columns, i));
            fields.push_back({std::string(column->name, strnlen(column->name, sizeof column->name)),
                              IsAutoIncrement(*column)});
        }
        return fields;
    }

private:
    // The definition at `page` with its columns, after the counts that libmdb
    // would trust are checked on the raw page.
    std::optional<OpenTable> ReadTable(std::uint32_t page, const std::string& name) {
        MdbHandle& mdb = *mdb_;
        if (page == 0 || page >= info_.pageCount) return std::nullopt;
        mdb.cur_pg = 0;  // libmdb keeps the last page read: read it anew, the file may have changed
        if (mdb_read_pg(&mdb, page) != mdb.fmt->pg_size || mdb.pg_buf[0] != kTableDefinitionPage)
            return std::nullopt;
        const unsigned columns = PageUInt16(mdb, mdb.fmt->tab_num_cols_offset);
        if (columns == 0 || columns > kMaxColumns) return std::nullopt;
        if (PageUInt32(mdb, mdb.fmt->tab_num_idxs_offset) > kMaxIndexes ||
            PageUInt32(mdb, mdb.fmt->tab_num_ridxs_offset) > kMaxIndexes)
            return std::nullopt;

        OpenTable open{std::make_unique<MdbCatalogEntry>(), nullptr};
        MdbCatalogEntry& entry = *open.entry;  // zeroed: no properties
        entry.mdb = &mdb;
        entry.object_type = MDB_TABLE;
        entry.table_pg = page;
        std::snprintf(entry.object_name, sizeof entry.object_name, "%s", name.c_str());
        open.table.reset(mdb_read_table(&entry));
        if (!open.table || open.table->num_cols != columns) return std::nullopt;
        // An empty usage map comes back as null, which libmdb's row walk reads all the same.
        if (!open.table->usage_map || open.table->map_sz == 0) return std::nullopt;
        if (!mdb_read_columns(open.table.get()) || open.table->columns->len != columns) return std::nullopt;
        return open;
    }

    static bool Bind(MdbTableDef& table, std::string_view name, int type, std::vector<char>& buffer) {
        MdbColumn* column = ColumnOf(table, name);
        if (!column || column->col_type != type) return false;
        column->bind_ptr = buffer.data();
        return true;
    }

    HandlePtr mdb_;
    AccessFileInfo info_;
};

AccessConnection::AccessConnection(Key, std::string path, const AccessFileInfo& info, std::unique_ptr<Impl> impl)
    : path_(std::move(path)), info_(info), impl_(std::move(impl)) {}

AccessConnection::~AccessConnection() = default;

std::shared_ptr<AccessConnection> AccessConnection::Open(const std::string& path) {
    const auto info = ProbeAccessFile(path);
    if (!info || info->passwordProtected) return nullptr;
    const QuietStderr quiet;
    HandlePtr mdb(mdb_open(path.c_str(), MDB_NOFLAGS));
    if (!mdb || mdb->fmt->pg_size != static_cast<ssize_t>(info->pageSize)) return nullptr;
    mdb_set_bind_size(mdb.get(), kBindSize);
    // Unbuffered, so that each read of a page sees the file as it is now.
    std::setvbuf(mdb->f->stream, nullptr, _IONBF, 0);
    auto connection = std::make_shared<AccessConnection>(Key{}, path, *info, std::make_unique<Impl>(std::move(mdb), *info));
    // As an engine does on opening: a file whose system table cannot be read is no database.
    if (!connection->SystemObjects()) return nullptr;
    return connection;
}

bool AccessConnection::IsOpen() const noexcept { return impl_->IsOpen(); }
void AccessConnection::Close() noexcept { impl_->Close(); }

std::optional<std::vector<SystemObject>> AccessConnection::SystemObjects() { return impl_->SystemObjects(); }

std::optional<std::vector<TableField>> AccessConnection::Fields(const std::string& table) {
    const auto objects = SystemObjects();
    if (!objects) return std::nullopt;
    for (const auto& object : *objects)
        if (object.type == 1 && EqualsNoCase(object.name, table)) return impl_->Fields(object.id & 0xffffff, object.name);
    return std::nullopt;
}

}  // namespace flowloom::access
