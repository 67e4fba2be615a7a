// What rows show instead of their value, and the lists the sheets offer.
#include "SheetFixture.h"

#include "model/AddRecord.h"
#include "model/Group.h"
#include "model/Groups.h"

namespace flowloom::test {
namespace {

using Names = std::vector<std::string>;

TEST_F(SheetFixture, CustomRowsShowAShortForm) {
    auto& fieldValues = rows.Add("Field Values", grid::ExPropMemo, "");
    fieldValues.SetTag("FieldValues");
    auto& attachments = rows.Add("Attachments", grid::ExPropMemo, "a.pdf");
    attachments.SetTag("Attachments");
    auto& groups = rows.Add("Groups", grid::ExPropBrowse, "(List)");
    groups.SetTag("Groups");

    EXPECT_EQ(sheets::QueryCustomDataText(fieldValues, host), "(None)");
    fieldValues.SetValue("a = 1");
    EXPECT_EQ(sheets::QueryCustomDataText(fieldValues, host), "(Data)");
    EXPECT_EQ(sheets::QueryCustomDataText(attachments, host), "(Attachments)");
    // Groups go by the process, whatever the row holds.
    EXPECT_EQ(sheets::QueryCustomDataText(groups, host), "(None)");
    host.process->Groups()->Add(std::make_shared<Group>(), "Sales");
    EXPECT_EQ(sheets::QueryCustomDataText(groups, host), "(List)");

    EXPECT_TRUE(sheets::ShowsBrowseButton(fieldValues));
    EXPECT_TRUE(sheets::ShowsBrowseButton(attachments));
    EXPECT_FALSE(sheets::ShowsBrowseButton(groups));
}

TEST_F(SheetFixture, DatabaseListSplitsNamesHoldingSemicolons) {
    EXPECT_TRUE(sheets::GetDatabaseList(host, false).empty());
    EXPECT_EQ(sheets::GetDatabaseList(host, true), Names{"CurrentDatabase"});
    AddDatabase("Sales;2020");
    AddDatabase("Stock");
    EXPECT_EQ(sheets::GetDatabaseList(host, false), (Names{"Sales", "2020", "Stock"}));
    EXPECT_EQ(sheets::GetDatabaseList(host, true), (Names{"CurrentDatabase", "Sales", "2020", "Stock"}));
}

TEST_F(SheetFixture, ObjectNamesFollowTheDatasourceType) {
    host.objects["Stock"] = {{"Form", "frmA;frmB"}, {"Table", "tblItems"}, {"Query", ""}};
    host.datasource = std::make_shared<Datasource>();
    host.datasource->Database = "Stock";
    host.datasource->Type_ = "Form";
    Build(sheets::kDatasourceSheet);

    Names items{"kept"};
    sheets::NeedData(sheets::kDatasourceSheet, rows.Item(4), host, items);
    EXPECT_EQ(items, (Names{"frmA", "frmB"}));

    host.datasource->Type_ = "Query";
    sheets::NeedData(sheets::kDatasourceSheet, rows.Item(4), host, items);
    EXPECT_TRUE(items.empty());

    items = {"kept"};
    host.datasource->Type_ = "Active Object";
    sheets::NeedData(sheets::kDatasourceSheet, rows.Item(4), host, items);
    host.datasource->Type_ = "Table";
    sheets::NeedData(sheets::kDatasourceSheet, rows.Item(3), host, items);
    sheets::NeedData(sheets::kProcessSheet, rows.Item(4), host, items);
    EXPECT_EQ(items, Names{"kept"});
}

TEST_F(SheetFixture, AddRecordTablesInspectItsDatabaseWhenNoneWasRead) {
    host.objects["Log"] = {{"Table", "tblLog;tblSent"}};
    auto addRecord = std::make_shared<AddRecord>();
    addRecord->SetDatabase("Log");
    host.activity = addRecord;
    for (const char* caption : {"Description", "Datasource Name", "Database", "Table Name"})
        rows.Add(caption, grid::ExPropCustomList, "");

    Names items;
    sheets::NeedData(16, rows.Item(4), host, items);
    EXPECT_EQ(host.loads, Names{"Log"});
    EXPECT_EQ(items, (Names{"tblLog", "tblSent"}));
    sheets::NeedData(16, rows.Item(4), host, items);
    EXPECT_EQ(host.loads.size(), 1u);  // read once
}

}  // namespace
}  // namespace flowloom::test
