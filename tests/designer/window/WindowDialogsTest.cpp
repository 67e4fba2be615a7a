// The dialogs on the screen: opened from the grid and the menu, driven with
// the mouse and keys on their widgets, and what they leave in the model.
#include "WindowFixture.h"

#include "designer/window/DialogWindow.h"
#include "designer/window/QtToolLauncher.h"
#include "grid/widget/RowListView.h"
#include "support/AppPaths.h"
#include "support/ToolLauncher.h"
#include "grid/widget/PropertyList.h"
#include "model/FieldValue.h"
#include "model/Process.h"
#include "model/Processes.h"
#include "options/Options.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QToolButton>

#include <filesystem>

namespace flowloom::designer::window::testing {
namespace {

void Press(DialogWindow& dialog, const char* button) {
    auto* widget = qobject_cast<QPushButton*>(dialog.Control(button));
    ASSERT_NE(widget, nullptr) << button;
    QTest::mouseClick(widget, Qt::LeftButton);
}

void Type(DialogWindow& dialog, const char* combo, const char* text) {
    auto* widget = qobject_cast<QComboBox*>(dialog.Control(combo));
    ASSERT_NE(widget, nullptr) << combo;
    QTest::keyClicks(widget->lineEdit(), text);
}

TEST_F(WindowTest, FieldValuesAreAddedInTheirDialogAndReachTheProcess) {
    ASSERT_GE(ClickGridRow(Window().Grid(), "Field Values"), 0);
    Settle();
    bool shown = false, addEnabledBeforeValue = true;
    Window().SetDialogShown([&](DialogWindow& dialog) {
        shown = true;
        EXPECT_EQ(dialog.windowTitle(), "FieldValues");
        Type(dialog, "cboField", "Greeting");
        addEnabledBeforeValue = dialog.Control("cmdFieldValueAdd")->isEnabled();
        Type(dialog, "cboValue", "Dear customer");
        Press(dialog, "cmdFieldValueAdd");
        auto* list = qobject_cast<QListWidget*>(dialog.Control("lstFieldValues"));
        ASSERT_NE(list, nullptr);
        EXPECT_EQ(list->count(), 2);
        Press(dialog, "cmdOK");
    });
    auto* browse = Window().findChild<QToolButton*>("cmdBrowse");
    ASSERT_NE(browse, nullptr);
    ASSERT_TRUE(browse->isVisible());
    QTest::mouseClick(browse, Qt::LeftButton);
    Settle();
    ASSERT_TRUE(shown);
    EXPECT_FALSE(addEnabledBeforeValue);
    EXPECT_EQ(Core().OpenDialog(), nullptr);
    const auto values = Core().CurrentProcess()->FieldValues();
    ASSERT_EQ(values->Count(), 2);
    EXPECT_EQ(values->Item(2)->field, "Greeting");
    EXPECT_EQ(values->Item(2)->value, "Dear customer");
    EXPECT_TRUE(Core().HasUnsavedChanges());
}

TEST_F(WindowTest, TheOptionsDialogShowsItsGroupsAndEscapeLeavesTheOptionsAsTheyWere) {
    const std::string before = Core().CurrentProcesses()->XML();
    bool shown = false;
    Window().SetDialogShown([&](DialogWindow& dialog) {
        shown = true;
        EXPECT_EQ(dialog.windowTitle(), "Options");
        auto* groups = qobject_cast<QListWidget*>(dialog.Control("lstOptions"));
        ASSERT_NE(groups, nullptr);
        ASSERT_EQ(groups->count(), 4);
        EXPECT_EQ(groups->currentRow(), 0);
        auto* grid = dialog.findChild<grid::PropertyList*>();
        ASSERT_NE(grid, nullptr);
        EXPECT_TRUE(grid->isVisible());
        groups->setCurrentRow(2);  // Contact
        Settle();
        EXPECT_EQ(grid->Properties().Count(), 6);
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    QAction* options = Window().ActionNamed("mnuToolsOptions");
    ASSERT_NE(options, nullptr);
    options->trigger();
    Settle();
    ASSERT_TRUE(shown);
    EXPECT_EQ(Core().OpenDialog(), nullptr);
    EXPECT_EQ(Core().CurrentProcesses()->XML(), before);
}

}  // namespace
}  // namespace flowloom::designer::window::testing

namespace flowloom::designer::window::testing {
namespace {

// The real tool beside the program: the window is disabled while it runs,
// and its end gives the body back and enables the window again.
TEST_F(WindowTest, TheMailBodyToolDisablesTheWindowUntilItEnds) {
    const std::filesystem::path tool = MARKUPLOOM_PROGRAM;
    SetProgramFolder(tool.parent_path());
    ClickCell(Strip::Activity, 12, 0);  // the SendMail
    grid::PropertyList& grid = Window().Grid();
    const int top = ClickGridRow(grid, "Body");
    ASSERT_GE(top, 0);
    Settle();
    grid::Property* body = grid.SelectedItem();
    ASSERT_NE(body, nullptr);
    // F4 presses the row's own "..." button, as a click on it does.
    auto* list = grid.findChild<grid::RowListView*>();
    ASSERT_NE(list, nullptr);
    QTest::keyClick(list, Qt::Key_F4);
    EXPECT_FALSE(Core().Enabled());
    EXPECT_FALSE(Window().centralWidget()->isEnabled());

    auto* launcher = dynamic_cast<QtToolLauncher*>(&CurrentToolLauncher());
    ASSERT_NE(launcher, nullptr);
    ASSERT_TRUE(launcher->Close());
    for (int i = 0; i < 200 && !Core().Enabled(); ++i) QTest::qWait(50);
    SetProgramFolder({});
    EXPECT_TRUE(Core().Enabled());
    EXPECT_TRUE(Window().centralWidget()->isEnabled());
    // The tool wrote back the example's HTML template, now the body.
    EXPECT_EQ(body->value(), "(HTML)");
    EXPECT_TRUE(Core().HasUnsavedChanges());
}

}  // namespace
}  // namespace flowloom::designer::window::testing
