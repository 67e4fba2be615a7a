// Editing in place: from a click to a value, Enter and Esc, numbers, typing,
// the commit rules and the buttons of file, font, folder and browse rows.
#include "GridTestSupport.h"

#include <QClipboard>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace flowloom::grid::testing {
namespace {

class FakeDialogs : public GridDialogs {
public:
    std::optional<std::string> file, folder;
    std::optional<FontValue> font;
    FileDialogRequest lastRequest;

    std::optional<std::string> OpenFile(const FileDialogRequest& request) override {
        lastRequest = request;
        return file;
    }
    std::optional<FontValue> ChooseFont(const FontValue&, std::int32_t, const std::string&) override { return font; }
    std::optional<std::string> BrowseFolder(const std::string&, const std::string&) override { return folder; }
};

TEST(GridEditing, EnterStoresUnlessCancelledEscapeRestoresAndLeavingTheRowCommits) {
    GridHarness h;
    Property& row = h.grid().Properties().Add("Name", ExPropText, "old");
    Property& other = h.grid().Properties().Add("Other", ExPropText, "");
    h.ClickCell(0, true);
    ASSERT_TRUE(h.Edit()->isVisible());
    EXPECT_EQ(h.Edit()->text(), "old");

    h.Edit()->setFocus();
    h.Edit()->selectAll();
    QTest::keyClicks(h.Edit(), "new");
    h.Key(h.Edit(), Qt::Key_Return);
    EXPECT_TRUE(h.sink.Logged("ValueChanged Name=new"));
    EXPECT_EQ(row.value(), "new");
    EXPECT_TRUE(row.Changed());
    EXPECT_TRUE(h.Edit()->isVisible());
    EXPECT_EQ(h.Edit()->selectedText(), "new");

    h.sink.cancel = true;
    QTest::keyClicks(h.Edit(), "refused");
    h.Key(h.Edit(), Qt::Key_Return);
    EXPECT_TRUE(h.sink.Logged("ValueChanged Name=refused"));
    EXPECT_EQ(row.value(), "new");
    EXPECT_EQ(h.Edit()->text(), "new");

    h.sink.cancel = false;
    h.Edit()->setText("typed");
    h.Key(h.Edit(), Qt::Key_Escape);
    EXPECT_EQ(h.Edit()->text(), "new");
    EXPECT_EQ(h.sink.Count("ValueChanged"), 2u);

    h.Edit()->setText("edited");
    h.ClickCell(1, false);
    EXPECT_TRUE(h.sink.Logged("ValueChanged Name=edited"));
    EXPECT_TRUE(h.sink.Logged("SelChange Name>Other"));
    EXPECT_EQ(row.value(), "edited");
    EXPECT_EQ(h.grid().SelectedItem(), &other);
}

TEST(GridEditing, AHandlerThatTakesTheFocusAwayIsNotAskedAgainForTheSameEdit) {
    GridHarness h;
    Property& row = h.grid().Properties().Add("Name", ExPropText, "old");
    h.ClickCell(0, true);
    h.Edit()->setFocus();
    h.Edit()->selectAll();
    QTest::keyClicks(h.Edit(), "refused");
    // A message box of the handler has the keyboard focus while it is open.
    h.sink.cancel = true;
    h.sink.onValueChanged = [&](Property&, std::string&) {
        h.Edit()->clearFocus();
        QApplication::processEvents();
    };
    h.Key(h.Edit(), Qt::Key_Return);
    EXPECT_EQ(h.sink.Count("ValueChanged"), 1u);
    EXPECT_EQ(row.value(), "old");
    EXPECT_EQ(h.Edit()->text(), "old");
}

TEST(GridEditing, CommitPendingWithoutSelectionIsAnErrorAndReEntryIsBounded) {
    GridHarness h;
    std::string source;
    EXPECT_EQ(ErrorNumber([&] { h.grid().CommitPending(true); }, &source), static_cast<std::int32_t>(0x80040002u));
    EXPECT_EQ(source, "PropertyList.CommitPending");

    h.grid().Properties().Add("A", ExPropText, "a");
    h.ClickCell(0, true);
    int depth = 0;
    h.sink.onValueChanged = [&](Property&, std::string&) {
        ++depth;
        h.grid().CommitPending(true);  // a handler that commits again
    };
    h.Edit()->setText("b");
    h.grid().CommitPending(true);
    EXPECT_EQ(depth, 3);
    EXPECT_EQ(h.grid().Properties().Item(1).value(), "b");
}

TEST(GridEditing, NumberBoxTakesDigitsOnly) {
    GridHarness h;
    h.grid().Properties().Add("Count", ExPropNumber, "12");
    h.ClickCell(0, true);
    h.Edit()->setFocus();
    h.Edit()->end(false);
    QTest::keyClicks(h.Edit(), "3a-");
    EXPECT_EQ(h.Edit()->text(), "123");
    h.Key(h.Edit(), Qt::Key_Backspace);
    EXPECT_EQ(h.Edit()->text(), "123");
    h.Edit()->home(false);
    const std::size_t typed = h.sink.Count("KeyPressEdit");
    const QString del(QChar(127));  // X11 gives Delete this text, which must not be typed
    QTest::sendKeyEvent(QTest::Press, h.Edit(), Qt::Key_Delete, del, {});
    QTest::sendKeyEvent(QTest::Release, h.Edit(), Qt::Key_Delete, del, {});
    EXPECT_EQ(h.Edit()->text(), "23");
    EXPECT_TRUE(h.sink.Logged("KeyDownEdit 46"));
    EXPECT_EQ(h.sink.Count("KeyPressEdit"), typed);

    QApplication::clipboard()->setText("abc");
    h.Key(h.Edit(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(h.Edit()->text(), "23");
    QApplication::clipboard()->setText("4");
    h.Key(h.Edit(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(h.Edit()->text(), "423");

    h.Edit()->selectAll();
    h.Key(h.Edit(), Qt::Key_Delete);
    EXPECT_EQ(h.Edit()->text(), "0");  // a number row without AllowNullNumber is never empty
}

TEST(GridEditing, ADoubleClickOnATextOrNumberRowSelectsTheWholeTextSoThatTypingReplacesIt) {
    GridHarness h;
    Property& count = h.grid().Properties().Add("Count", ExPropNumber, "42");
    Property& note = h.grid().Properties().Add("Note", ExPropText, "Letters to members");

    h.DoubleClickCell(0, false);  // on the caption
    EXPECT_EQ(h.Edit()->selectedText(), "42");
    QTest::keyClicks(QApplication::focusWidget(), "7");
    h.Key(h.Edit(), Qt::Key_Return);
    EXPECT_EQ(count.value(), "7");

    // On the value: the first click shows the edit box, which takes the second.
    QTest::mouseDClick(h.List(), Qt::LeftButton, {}, h.Cell(1, true));
    EXPECT_EQ(h.grid().SelectedItem(), &note);
    EXPECT_EQ(h.Edit()->selectedText(), "Letters to members");
    QTest::keyClicks(h.Edit(), "Replies");
    h.Key(h.Edit(), Qt::Key_Return);
    EXPECT_EQ(note.value(), "Replies");

    // In a box that was already open, a double click still selects a word.
    h.Edit()->setText("two words");
    QTest::mouseDClick(h.Edit(), Qt::LeftButton, {}, QPoint(4, h.Edit()->height() / 2));
    EXPECT_EQ(h.Edit()->selectedText(), "two");
}

TEST(GridEditing, TheEditBoxTakesTheRowsColoursAtItsFirstShowing) {
    QWidget window;
    auto* grid = new PropertyList(&window);
    grid->SetBackColorAlternate(0xE6ECF4);
    grid->Properties().Add("Plain", ExPropText, "a");
    grid->Properties().Add("Striped", ExPropText, "b");
    grid->Properties().Add("Own", ExPropText, "c", 0x00FFFF, 0x0000FF);
    grid->SetListIndex(1);  // before the window shows, as a form fills its grid
    window.resize(300, 200);
    window.show();
    QApplication::setActiveWindow(&window);
    auto* edit = grid->findChild<QLineEdit*>("txtValue");
    ASSERT_TRUE(edit->isVisible());
    const auto background = [edit] {
        const QImage image = edit->grab().toImage();
        return image.pixelColor(image.width() - 3, image.height() / 2);
    };
    EXPECT_EQ(background(), QColor(0xF4, 0xEC, 0xE6));
    grid->SetListIndex(2);
    EXPECT_EQ(background(), QColor(255, 255, 0));
    EXPECT_EQ(edit->palette().color(QPalette::Text), QColor(255, 0, 0));
}

TEST(GridEditing, APasswordRowMasksItsEditBoxWithItsOwnCharacter) {
    GridHarness h;
    h.grid().Properties().Add("Secret", ExPropText, "abc").SetPasswordChar("*");
    h.grid().Properties().Add("Plain", ExPropText, "xy");
    h.Select(0);
    EXPECT_EQ(h.Edit()->displayText(), "***");
    h.Select(1);
    EXPECT_EQ(h.Edit()->displayText(), "xy");
}

TEST(GridEditing, TabAndShiftTabLeaveTheGridForTheWindowsNextAndPreviousControl) {
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* before = new QLineEdit(&window);
    auto* grid = new PropertyList(&window);
    auto* after = new QLineEdit(&window);
    layout->addWidget(before);
    layout->addWidget(grid);
    layout->addWidget(after);
    Property& name = grid->Properties().Add("Name", ExPropText, "old");
    window.resize(300, 300);
    window.show();
    QApplication::setActiveWindow(&window);

    QWidget* list = grid->findChild<QAbstractScrollArea*>("lst");
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), after);

    grid->SetListIndex(0);
    auto* edit = grid->findChild<QLineEdit*>("txtValue");
    edit->setFocus();
    edit->setText("typed");
    QTest::keyClick(edit, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(QApplication::focusWidget(), before);
    EXPECT_EQ(name.value(), "typed");  // leaving the grid commits the edit
}

TEST(GridEditing, SpinButtonsAndNumpadKeysStepTheNumber) {
    GridHarness h;
    Property& row = h.grid().Properties().Add("Copies", ExPropNumber, "5");
    row.SetSpinIncrement(2);
    h.Select(0);
    ASSERT_TRUE(h.Button()->isVisible());
    h.ClickButton(QPoint(3, 2));
    EXPECT_EQ(row.value(), "7");
    h.ClickButton(QPoint(3, h.Button()->height() - 2));
    EXPECT_EQ(row.value(), "5");
    h.Key(h.List(), Qt::Key_Plus, Qt::KeypadModifier);
    EXPECT_EQ(row.value(), "7");
    h.sink.cancel = true;
    h.Key(h.List(), Qt::Key_Minus, Qt::KeypadModifier);
    EXPECT_EQ(row.value(), "7");
    EXPECT_EQ(h.Edit()->text(), "7");
}

TEST(GridEditing, TypingOnTheListStartsAnEdit) {
    GridHarness h;
    h.grid().Properties().Add("Name", ExPropText, "old");
    h.Select(0);
    h.List()->setFocus();
    QTest::keyClicks(h.List(), "x");
    EXPECT_EQ(h.Edit()->text(), "x");
    EXPECT_TRUE(h.Edit()->hasFocus());
    QTest::keyClicks(h.Edit(), "y");
    h.Key(h.Edit(), Qt::Key_Return);
    EXPECT_EQ(h.grid().Properties().Item(1).value(), "xy");
}

TEST(GridEditing, FileFontAndFolderButtonsGoThroughTheDialogs) {
    GridHarness h;
    auto dialogs = std::make_unique<FakeDialogs>();
    FakeDialogs& fake = *dialogs;
    h.grid().SetDialogs(std::move(dialogs));
    Property& file = h.grid().Properties().Add("File", ExPropFile, "a.txt");
    Property& font = h.grid().Properties().Add("Font", ExPropFont, FontValueText({"Serif", 10, false, false, false, false}));
    Property& folder = h.grid().Properties().Add("Folder", ExPropFolder, "/tmp");

    h.Select(0);
    h.ClickButton();  // cancelled: nothing
    EXPECT_EQ(h.sink.Count("ValueChanged"), 0u);
    EXPECT_EQ(fake.lastRequest.fileName, "a.txt");
    fake.file = "/home/b.txt";
    h.ClickButton();
    EXPECT_EQ(file.value(), "/home/b.txt");
    EXPECT_EQ(h.Edit()->text(), "/home/b.txt");

    fake.font = FontValue{"Mono", 12, true, false, false, true};
    h.Select(1);
    EXPECT_EQ(h.Edit()->text(), "Serif");
    h.ClickButton();
    EXPECT_EQ(font.ValueFont(), (FontValue{"Mono", 12, true, false, false, true}));
    EXPECT_EQ(h.Edit()->text(), "Mono");

    fake.folder = "/var";
    h.sink.cancel = true;
    h.Select(2);
    h.ClickButton();
    EXPECT_TRUE(h.sink.Logged("ValueChanged Folder=/var"));
    EXPECT_EQ(folder.value(), "/tmp");
}

TEST(GridEditing, BrowseFillsTheValueAndAColourArrowDoesNothing) {
    GridHarness h;
    Property& browse = h.grid().Properties().Add("Pick", ExPropBrowse, "first");
    h.grid().Properties().Add("Colour", ExPropColor, "255");
    h.sink.onBrowse = [](Property&, std::string& fill) { fill += "+more"; };
    h.Select(0);
    h.ClickButton();
    EXPECT_EQ(browse.value(), "first+more");

    h.Select(1);
    h.ClickButton();
    h.Key(h.List(), Qt::Key_F4);
    EXPECT_FALSE(h.DropList()->isVisible());
    EXPECT_EQ(h.sink.Count("ValueChanged"), 0u);  // a browse row's new value comes through Browse alone
}

}  // namespace
}  // namespace flowloom::grid::testing
