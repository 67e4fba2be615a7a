// The sheets of a process, a database and a datasource: rows, captions,
// defaults, custom texts, help texts, and the Type the Database sheet writes.
#include "SessionFixture.h"

namespace flowloom::test {
namespace {

using SessionSheets = SessionFixture;

TEST_F(SessionSheets, ProcessSheetWithHelpFromTheCatalogue) {
    Catalogue({{"Process.ProcessRecords", "One record or all of them"}, {"Database.Name", "Not asked"}});
    EXPECT_EQ(Session({"-xmlfile", Example()}, "grid-row 2\ndump\ngrid-row 1\ngrid-row 9\ndump\n"), 0);
    // The rows themselves are the sheet's own; the window adds the short forms of
    // the custom rows and the help of the selected row. A click below the rows changes nothing.
    const std::string rows =
        "sheet: 1\n"
        "row 6: Groups | Groups | 3 | (List) {(List)} | locked |\n"
        "row 7: FieldValues | Field Values | 11 | Signature = Accounts department {(Data)} | locked |\n";
    EXPECT_EQ(Pick({"sheet", "row 6", "row 7", "info"}), rows + "info: One record or all of them\n" + rows + "info:\n");

    EXPECT_EQ(Session({"-xmlfile", Example(), "-process", "Order confirmation fax"}, "dump\n"), 0);
    EXPECT_EQ(Pick({"row 4", "row 6", "row 7"}),
              "row 4: AbortOnError | Abort On Error | 2 | False | locked |\n"
              "row 6: Groups | Groups | 3 | (None) {(None)} | locked |\n"
              "row 7: FieldValues | Field Values | 11 |  {(None)} | locked |\n");
}

TEST_F(SessionSheets, DatabaseSheetWritesTheDefaultTypeBack) {
    Catalogue({{"Database.Location", "Path of the database file"}});
    const std::string path = File("db.xml", R"(<Processes Version="1"><Process Name="P"/><Databases>)"
                                            R"(<Database Name="Sales" Location="/data/sales.mdb"/>)"
                                            R"(</Databases></Processes>)");
    EXPECT_EQ(Session({"-xmlfile", path}, "dump\ncell database 1 0\ngrid-row 3\ndump\nxml\n"), 0);
    EXPECT_EQ(Pick({"sheet", "row 1", "row 2", "row 3", "info", "changed"}),
              "sheet: 1\nrow 1: Name | Name | 0 | P | free |\n"
              "row 2: ProcessRecords | Process Records | 5 | 0 - Current Record | locked | "
              "0 - Current Record;1 - All Records\n"
              "row 3: MainDatasourceName | Main Datasource Name | 5 |  | free |\n"
              "info:\nchanged: no\n"
              "sheet: 6\n"
              "row 1: Name | Name | 0 | Sales | free |\n"
              "row 2: Type | Type | 5 | Microsoft Access | locked | Microsoft Access\n"
              "row 3: Location | Location | 9 | /data/sales.mdb | free |\n"
              "info: Path of the database file\n"
              "changed: yes\n");
    EXPECT_NE(out.str().find("Type=\"Microsoft Access\""), std::string::npos);
}

TEST_F(SessionSheets, DatasourceSheetRowsAndDefaults) {
    EXPECT_EQ(Session({"-xmlfile", Example()}, "cell datasource 1 1\ndump\n"), 0);
    EXPECT_EQ(Pick({"sheet", "row 1", "row 2", "row 3", "row 4", "row 5", "row 6"}),
              "sheet: 8\n"
              "row 1: Name | Name | 0 | Reminder log | free |\n"
              "row 2: Database | Database | 5 | Northwind | locked | Northwind\n"
              "row 3: Type | Type | 5 | Table | locked | Active Object;Form;Table;Query\n"
              "row 4: ObjectName | Object Name | 5 | Reminder log | free |\n"
              "row 5: SubformFullName | Subform Full Name | 0 |  | free |\n");

    // A new datasource shows the defaults and is no change yet.
    EXPECT_EQ(Session({}, "toolbar 8\ndump\n"), 0);
    EXPECT_EQ(Pick({"sheet", "row 2", "row 3", "changed"}),
              "sheet: 8\n"
              "row 2: Database | Database | 5 | CurrentDatabase | locked |\n"
              "row 3: Type | Type | 5 | Active Object | locked | Active Object;Form;Table;Query\n"
              "changed: no\n");
}

}  // namespace
}  // namespace flowloom::test
