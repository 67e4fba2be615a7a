// `flowloom-cli objects` and `fields` over the shared Access databases.
#include "CliFixture.h"

#include "designer/access/AccessObjects.h"
#include "designer/access/AccessTestFiles.h"

#include <gmock/gmock.h>

namespace flowloom::test {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

class AccessCommands : public CliFixture {};

TEST_F(AccessCommands, ObjectsPrintsFourListsInAFixedOrder) {
    EXPECT_EQ(Run({"objects", Sample()}), 0);
    EXPECT_EQ(out.str(),
              "Forms: frmAssetInventory;frmAssetItemsDataForm;frmGSTCalculations\n"
              "Tables: Asset Items\n"
              "Queries: qryComputerHardwareInOwnerOrder;qryCostsSummedByOwner;qryGSTCalculations\n"
              "Reports: rptAssetListingInNumberOrder;rptAssetsGroupedByOwners;rptGSTPaidByMonth\n");
    EXPECT_EQ(err.str(), "");
}

TEST_F(AccessCommands, AnEmptyListEndsAfterTheBlank) {
    const std::string file = RenamedSample(folder / "renamed.accdb");
    EXPECT_EQ(Run({"objects", file}), 0);
    EXPECT_EQ(out.str(),
              "Forms: frmAssetItemsDataForm;MSysSTCalculations\n"
              "Tables: msyst Items\n"
              "Queries: qryComputerHardwareInOwnerOrder;~SQ_STCalculations\n"
              "Reports: \n");
}

TEST_F(AccessCommands, FieldsPrintsTheFieldsWithoutAutoNumbers) {
    EXPECT_EQ(Run({"fields", Nwind(), "categories"}), 0);
    EXPECT_EQ(out.str(), "CategoryName;Description;Picture\n");
    EXPECT_EQ(Run({"fields", Sample(), "Asset Items"}), 0);
    EXPECT_THAT(out.str(), StartsWith("Asset No;Asset Category;Make;"));
    EXPECT_EQ(Run({"fields", Nwind(), "No such table"}), 1);
    EXPECT_EQ(out.str(), "");
    EXPECT_THAT(err.str(), HasSubstr("no table named 'No such table'"));
    EXPECT_EQ(Run({"fields", Nwind(), "Invoices"}), 1);  // a query
}

TEST_F(AccessCommands, NoAccessDatabaseOrWrongArgumentsExitWith2) {
    WriteAll(folder / "text.mdb", "no database");
    for (const auto& file : {(folder / "missing.mdb").string(), (folder / "text.mdb").string()}) {
        EXPECT_EQ(Run({"objects", file}), 2) << file;
        EXPECT_EQ(out.str(), "");
        EXPECT_THAT(err.str(), HasSubstr("cannot read " + file));
        EXPECT_EQ(Run({"fields", file, "Orders"}), 2) << file;
        EXPECT_THAT(err.str(), HasSubstr("cannot read " + file));
    }
    EXPECT_EQ(Run({"objects"}), 2);
    EXPECT_THAT(err.str(), HasSubstr("usage: flowloom-cli objects DBFILE"));
    EXPECT_EQ(Run({"objects", Nwind(), "extra"}), 2);
    EXPECT_EQ(Run({"fields", Nwind()}), 2);
    EXPECT_THAT(err.str(), HasSubstr("usage: flowloom-cli fields DBFILE TABLE"));
    EXPECT_EQ(Run({"fields", Nwind(), "Orders", "Customers"}), 2);
    EXPECT_EQ(out.str(), "");
}

TEST_F(AccessCommands, EachCommandClosesItsConnections) {
    EXPECT_EQ(Run({"objects", Nwind()}), 0);
    EXPECT_EQ(Run({"fields", Sample(), "Asset Items"}), 0);
    EXPECT_EQ(access::CachedConnections(), 0u);
}

}  // namespace
}  // namespace flowloom::test
