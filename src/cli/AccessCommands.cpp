// `objects` and `fields`: what the designer offers of an Access database,
// read by the same code.
#include "cli/CliContext.h"

#include "designer/access/AccessConnection.h"
#include "designer/access/AccessObjects.h"

#include <string>
#include <vector>

namespace flowloom::cli {

namespace {

std::string Joined(const std::vector<std::string>& names) {
    std::string text;
    for (const auto& name : names) {
        if (!text.empty()) text += ';';
        text += name;
    }
    return text;
}

int CannotRead(Context& ctx, const std::string& file) {
    ctx.err << "flowloom-cli: cannot read " << file << " as an Access database\n";
    return kUsage;
}

// The connections are closed as the designer closes them when it ends.
struct ClosedAtEnd {
    ClosedAtEnd() = default;
    ~ClosedAtEnd() { access::CloseConnections(); }
    ClosedAtEnd(const ClosedAtEnd&) = delete;
    ClosedAtEnd& operator=(const ClosedAtEnd&) = delete;
};

}  // namespace

int ObjectsCommand(Context& ctx) {
    if (!ExpectArgs(ctx, 1, "objects DBFILE")) return kUsage;
    const ClosedAtEnd closed;
    const std::string& file = ctx.args[1];
    access::CAccessObjects objects;
    std::string workgroup;
    if (!objects.GetObjects(file, workgroup, {}, {}, {})) return CannotRead(ctx, file);
    ctx.out << "Forms: " << Joined(objects.Forms()) << '\n'
            << "Tables: " << Joined(objects.Tables()) << '\n'
            << "Queries: " << Joined(objects.Queries()) << '\n'
            << "Reports: " << Joined(objects.Reports()) << '\n';
    return kOk;
}

int FieldsCommand(Context& ctx) {
    if (!ExpectArgs(ctx, 2, "fields DBFILE TABLE")) return kUsage;
    const ClosedAtEnd closed;
    const std::string& file = ctx.args[1];
    const std::string& table = ctx.args[2];
    std::string workgroup;
    const auto connection = access::OpenDatabaseConnection(file, workgroup, {}, {}, {});
    if (!connection) return CannotRead(ctx, file);
    const std::string fields = access::CAccessObjects().FieldList(table, file, workgroup, {}, {}, {});
    // An empty list is either a table of auto-increment columns only or no table at all.
    if (fields.empty() && !connection->Fields(table)) {
        ctx.err << "flowloom-cli: " << file << " has no table named '" << table << "'\n";
        return kProblem;
    }
    ctx.out << fields << '\n';
    return kOk;
}

}  // namespace flowloom::cli
