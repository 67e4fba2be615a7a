// The designer core where it is more than its commands: clipboard copies,
// the canvas surviving a command that rebuilds it from inside its own event,
// and the menu and toolbar data the window is built from.
#include "designer/CHTMLDocument.h"
#include "grid/HeadlessGrid.h"
#include "designer/ItemCopies.h"
#include "designer/frmDesigner.h"
#include "model/Activities.h"
#include "model/Datasource.h"
#include "model/Datasources.h"
#include "model/Document.h"
#include "model/Documents.h"
#include "model/FieldValue.h"
#include "model/Process.h"
#include "model/Processes.h"
#include "model/SaveAs.h"
#include "testsupport/ScriptedPrompts.h"
#include "testsupport/TempFolder.h"

#include <gtest/gtest.h>

#include <fstream>

namespace flowloom::designer {
namespace {

TEST(ItemCopies, CarryTheirMembersWithTheirPrefixRules) {
    auto process = Process::Create();
    process->SetName("Letters");
    auto datasource = std::make_shared<Datasource>();
    datasource->SetName("Customers");
    datasource->ObjectName = "tblCustomers";
    process->Datasources()->Add(datasource);
    auto saveAs = std::make_shared<SaveAs>();
    saveAs->SetDescription("Keep it");
    saveAs->SetFolder("C:\\Out");
    saveAs->SetInputDocumentName("Letter");
    process->Activities()->Add(saveAs);
    auto plain = std::make_shared<SaveAs>();
    process->Activities()->Add(plain);
    auto document = std::make_shared<Document>();
    document->name = "Letter";
    process->Documents()->Add(document, "Letter");
    process->FieldValues()->Add(std::make_shared<FieldValue>(FieldValue{"Status", "sent"}), "Status");

    const auto copy = CopyProcess(*process);
    EXPECT_EQ(copy->name(), "Copy of Letters");
    ASSERT_EQ(copy->Datasources()->Count(), 1);
    EXPECT_EQ(copy->Datasources()->Item(1)->name(), "Customers");  // inner copies keep their names
    EXPECT_NE(copy->Datasources()->Item(1), datasource);
    ASSERT_EQ(copy->Activities()->Count(), 2);
    EXPECT_EQ(copy->Activities()->Item(1)->Description(), "Keep it");
    EXPECT_EQ(copy->Documents()->Count(), 1);
    EXPECT_EQ(copy->FieldValues()->Item(1)->value, "sent");

    const auto activityCopy = CopyActivity(*saveAs, true);
    EXPECT_EQ(activityCopy->Description(), "Copy of Keep it");
    EXPECT_NE(activityCopy->Key(), saveAs->Key());
    const auto& copied = static_cast<const SaveAs&>(*activityCopy);
    EXPECT_EQ(copied.InputDocumentName(), "Letter");
    EXPECT_EQ(copied.Folder(), "");  // the target is not among what a copy carries
    EXPECT_EQ(CopyActivity(*plain, true)->Description(), "");  // no prefix on an empty description
    EXPECT_EQ(CopyDatasource(*datasource, true)->name(), "Copy of Customers");
}

// A page whose events rebuild its table, as the Delete key does.
class Rebuilder : public CHTMLDocumentEvents {
public:
    explicit Rebuilder(HtmlPage& page) : page_(page) {}
    std::shared_ptr<CHTMLDocument> document;
    void Build() {
        document = std::make_shared<CHTMLDocument>(*this);
        document->SetDocument(&page_);
        HtmlTable& table = page_.Table() ? *page_.Table() : page_.CreateTable();
        while (table.RowCount() > 0) table.deleteRow();
        table.Id = "ActivityTable";
        document->SetTable(&table);
        for (int i = 0; i < 3; ++i) {
            HtmlRow& row = table.insertRow();
            row.insertCell();
            document->CellAdd(row.cells(0));
        }
    }
    void CellDeleted() override {
        ++deleted;
        Build();
    }
    void CellSelected(const std::shared_ptr<HtmlCell>&) override { ++selected; }
    void CellContextMenu() override { Build(); }
    void DocumentContextMenu() override { ++documentMenus; }
    void CellArrowLeft() override {}
    void CellArrowRight() override {}
    void CellArrowUp() override {}
    void CellArrowDown() override {}
    int deleted = 0, selected = 0, documentMenus = 0;

private:
    HtmlPage& page_;
};

TEST(Canvas, SurvivesCommandsThatRebuildItFromInsideItsEvents) {
    HtmlPage page("wbcActivity");
    Rebuilder events(page);
    events.Build();
    page.SetControlFocused(true);
    page.FocusCell(page.Table()->rows(0).cells(0));
    EXPECT_EQ(page.Table()->rows(1).cells(0)->backgroundColor(), kSelectedColour);  // the caption of the pair
    page.KeyDown(46);  // the cell that has the focus is gone when the handler returns
    page.KeyDown(46);  // and a key on a cell that no longer exists reaches nobody
    EXPECT_EQ(events.deleted, 1);
    // A menu chosen from a cell's context menu that rebuilds the strip must
    // not open the empty part's menu as well.
    page.ContextMenuOnCell(page.Table()->rows(0).cells(0));
    EXPECT_EQ(events.documentMenus, 0);
    page.ContextMenuOnBody();
    EXPECT_EQ(events.documentMenus, 1);
}

TEST(Designer, ALargeProcessKeepsItsRowsInStep) {
    test::ScriptedPrompts prompts;
    test::TempFolder folder;
    auto processes = Processes::Create();
    auto process = Process::Create();
    process->SetName("Many");
    for (int i = 0; i < 60; ++i) process->Activities()->Add(CreateActivity(kActivityKinds[i % 7]));
    processes->Add(process);
    const std::string file = (folder.Path() / "many.xml").string();
    ASSERT_TRUE(processes->Save(file));

    grid::HeadlessGrid grid;
    DesignerView view;
    frmDesigner designer(grid, view);
    grid.SetEvents(&designer);
    ASSERT_TRUE(designer.Form_Load("-xmlfile \"" + file + "\""));
    designer.Form_Activate();
    const HtmlTable& table = *designer.Canvas(Strip::Activity).Table();
    EXPECT_EQ(table.RowCount(), 60 * 3 - 1);
    // Down through the flow by keyboard: each step shows the next activity's sheet.
    designer.CellClick(Strip::Activity, 0, 0);
    for (int i = 1; i < 60; ++i) designer.StripKeyDown(Strip::Activity, 40);
    EXPECT_EQ(designer.PropListTag(), std::to_string(ItemTypeCode(kActivityKinds[59 % 7])));
    EXPECT_EQ(table.rows(59 * 3).cells(0)->backgroundColor(), kSelectedColour);
    designer.StripKeyDown(Strip::Activity, 40);  // the last one stays
    EXPECT_EQ(table.rows(59 * 3).cells(0)->backgroundColor(), kSelectedColour);
    EXPECT_TRUE(prompts.errors.empty());
}

}  // namespace
}  // namespace flowloom::designer
