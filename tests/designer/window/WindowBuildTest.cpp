// The window as built from the designer: list, canvases, grid, the menu bar
// and the toolbar from the designer's data, placed from its layout.
#include "WindowFixture.h"

#include "designer/MenuData.h"
#include "designer/window/ProcessListView.h"
#include "grid/widget/PropertyList.h"

#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QToolBar>

#include <cmath>

namespace flowloom::designer::window::testing {
namespace {

TEST_F(WindowTest, ShowsTheFileItsListAndTheFirstProcess) {
    const ProcessListView& list = Window().ProcessList();
    ASSERT_EQ(list.count(), 4);
    EXPECT_EQ(list.item(0)->text(), "<New Process>");
    EXPECT_EQ(list.item(1)->text(), "Reminder letters");
    EXPECT_EQ(list.currentRow(), 1);
    EXPECT_EQ(Window().windowTitle().toStdString(), Core().Caption());

    EXPECT_EQ(Core().PropListTag(), "1");  // the process sheet
    EXPECT_GT(Window().Grid().Properties().Count(), 0);
    EXPECT_TRUE(Canvas(Strip::Database).CellRect(1, 0).has_value());    // Northwind's name
    EXPECT_TRUE(Canvas(Strip::Datasource).CellRect(1, 1).has_value());  // the second datasource
    EXPECT_TRUE(Canvas(Strip::Activity).CellRect(3 * 6, 0).has_value()); // the seventh activity
    EXPECT_FALSE(Canvas(Strip::Activity).CellRect(3 * 7, 0).has_value());
}

// Each menu's entries, with their captions, in the order of the data.
void ExpectMenuMatches(const MainWindow& window, const MenuBar& data, const std::string& name) {
    const QMenu* menu = window.MenuNamed(name);
    ASSERT_NE(menu, nullptr) << name;
    const auto children = data.Children(name);
    const QList<QAction*> actions = menu->actions();
    ASSERT_EQ(actions.size(), static_cast<qsizetype>(children.size())) << name;
    for (std::size_t i = 0; i < children.size(); ++i) {
        const MenuEntry& entry = *children[i];
        const QAction& action = *actions[static_cast<qsizetype>(i)];
        EXPECT_EQ(action.objectName().toStdString(), entry.name);
        EXPECT_EQ(action.isSeparator(), entry.separator) << entry.name;
        if (!entry.separator) {
            EXPECT_EQ(action.text().toStdString(), entry.caption);
        }
        if (data.IsMenu(entry.name)) ExpectMenuMatches(window, data, entry.name);
    }
}

TEST_F(WindowTest, MenuBarIsTheDesignersMenusWithoutTheContextMenu) {
    const MenuBar& data = Core().Menus();
    std::vector<std::string> topLevel;
    for (const MenuEntry& entry : data.Entries())
        if (entry.parent.empty() && entry.name != "mnuPopUp") topLevel.push_back(entry.name);
    const QList<QAction*> bar = Window().menuBar()->actions();
    ASSERT_EQ(bar.size(), static_cast<qsizetype>(topLevel.size()));
    for (std::size_t i = 0; i < topLevel.size(); ++i) {
        EXPECT_EQ(bar[static_cast<qsizetype>(i)]->text().toStdString(), data.Find(topLevel[i])->caption);
        ExpectMenuMatches(Window(), data, topLevel[i]);
    }
    EXPECT_EQ(Window().MenuNamed("mnuPopUp"), nullptr);
}

TEST_F(WindowTest, ToolbarIsTheDesignersButtonsAndClicksReachTheDesigner) {
    const QList<QAction*> actions = Window().Toolbar().actions();
    const auto& buttons = ToolbarButtons();
    ASSERT_EQ(actions.size(), static_cast<qsizetype>(buttons.size()));
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        const QAction& action = *actions[static_cast<qsizetype>(i)];
        EXPECT_EQ(action.isSeparator(), buttons[i].separator);
        EXPECT_EQ(action.objectName().toStdString(), buttons[i].key);
        if (buttons[i].separator) continue;
        EXPECT_EQ(action.text().toStdString(), buttons[i].caption);
        EXPECT_EQ(action.toolTip().toStdString(), buttons[i].toolTip);
    }

    // "Mail Merge" adds an activity at the end of the flow and shows its sheet.
    QAction* mailMerge = actions[9];
    ASSERT_EQ(mailMerge->objectName(), "ActivityMailMerge");
    mailMerge->trigger();
    Settle();
    EXPECT_TRUE(Canvas(Strip::Activity).CellRect(3 * 7, 0).has_value());
    EXPECT_EQ(Core().PropListTag(), "10");
}

TEST_F(WindowTest, OpeningAMenuTakesTheStatesOfItsEnablingRule) {
    QMenu* process = Window().MenuNamed("mnuProcess");
    QAction* remove = Window().ActionNamed("mnuProcessDelete");
    ASSERT_NE(process, nullptr);
    ASSERT_NE(remove, nullptr);

    Core().ListClick(0);  // "<New Process>" can be neither deleted nor copied
    emit process->aboutToShow();
    EXPECT_FALSE(remove->isEnabled());
    EXPECT_FALSE(Window().ActionNamed("mnuProcessCopy")->isEnabled());

    Core().ListClick(2);
    emit process->aboutToShow();
    EXPECT_TRUE(remove->isEnabled());
}

// The pixel rectangle the layout gives a control, relative to the client area below the toolbar.
QRect Expected(const DesignerLayout& layout, const TwipRect& r) {
    const auto px = [](double v, double tpp) { return static_cast<int>(std::lround(v / tpp)); };
    const int left = px(r.Left, layout.twipsPerPixelX), top = px(r.Top - layout.lineTop, layout.twipsPerPixelY);
    return {left, top, px(r.Left + r.Width, layout.twipsPerPixelX) - left,
            px(r.Top + r.Height - layout.lineTop, layout.twipsPerPixelY) - top};
}

TEST_F(WindowTest, ControlsStandWhereTheLayoutPutsThemAfterEveryResize) {
    const auto check = [&] {
        const DesignerLayout& layout = Core().Layout();
        EXPECT_EQ(Window().ProcessList().geometry(), Expected(layout, layout.lstProcesses));
        EXPECT_EQ(Canvas(Strip::Activity).geometry(), Expected(layout, layout.wbcActivity));
        EXPECT_EQ(Window().Grid().geometry(), Expected(layout, layout.PropList));
        EXPECT_EQ(Window().PropInfo().geometry(), Expected(layout, layout.txtPropInfo));
    };
    check();
    const QWidget* client = Window().centralWidget();
    const int rightMargin = client->width() - Window().Grid().geometry().right() - 1;

    Window().resize(Window().size() + QSize(120, 80));
    Settle();
    check();
    // The grid keeps its right margin, the help box its bottom margin.
    EXPECT_EQ(client->width() - Window().Grid().geometry().right() - 1, rightMargin);
    EXPECT_EQ(Window().PropInfo().geometry().bottom(), Window().ProcessList().geometry().bottom());
}

}  // namespace
}  // namespace flowloom::designer::window::testing
