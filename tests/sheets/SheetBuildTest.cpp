// Building the Process, Database and Datasource sheets and loading the model into them.
#include "SheetFixture.h"

#include "model/FieldValue.h"
#include "model/Group.h"
#include "model/Groups.h"
#include "support/VbStrings.h"

namespace flowloom::test {
namespace {

// One line per row: caption, type, tag, L(ocked) and C(ustom data), value,
// and the list ("?" when it is asked for on demand).
std::vector<std::string> Sheet(const grid::Properties& rows) {
    std::vector<std::string> lines;
    for (std::int32_t i = 1; i <= rows.Count(); ++i) {
        const grid::Property& r = rows.Item(i);
        const std::string flags = std::string(r.LockedEdit() ? "L" : "") + (r.UseCustomData() ? "C" : "");
        const std::string list = r.ListItems() ? vb::Join(*r.ListItems(), ";") : "?";
        lines.push_back(r.Caption() + "|" + std::to_string(r.ItemType()) + "|" + r.Tag().Text() + "|" + flags + "|" +
                        r.value() + "|" + list);
    }
    return lines;
}

using Lines = std::vector<std::string>;

TEST_F(SheetFixture, ProcessSheetRowsAndDefaults) {
    host.process->SetName("Letters");
    AddDatasource("Orders");
    AddDatasource("Customers");
    host.process->SetMainDataSourceName("Orders");
    EXPECT_EQ(Sheet(Build(sheets::kProcessSheet)),
              (Lines{"Name|0|Name||Letters|?",
                     "Process Records|5|ProcessRecords|L|0 - Current Record|0 - Current Record;1 - All Records",
                     "Main Datasource Name|5|MainDatasourceName||Orders|Orders;Customers",
                     "Abort On Error|2|AbortOnError|L|True|?",
                     "On Error Notify User|2|OnErrorNotifyUser|L|True|?",
                     "Groups|3|Groups|LC|(None)|?",
                     "Field Values|11|FieldValues|LC||?",
                     "Log Datasource Name|5|LogDatasourceName||Orders|Orders;Customers"}));
    EXPECT_EQ(sheets::HelpKey(sheets::kProcessSheet, rows.Item(2)), "Process.ProcessRecords");
}

TEST_F(SheetFixture, ProcessSheetShowsTheModel) {
    host.process->SetProcessRecords(2);  // "Selected" shows as all records
    host.process->SetAbortOnError(false);
    host.process->SetLogDatasourceName("Log");
    host.process->Groups()->Add(std::make_shared<Group>(), "Sales");
    Build(sheets::kProcessSheet);
    EXPECT_EQ(Value(2), "1 - All Records");
    EXPECT_EQ(Value(3), "");
    EXPECT_EQ(Value(4), "False");
    EXPECT_EQ(Value(6), "(List)");
    EXPECT_EQ(Value(8), "Log");
    EXPECT_TRUE(rows.Item(3).ListItems()->empty());  // no datasources: typed only
}

TEST_F(SheetFixture, FieldValuesFollowTheFieldListOfTheMainDatasourceOnly) {
    auto orders = AddDatasource("Orders");
    orders->ObjectName = "Orders";
    orders->Type_ = "Table";
    host.process->SetMainDataSourceName("Orders");
    for (const auto& [field, value] : {std::pair{"a", "1"}, {"B", "2"}, {"z", "9"}})
        host.process->FieldValues()->Add(std::make_shared<FieldValue>(FieldValue{field, value}), field);

    EXPECT_EQ(Build(sheets::kProcessSheet).Item(7).value(), "a = 1\r\nB = 2\r\nz = 9");

    host.memo = {"ORDERS", "table", "A;b;c"};
    EXPECT_EQ(Build(sheets::kProcessSheet).Item(7).value(), "a = 1\r\nB = 2\r\nc");

    orders->SubFormFullName = "Orders.Lines";  // a subform's fields are another list
    EXPECT_EQ(Build(sheets::kProcessSheet).Item(7).value(), "a = 1\r\nB = 2\r\nz = 9");
}

TEST_F(SheetFixture, DatasourceSheetLoadsTheObjectsOfItsDatabase) {
    AddDatabase("Sales;2020");
    AddDatabase("Stock");
    host.datasource = std::make_shared<Datasource>();
    host.datasource->ObjectName = "qryOpen";
    EXPECT_EQ(Sheet(Build(sheets::kDatasourceSheet)),
              (Lines{"Name|0|Name||qryOpen|?", "Database|5|Database|L|CurrentDatabase|Sales;2020;Stock",
                     "Type|5|Type|L|Active Object|Active Object;Form;Table;Query", "Object Name|5|ObjectName||qryOpen|?",
                     "Subform Full Name|0|SubformFullName|||?"}));
    EXPECT_TRUE(host.loads.empty());

    host.datasource->Database = "Stock";
    host.datasource->Type_ = "Query";
    host.datasource->SubFormFullName = "Main.Sub";
    Build(sheets::kDatasourceSheet);
    EXPECT_EQ(host.loads, std::vector<std::string>{"Stock"});
    EXPECT_EQ(Value(2), "Stock");
    EXPECT_EQ(Value(3), "Query");
    EXPECT_EQ(Value(5), "Main.Sub");
}

TEST_F(SheetFixture, AFailingStepIsReportedAndTheRestIsStillFilled) {
    host.datasource = std::make_shared<Datasource>();
    host.datasource->Database = "Gone";
    host.datasource->Type_ = "Form";
    host.failLoading = true;
    Build(sheets::kDatasourceSheet);
    ASSERT_EQ(prompts.errors.size(), 1u);
    EXPECT_EQ(prompts.errors[0].module, "frmDesigner");
    EXPECT_EQ(prompts.errors[0].procedure, "SetDatasourcePropertiesValues");
    EXPECT_EQ(Value(3), "Form");
}

TEST_F(SheetFixture, KindsWithoutASheetHaveNoRows) {
    EXPECT_EQ(Build(2).Count(), 0);
    EXPECT_EQ(Build(17).Count(), 0);
    EXPECT_EQ(sheets::SheetKindName(2), "");
}

}  // namespace
}  // namespace flowloom::test
