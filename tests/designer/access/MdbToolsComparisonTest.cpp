// The lists against what mdbtools' own programs read from the same files:
// mdb-tables for the objects, mdb-schema for the columns and AutoNumbers.
#include "AccessTestFiles.h"

#include "designer/access/AccessConnection.h"
#include "designer/access/AccessObjects.h"
#include "designer/access/SystemObjects.h"
#include "support/VbStrings.h"

#include <gtest/gtest.h>

namespace flowloom::test {
namespace {

using access::ObjectList;

class MdbToolsComparison : public ::testing::TestWithParam<std::string> {
protected:
    void SetUp() override {
        if (!CommandOutput("mdb-ver " + Quoted(Nwind()))) GTEST_SKIP() << "mdbtools' programs are not installed";
        file_ = GetParam() == "renamed" ? RenamedSample(folder / "renamed.accdb") : (AccessTestData() / GetParam()).string();
    }
    void TearDown() override { access::CloseConnections(); }

    // mdb-tables' names of one kind, in catalog order, filtered by our rules.
    std::vector<std::string> Listed(const char* kind, int type) {
        const auto output = CommandOutput(std::string("mdb-tables -1 -S -t ") + kind + " " + Quoted(file_));
        EXPECT_TRUE(output) << kind;
        std::vector<std::string> names;
        for (const auto& name : Lines(output.value_or("")))
            if (access::ClassifyObject(type, name) != ObjectList::None) names.push_back(name);
        return names;
    }

    // mdb-schema's columns of a table: the names, and those it makes auto_increment.
    struct Columns {
        std::vector<std::string> all, autoNumbers;
    };
    Columns Schema(const std::string& table) {
        const auto output = CommandOutput("mdb-schema -T " + Quoted(table) + " " + Quoted(file_) + " mysql");
        EXPECT_TRUE(output) << table;
        Columns columns;
        for (const auto& line : Lines(output.value_or(""))) {
            if (line.rfind("\t`", 0) != 0) continue;
            const auto end = line.find('`', 2);
            columns.all.push_back(line.substr(2, end - 2));
            if (line.find("auto_increment") != std::string::npos) columns.autoNumbers.push_back(columns.all.back());
        }
        return columns;
    }

    TempFolder folder;
    std::string file_;
};

TEST_P(MdbToolsComparison, ObjectListsAreThoseOfMdbTables) {
    access::CAccessObjects objects;
    std::string workgroup;
    ASSERT_TRUE(objects.GetObjects(file_, workgroup, "", "", ""));
    EXPECT_EQ(objects.Tables(), Listed("table", 1));
    EXPECT_EQ(objects.Queries(), Listed("query", 5));
    EXPECT_EQ(objects.Forms(), Listed("form", -32768));
    EXPECT_EQ(objects.Reports(), Listed("report", -32764));
}

TEST_P(MdbToolsComparison, FieldsAndAutoNumbersAreThoseOfMdbSchema) {
    access::CAccessObjects objects;
    std::string workgroup;
    ASSERT_TRUE(objects.GetObjects(file_, workgroup, "", "", ""));
    const auto connection = access::OpenDatabaseConnection(file_, workgroup, "", "", "");
    ASSERT_TRUE(connection);
    int autoNumbers = 0;
    for (const auto& table : objects.Tables()) {
        SCOPED_TRACE(table);
        const Columns expected = Schema(table);
        std::vector<std::string> kept;
        for (const auto& name : expected.all)
            if (std::find(expected.autoNumbers.begin(), expected.autoNumbers.end(), name) == expected.autoNumbers.end())
                kept.push_back(name);
        EXPECT_EQ(objects.FieldList(table, file_, workgroup, "", "", ""), vb::Join(kept, ";"));
        const auto fields = connection->Fields(table);
        ASSERT_TRUE(fields);
        ASSERT_EQ(fields->size(), expected.all.size());
        for (std::size_t i = 0; i < fields->size(); ++i) {
            EXPECT_EQ((*fields)[i].name, expected.all[i]);
            autoNumbers += (*fields)[i].autoIncrement ? 1 : 0;
        }
    }
    // nwind.mdb keys most of its tables with AutoNumbers; the .accdb has none.
    if (GetParam() == "nwind.mdb") {
        EXPECT_GE(autoNumbers, 4);
    }
}

INSTANTIATE_TEST_SUITE_P(SharedFiles, MdbToolsComparison,
                         ::testing::Values("nwind.mdb", "ASampleDatabase.accdb", "renamed"),
                         [](const auto& info) {
                             std::string name = info.param;
                             std::erase_if(name, [](char c) { return c == '.'; });
                             return name;
                         });

}  // namespace
}  // namespace flowloom::test
