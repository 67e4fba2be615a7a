// The connections of the run: one per path, read anew on each request,
// closed at the end.
#include "AccessTestFiles.h"

#include "designer/access/AccessConnection.h"
#include "designer/access/AccessObjects.h"

#include <gtest/gtest.h>

namespace flowloom::test {
namespace {

using access::CAccessObjects;

class ConnectionCache : public ::testing::Test {
protected:
    void SetUp() override { access::CloseConnections(); }
    void TearDown() override { access::CloseConnections(); }

    std::shared_ptr<access::AccessConnection> Open(const std::string& file) {
        std::string workgroup;
        return access::OpenDatabaseConnection(file, workgroup, "", "", "");
    }

    TempFolder folder;
};

TEST_F(ConnectionCache, APathIsOpenedOnce) {
    const auto first = Open(Nwind());
    ASSERT_TRUE(first);
    EXPECT_EQ(first->Path(), Nwind());
    EXPECT_EQ(Open(Nwind()), first);
    CAccessObjects objects;
    std::string workgroup;
    EXPECT_TRUE(objects.GetObjects(Nwind(), workgroup, "", "", ""));
    EXPECT_FALSE(objects.FieldList("Orders", Nwind(), workgroup, "", "", "").empty());
    EXPECT_EQ(access::CachedConnections(), 1u);
    EXPECT_TRUE(Open(Sample()));
    EXPECT_EQ(access::CachedConnections(), 2u);
}

TEST_F(ConnectionCache, TheSystemTableIsReadAgainEachTime) {
    const std::string file = CopyTo(Sample(), folder / "changing.accdb");
    CAccessObjects objects;
    std::string workgroup;
    ASSERT_TRUE(objects.GetObjects(file, workgroup, "", "", ""));
    EXPECT_EQ(objects.Forms().size(), 3u);
    // Renamed in place under the open connection: the next read sees it.
    ASSERT_GT(RenameSystemObjects(file, {{"frmAssetInventory", "USyssetInventory"}}), 0);
    ASSERT_TRUE(objects.GetObjects(file, workgroup, "", "", ""));
    EXPECT_EQ(objects.Forms().size(), 2u);
    EXPECT_EQ(access::CachedConnections(), 1u);
    // Even a cached file that has gone is still read through its connection.
    std::filesystem::remove(file);
    EXPECT_TRUE(objects.GetObjects(file, workgroup, "", "", ""));
}

TEST_F(ConnectionCache, CloseConnectionsClosesAndEmptiesIt) {
    const auto nwind = Open(Nwind());
    const auto sample = Open(Sample());
    ASSERT_TRUE(nwind && sample);
    access::CloseConnections();
    EXPECT_EQ(access::CachedConnections(), 0u);
    EXPECT_FALSE(nwind->IsOpen());
    EXPECT_FALSE(sample->IsOpen());
    EXPECT_FALSE(nwind->SystemObjects());
    EXPECT_FALSE(nwind->Fields("Orders"));
    // The next request opens the file anew.
    const auto again = Open(Nwind());
    ASSERT_TRUE(again);
    EXPECT_NE(again, nwind);
    EXPECT_TRUE(again->SystemObjects());
    access::CloseConnections();
    access::CloseConnections();
    EXPECT_EQ(access::CachedConnections(), 0u);
}

TEST_F(ConnectionCache, OnlyOpenConnectionsStayInTheCache) {
    const auto first = Open(Nwind());
    ASSERT_TRUE(first);
    first->Close();
    const auto second = Open(Nwind());
    ASSERT_TRUE(second);
    EXPECT_NE(second, first);
    EXPECT_TRUE(second->IsOpen());
    EXPECT_EQ(access::CachedConnections(), 1u);
    // Failures are not kept: a file that appears later is opened then.
    access::CloseConnections();
    EXPECT_FALSE(Open((folder / "missing.mdb").string()));
    WriteAll(folder / "text.mdb", "text");
    EXPECT_FALSE(Open((folder / "text.mdb").string()));
    EXPECT_EQ(access::CachedConnections(), 0u);
    // A file that appears later is opened then.
    const std::string file = CopyTo(Nwind(), folder / "missing.mdb");
    EXPECT_TRUE(Open(file));
}

}  // namespace
}  // namespace flowloom::test
