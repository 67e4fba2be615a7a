// A person at the window: mouse on cells and the list, the context menu,
// the keyboard alone, and what the window looks like.
#include "WindowFixture.h"

#include "designer/window/ProcessListView.h"
#include "grid/widget/PropertyList.h"
#include "grid/widget/RowListView.h"
#include "model/Activities.h"
#include "model/Activity.h"
#include "model/Process.h"

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QToolButton>

#include <filesystem>

namespace flowloom::designer::window::testing {
namespace {

std::string Background(frmDesigner& core, Strip strip, int row, int cell) {
    return core.Canvas(strip).Table()->rows(row).cells(cell)->backgroundColor();
}

TEST_F(WindowTest, ClickingACellSelectsItsItemAndShowsItsSheet) {
    ClickCell(Strip::Activity, 3, 0);  // the icon of "Keep a copy of each reminder"
    EXPECT_EQ(Core().PropListTag(), "11");
    EXPECT_EQ(Background(Core(), Strip::Activity, 3, 0), "#4169e1");
    EXPECT_EQ(Background(Core(), Strip::Activity, 4, 0), "#4169e1");  // its caption with it
    EXPECT_EQ(Core().ActiveControl(), Control::Activity);
    EXPECT_EQ(QApplication::focusWidget(), &Canvas(Strip::Activity));
    EXPECT_FALSE(Core().ProcessListMarked());

    ClickCell(Strip::Datasource, 1, 1);  // the name of "Reminder log"
    EXPECT_EQ(Core().PropListTag(), "8");
    EXPECT_EQ(Background(Core(), Strip::Datasource, 0, 1), "#4169e1");
    EXPECT_EQ(Background(Core(), Strip::Activity, 3, 0), "#ffffff");

    // Back to the list: the process sheet, and the list holds the mark.
    const QRect entry = Window().ProcessList().visualItemRect(Window().ProcessList().item(2));
    QTest::mouseClick(Window().ProcessList().viewport(), Qt::LeftButton, {}, entry.center());
    Settle();
    EXPECT_EQ(Window().ProcessList().currentRow(), 2);
    EXPECT_EQ(Core().PropListTag(), "1");
    EXPECT_TRUE(Core().ProcessListMarked());
}

TEST_F(WindowTest, RightClickOnACellOpensTheContextMenuAndItsChoiceRuns) {
    std::vector<std::string> shown;
    Window().SetMenuRunner([&](QMenu& menu, QPoint) -> QAction* {
        QAction* copy = nullptr;
        for (QAction* action : menu.actions()) {
            if (action->isSeparator()) continue;
            shown.push_back(action->objectName().toStdString());
            if (action->objectName() == "mnuPopUpCopy") copy = action;
        }
        return copy;
    });
    ClickCell(Strip::Activity, 6, 0, Qt::RightButton);  // "Make a PDF for the mail"
    EXPECT_EQ(Core().PropListTag(), "13");
    EXPECT_EQ(shown, (std::vector<std::string>{"mnuPopUpForward", "mnuPopUpBack", "mnuPopUpCopy", "mnuPopUpPaste",
                                               "mnuPopUpDelete"}));
    EXPECT_EQ(Core().mClipboardContent().TypeName(), "Convert");
    EXPECT_FALSE(Core().PopupOpen());

    // Closed without a choice, the menu leaves everything as it was.
    Window().SetMenuRunner([](QMenu&, QPoint) -> QAction* { return nullptr; });
    ClickCell(Strip::Activity, 0, 0, Qt::RightButton);
    EXPECT_FALSE(Core().PopupOpen());
    EXPECT_EQ(Core().mClipboardContent().TypeName(), "Convert");
}

TEST_F(WindowTest, TheKeyboardAloneGoesRoundTheControlsAndThroughTheFlow) {
    ASSERT_EQ(QApplication::focusWidget(), &Window().ProcessList());
    ASSERT_EQ(Core().ActiveControl(), Control::List);

    Key(Qt::Key_Down);  // the list's own keys move its selection through the designer
    EXPECT_EQ(Core().lstProcesses().ListIndex(), 2);
    Key(Qt::Key_Up);
    EXPECT_EQ(Window().ProcessList().currentRow(), 1);

    Key(Qt::Key_Tab);
    EXPECT_EQ(Core().ActiveControl(), Control::Database);
    EXPECT_EQ(Core().PropListTag(), "6");  // tabbing into a strip selects its first item
    Key(Qt::Key_Tab);
    EXPECT_EQ(Core().ActiveControl(), Control::Datasource);
    Key(Qt::Key_Right);
    EXPECT_EQ(Background(Core(), Strip::Datasource, 1, 1), "#4169e1");
    Key(Qt::Key_Tab);
    EXPECT_EQ(Core().ActiveControl(), Control::Activity);
    EXPECT_EQ(Core().PropListTag(), "10");
    Key(Qt::Key_Down);
    Key(Qt::Key_Down);
    EXPECT_EQ(Core().PropListTag(), "13");  // the third activity converts
    Key(Qt::Key_Tab);
    EXPECT_EQ(Core().ActiveControl(), Control::Grid);
    Key(Qt::Key_Tab);
    EXPECT_EQ(Core().ActiveControl(), Control::Info);
    Key(Qt::Key_Tab);
    EXPECT_EQ(Core().ActiveControl(), Control::List);
    EXPECT_TRUE(Core().ProcessListMarked());
}

// Clicks the caption of the grid's row with that caption; its top in the grid, or -1.
TEST_F(WindowTest, TheBrowseButtonStandsAtTheRightEndOfTheRowsThatHaveIt) {
    grid::PropertyList& grid = Window().Grid();
    auto* browse = Window().findChild<QToolButton*>("cmdBrowse");
    ASSERT_NE(browse, nullptr);
    const int top = ClickGridRow(grid, "Field Values");
    ASSERT_GE(top, 0);
    Settle();
    ASSERT_TRUE(browse->isVisible());
    const QRect button = browse->geometry(), box = grid.geometry();
    EXPECT_GT(button.left(), box.center().x());
    EXPECT_LT(button.right(), box.right());
    EXPECT_NEAR(button.top(), box.top() + top, 4);

    ClickGridRow(grid, "Name");
    Settle();
    EXPECT_FALSE(browse->isVisible());
}

TEST_F(WindowTest, AnEditInTheGridReachesTheModelAndTheCanvas) {
    grid::PropertyList& grid = Window().Grid();
    ClickCell(Strip::Activity, 3, 0);  // "Keep a copy of each reminder"
    ASSERT_GE(ClickGridRow(grid, "Description"), 0);
    Settle();
    auto* edit = grid.findChild<QLineEdit*>();
    ASSERT_NE(edit, nullptr);
    ASSERT_TRUE(edit->isVisible());
    edit->setFocus();
    edit->selectAll();
    QTest::keyClicks(edit, "Archive copy");
    QTest::keyClick(edit, Qt::Key_Return);
    Settle();
    EXPECT_EQ(Core().CurrentProcess()->Activities()->Item(2)->Description(), "Archive copy");
    EXPECT_EQ(Core().Canvas(Strip::Activity).Table()->rows(4).cells(0)->innerHTML, "Archive copy");
    EXPECT_TRUE(Core().HasUnsavedChanges());
}

TEST_F(WindowTest, ScreenshotOfTheExample) {
    ClickCell(Strip::Activity, 3, 0);
    const QImage shot = Window().grab().toImage();
    ASSERT_FALSE(shot.isNull());
    const std::filesystem::path file = std::filesystem::path(FLOWLOOM_SCREENSHOT_DIR) / "designer-window.png";
    ASSERT_TRUE(shot.save(QString::fromStdString(file.string()), "PNG"));
    EXPECT_TRUE(std::filesystem::is_regular_file(file));

    // The selected item is painted in the selection's colour.
    const auto cell = Canvas(Strip::Activity).CellRect(3, 0);
    ASSERT_TRUE(cell.has_value());
    const QPoint corner = Canvas(Strip::Activity).viewport()->mapTo(&Window(), cell->topLeft() + QPoint(2, 2));
    EXPECT_EQ(shot.pixelColor(corner * shot.devicePixelRatio()), QColor("#4169e1"));
}

}  // namespace
}  // namespace flowloom::designer::window::testing
