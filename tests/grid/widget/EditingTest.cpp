// Editing in place: from a click to a value, Enter and Esc, numbers, typing,
// the commit rules and the buttons of file, font, folder and browse rows.
#include "GridTestSupport.h"

#include <QClipboard>

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

TEST(GridEditing, ClickEditEnterStoresTheValueUnlessCancelled) {
    GridHarness h;
    h.grid().Properties().Add("Name", ExPropText, "old");
    h.grid().Properties().Add("Other", ExPropText, "");
    h.ClickCell(0, true);
    ASSERT_TRUE(h.Edit()->isVisible());
    EXPECT_EQ(h.Edit()->text(), "old");

    h.Edit()->setFocus();
    h.Edit()->selectAll();
    QTest::keyClicks(h.Edit(), "new");
    h.Key(h.Edit(), Qt::Key_Return);
    EXPECT_TRUE(h.sink.Logged("ValueChanged Name=new"));
    Property& row = h.grid().Properties().Item(1);
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
}

TEST(GridEditing, EscapeRestoresAndLeavingTheRowCommits) {
    GridHarness h;
    h.grid().Properties().Add("A", ExPropText, "a");
    h.grid().Properties().Add("B", ExPropText, "b");
    h.ClickCell(0, true);
    h.Edit()->setFocus();
    h.Edit()->setText("typed");
    h.Key(h.Edit(), Qt::Key_Escape);
    EXPECT_EQ(h.Edit()->text(), "a");
    EXPECT_EQ(h.sink.Count("ValueChanged"), 0u);

    h.Edit()->setText("edited");
    h.ClickCell(1, false);
    EXPECT_TRUE(h.sink.Logged("ValueChanged A=edited"));
    EXPECT_TRUE(h.sink.Logged("SelChange A>B"));
    EXPECT_EQ(h.grid().Properties().Item(1).value(), "edited");
    EXPECT_EQ(h.grid().SelectedItem(), &h.grid().Properties().Item(2));
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
    h.Key(h.Edit(), Qt::Key_Delete);
    EXPECT_EQ(h.Edit()->text(), "23");

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
    EXPECT_EQ(fake.lastRequest.filter, "All Files (*.*)|*.*");
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

TEST(GridEditing, BrowseFillsTheValueAndDateAndColourArrowsDoNothing) {
    GridHarness h;
    Property& browse = h.grid().Properties().Add("Pick", ExPropBrowse, "first");
    Property& date = h.grid().Properties().Add("When", ExPropDate, "");
    Property& color = h.grid().Properties().Add("Colour", ExPropColor, "255");
    h.sink.onBrowse = [](Property&, std::string& fill) { fill += "+more"; };
    h.Select(0);
    h.ClickButton();
    EXPECT_EQ(browse.value(), "first+more");

    h.Select(1);
    h.ClickButton();
    h.Select(2);
    h.ClickButton();
    h.Key(h.List(), Qt::Key_F4);
    EXPECT_EQ(date.value(), "");
    EXPECT_EQ(color.value(), "&HFF&");
    EXPECT_FALSE(h.DropList()->isVisible());
    EXPECT_EQ(h.sink.Count("ValueChanged"), 0u);
}

TEST(GridEditing, ColourRowsPlaceTheEditBoxBehindTheSwatch) {
    GridHarness h;
    h.grid().Properties().Add("Text", ExPropText, "");
    h.grid().Properties().Add("Colour", ExPropHtmlColor, "FF0000");
    h.Select(0);
    const int textLeft = h.Edit()->x();
    EXPECT_FALSE(h.Button()->isVisible());
    h.Select(1);
    EXPECT_GT(h.Edit()->x(), textLeft);
    EXPECT_EQ(h.Button()->x(), h.Edit()->x() + h.Edit()->width());
    EXPECT_TRUE(h.Edit()->isReadOnly());  // locked by default
}

}  // namespace
}  // namespace flowloom::grid::testing
