// The objects of a database and the fields of a table, as the property rows
// offer them, read from the shared test databases.
#include "AccessTestFiles.h"

#include "designer/access/AccessConnection.h"
#include "designer/access/AccessObjects.h"
#include "model/Database.h"
#include "support/VbError.h"
#include "support/VbStrings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace flowloom::test {
namespace {

using access::CAccessObjects;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;

class AccessObjects : public ::testing::Test {
protected:
    void TearDown() override { access::CloseConnections(); }

    CAccessObjects Read(const std::string& file) {
        CAccessObjects objects;
        std::string workgroup;
        EXPECT_TRUE(objects.GetObjects(file, workgroup, "", "", "")) << file;
        return objects;
    }
    std::string Fields(const std::string& table, const std::string& file) {
        std::string workgroup;
        return CAccessObjects().FieldList(table, file, workgroup, "", "", "");
    }

    TempFolder folder;
};

TEST_F(AccessObjects, ListsTheObjectsOfAJet3DatabaseInTheirStoredOrder) {
    const auto objects = Read(Nwind());
    EXPECT_EQ(objects.TableList(), "Order Details;Orders;Products;Shippers;Categories;Customers;Employees;Suppliers;Umsätze");
    EXPECT_THAT(objects.Forms(), Contains("Main Switchboard"));
    EXPECT_EQ(objects.Forms().size(), 21u);
    EXPECT_EQ(objects.Forms().front(), "Customer Labels Dialog");
    EXPECT_EQ(objects.Queries().size(), 22u);
    EXPECT_THAT(objects.Queries(), Contains("Ten Most Expensive Products"));
    EXPECT_EQ(objects.Reports().size(), 13u);
    EXPECT_EQ(objects.Reports().back(), "Summary of Sales by Year");
}

TEST_F(AccessObjects, ListsTheObjectsOfAnAccdbWithoutSystemTablesAndFormQueries) {
    const auto objects = Read(Sample());
    EXPECT_EQ(objects.FormList(), "frmAssetInventory;frmAssetItemsDataForm;frmGSTCalculations");
    EXPECT_EQ(objects.TableList(), "Asset Items");
    EXPECT_EQ(objects.QueryList(), "qryComputerHardwareInOwnerOrder;qryCostsSummedByOwner;qryGSTCalculations");
    EXPECT_EQ(objects.ReportList(), "rptAssetListingInNumberOrder;rptAssetsGroupedByOwners;rptGSTPaidByMonth");
}

TEST_F(AccessObjects, HidesByPrefixCaseSensitivelyAndPerKindOfObject) {
    const auto objects = Read(RenamedSample(folder / "renamed.accdb"));
    // A form may start with "MSys"; "USys" hides it. "msys" is no system prefix.
    EXPECT_THAT(objects.Forms(), ElementsAre("frmAssetItemsDataForm", "MSysSTCalculations"));
    EXPECT_THAT(objects.Tables(), ElementsAre("msyst Items"));
    EXPECT_THAT(objects.Queries(), ElementsAre("qryComputerHardwareInOwnerOrder", "~SQ_STCalculations"));
    EXPECT_TRUE(objects.Reports().empty());
}

TEST_F(AccessObjects, AnEmptyListFailsWithError5) {
    const CAccessObjects fresh;
    for (const auto& list : {&CAccessObjects::FormList, &CAccessObjects::TableList, &CAccessObjects::QueryList,
                             &CAccessObjects::ReportList}) {
        try {
            (void)(fresh.*list)();
            ADD_FAILURE() << "no error";
        } catch (const VbError& error) {
            EXPECT_EQ(error.Number(), 5);
        }
    }
    const auto renamed = Read(RenamedSample(folder / "renamed.accdb"));
    EXPECT_THROW((void)renamed.ReportList(), VbError);
    EXPECT_EQ(renamed.FormList(), "frmAssetItemsDataForm;MSysSTCalculations");
}

TEST_F(AccessObjects, ReadingAgainReplacesTheListsAndAFailureKeepsThem) {
    CAccessObjects objects;
    std::string workgroup = "sys.mdw";
    ASSERT_TRUE(objects.GetObjects(Sample(), workgroup, "Admin", "secret", "other"));
    EXPECT_EQ(workgroup, "sys.mdw");
    ASSERT_TRUE(objects.GetObjects(Sample(), workgroup, "", "", ""));
    EXPECT_EQ(objects.Tables().size(), 1u);
    EXPECT_FALSE(objects.GetObjects((folder / "missing.mdb").string(), workgroup, "", "", ""));
    EXPECT_EQ(objects.TableList(), "Asset Items");
}

TEST_F(AccessObjects, FieldListLeavesOutAutoNumberColumns) {
    EXPECT_EQ(Fields("Categories", Nwind()), "CategoryName;Description;Picture");
    EXPECT_EQ(Fields("Shippers", Nwind()), "CompanyName;Phone");
    const std::string employees = Fields("Employees", Nwind());
    EXPECT_EQ(employees.find("EmployeeID"), std::string::npos);
    // Text and date columns of Jet 3 may carry the replication flag: no AutoNumbers.
    EXPECT_EQ(employees.rfind("LastName;FirstName;Title;TitleOfCourtesy;BirthDate;HireDate;", 0), 0u) << employees;
    EXPECT_EQ(Fields("Asset Items", Sample()),
              "Asset No;Asset Category;Make;Model;Description;Owner;Serial No;Acquired;Cost;Warranty;Tax "
              "Scale;Supplier No;Comments");
}

TEST_F(AccessObjects, FieldListFindsTablesWithoutRegardToCaseAndOnlyTables) {
    EXPECT_EQ(Fields("CATEGORIES", Nwind()), "CategoryName;Description;Picture");
    EXPECT_EQ(Fields("umsätze", Nwind()), Fields("Umsätze", Nwind()));
    EXPECT_FALSE(Fields("Umsätze", Nwind()).empty());
    // System tables have fields too; queries, forms and unknown names have none.
    EXPECT_THAT(vb::Split(Fields("MSysObjects", Nwind()), ";"), Contains("Name"));
    EXPECT_EQ(Fields("Invoices", Nwind()), "");
    EXPECT_EQ(Fields("Main Switchboard", Nwind()), "");
    EXPECT_EQ(Fields("No such table", Nwind()), "");
    EXPECT_EQ(Fields("Categories", (folder / "missing.mdb").string()), "");
}

TEST_F(AccessObjects, TheConnectionTellsWhichColumnsAreAutoNumbers) {
    const auto connection = access::AccessConnection::Open(Nwind());
    ASSERT_TRUE(connection);
    const auto fields = connection->Fields("Categories");
    ASSERT_TRUE(fields);
    ASSERT_EQ(fields->size(), 4u);
    EXPECT_EQ((*fields)[0].name, "CategoryID");
    EXPECT_TRUE((*fields)[0].autoIncrement);
    EXPECT_FALSE((*fields)[1].autoIncrement);
    EXPECT_FALSE(connection->Fields("Invoices"));
}

TEST_F(AccessObjects, GetTableFieldsSplitsTheListOfTheDatabasesLocation) {
    EXPECT_TRUE(access::GetTableFields("Categories", nullptr).empty());
    Database database;
    database.Location = (folder / "missing.mdb").string();
    EXPECT_TRUE(access::GetTableFields("Categories", &database).empty());
    EXPECT_EQ(access::CachedConnections(), 0u);
    database.Location = Nwind();
    EXPECT_THAT(access::GetTableFields("categories", &database), ElementsAre("CategoryName", "Description", "Picture"));
    EXPECT_TRUE(access::GetTableFields("Invoices", &database).empty());
    database.Location = folder.Path().string();  // a folder is no file
    EXPECT_TRUE(access::GetTableFields("Categories", &database).empty());
}

}  // namespace
}  // namespace flowloom::test
