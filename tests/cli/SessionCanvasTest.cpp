// The three strips of the canvas: their tables, the selection by colour,
// keys and clicks, and the focus of a strip.
#include "SessionFixture.h"

#include "designer/CHTMLDocument.h"

namespace flowloom::test {
namespace {

namespace fs = std::filesystem;
using designer::HtmlTable;
using designer::Strip;

class SessionCanvas : public SessionFixture {
protected:
    std::string Picture(const std::string& name) const {
        return "<img src=\"" + (folder.Path() / "icons" / (name + ".ico")).string() + "\">";
    }
    // The background of cell 0 of each row, "S" for the selected colour.
    static std::string Colours(const HtmlTable& table) {
        std::string colours;
        for (int r = 0; r < table.RowCount(); ++r)
            colours += table.rows(r).cells(0)->backgroundColor() == designer::kSelectedColour ? 'S' : '.';
        return colours;
    }
};

// The captions of "Reminder letters", the selected one marked.
std::string Activities(int selected) {
    const char* captions[] = {"Merge one reminder per overdue invoice", "Keep a copy of each reminder",
                              "Make a PDF for the mail", "Mail Merge", "Mail the reminder with its PDF",
                              "Print the file copy", "Log each reminder"};
    std::string line = "activity:";
    for (int i = 0; i < 7; ++i) line += std::string(i ? " | " : " ") + (i == selected ? "*" : "") + captions[i];
    return line + "\n";
}

TEST_F(SessionCanvas, StripsAreTablesOfPicturesNamesAndConnectors) {
    std::ostringstream transcript;
    cli::Session session(transcript);
    ASSERT_TRUE(session.Start({"-xmlfile", Example(), "-process", "Order confirmation fax"}));
    auto& designer = session.Designer();

    const HtmlTable* databases = designer.Canvas(Strip::Database).getElementById("DatabaseTable");
    ASSERT_NE(databases, nullptr);
    ASSERT_EQ(databases->RowCount(), 2);
    EXPECT_EQ(databases->rows(0).cells(0)->innerHTML, Picture("Database"));
    EXPECT_EQ(databases->rows(1).cells(0)->innerHTML, "Northwind");
    EXPECT_TRUE(fs::exists(folder / "icons" / "Database.ico"));

    // Two activities: icon, caption, connector with the arrow, icon, caption.
    const HtmlTable* flow = designer.Canvas(Strip::Activity).getElementById("ActivityTable");
    ASSERT_NE(flow, nullptr);
    ASSERT_EQ(flow->RowCount(), 5);
    EXPECT_EQ(flow->rows(0).cells(0)->innerHTML, Picture("MailMerge"));
    EXPECT_EQ(flow->rows(1).cells(0)->innerHTML, "Mail Merge");
    EXPECT_EQ(flow->rows(2).cells(0)->innerHTML, Picture("ArrowDown"));
    EXPECT_EQ(flow->rows(3).cells(0)->innerHTML, Picture("SendFax"));
    EXPECT_EQ(flow->rows(4).cells(0)->innerHTML, "Fax the confirmation");

    // One activity has no connector row.
    Feed(session, "list 0\ntoolbar 11\n");
    flow = designer.Canvas(Strip::Activity).getElementById("ActivityTable");
    ASSERT_EQ(flow->RowCount(), 2);
    EXPECT_EQ(flow->rows(0).cells(0)->innerHTML, Picture("SaveAs"));
    EXPECT_EQ(flow->rows(1).cells(0)->innerHTML, "Save As");
}

TEST_F(SessionCanvas, SelectionIsTheColourOfTheItemsCells) {
    std::ostringstream transcript;
    cli::Session session(transcript);
    ASSERT_TRUE(session.Start({"-xmlfile", Example()}));
    auto& designer = session.Designer();
    const HtmlTable& flow = *designer.Canvas(Strip::Activity).getElementById("ActivityTable");
    const HtmlTable& sources = *designer.Canvas(Strip::Datasource).getElementById("DatasourceTable");

    // A caption marks its icon too; an icon its caption; a connector nothing.
    Feed(session, "cell activity 4 0\n");
    EXPECT_EQ(Colours(flow), "...SS" + std::string(15, '.'));
    Feed(session, "cell activity 6 0\ncell activity 5 0\n");
    EXPECT_EQ(Colours(flow), "......SS" + std::string(12, '.'));

    // In a strip the column is marked; the other strips lose their colour.
    Feed(session, "cell datasource 0 1\n");
    EXPECT_EQ(sources.rows(0).cells(1)->backgroundColor(), designer::kSelectedColour);
    EXPECT_EQ(sources.rows(1).cells(1)->backgroundColor(), designer::kSelectedColour);
    EXPECT_EQ(sources.rows(1).cells(0)->backgroundColor(), designer::kUnselectedColour);
    EXPECT_EQ(Colours(flow), std::string(20, '.'));
    EXPECT_EQ(transcript.str(), "");
}

TEST_F(SessionCanvas, ArrowKeysStopAtTheEndsAndConnectorsSelectNothing) {
    EXPECT_EQ(Session({"-xmlfile", Example()}, "cell datasource 1 1\ndump\n"
                                               "key datasource 39\nkey datasource 38\nkey datasource 40\ndump\n"
                                               "key datasource 37\nkey datasource 37\ndump\n"
                                               "cell activity 1 0\nkey activity 38\nkey activity 37\n"
                                               "key activity 39\ndump\n"
                                               "key activity 40\ncell activity 5 0\ndump\n"
                                               "cell activity 19 0\nkey activity 40\ndump\n"),
              0);
    const std::string noActivity = Activities(-1);
    EXPECT_EQ(Pick({"list-mark", "datasource", "activity", "sheet"}),
              "list-mark: off\ndatasource: Overdue invoices | *Reminder log\n" + noActivity + "sheet: 8\n" +
                  "list-mark: off\ndatasource: Overdue invoices | *Reminder log\n" + noActivity + "sheet: 8\n" +
                  "list-mark: off\ndatasource: *Overdue invoices | Reminder log\n" + noActivity + "sheet: 8\n" +
                  "list-mark: off\ndatasource: Overdue invoices | Reminder log\n" + Activities(0) + "sheet: 10\n" +
                  "list-mark: off\ndatasource: Overdue invoices | Reminder log\n" + Activities(1) + "sheet: 11\n" +
                  "list-mark: off\ndatasource: Overdue invoices | Reminder log\n" + Activities(6) + "sheet: 16\n");
}

TEST_F(SessionCanvas, FocusOfAStripSelectsItsFirstItemAndTheListTakesItBack) {
    // A name with markup goes into its cell as markup.
    const std::string path = File("markup.xml", R"(<Processes Version="1"><Process Name="P"><Datasources>)"
                                                R"(<Datasource Name="&lt;b&gt;Bold&lt;/b&gt;" Type="Table"/>)"
                                                R"(<Datasource Name="Plain" Type="Table"/></Datasources>)"
                                                R"(</Process></Processes>)");
    EXPECT_EQ(Session({"-xmlfile", path}, "dump\nfocus datasource\ndump\nfocus list\ndump\n"
                                          "strip-click datasource\ndump\n"),
              0);
    EXPECT_EQ(Pick({"list-mark", "datasource", "sheet"}),
              "list-mark: on\ndatasource: <b>Bold</b> | Plain\nsheet: 1\n"
              "list-mark: off\ndatasource: *<b>Bold</b> | Plain\nsheet: 8\n"
              "list-mark: on\ndatasource: <b>Bold</b> | Plain\nsheet: 1\n"
              "list-mark: off\ndatasource: *<b>Bold</b> | Plain\nsheet: 8\n");
}

TEST_F(SessionCanvas, TheSameCellReportedAgainKeepsItsSheet) {
    Catalogue({{"Datasource.Database", "Where the data lives"}});
    // A click on the strip's empty part focuses the first selected cell, the
    // icon. Back from the grid, the icon reports itself again: the sheet is
    // not rebuilt and keeps its help text. The name is another cell.
    EXPECT_EQ(Session({"-xmlfile", Example()}, "cell datasource 0 0\ngrid-row 2\ncell datasource 0 0\ndump\n"
                                               "cell datasource 1 0\ndump\n"),
              0);
    EXPECT_EQ(Pick({"sheet", "info"}),
              "sheet: 8\ninfo: Where the data lives\n"
              "sheet: 8\ninfo:\n");
}

}  // namespace
}  // namespace flowloom::test
