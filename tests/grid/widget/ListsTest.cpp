// Drop lists, double-click cycling of lists and booleans, and the memo pop-up.
#include "GridTestSupport.h"

#include <gtest/gtest.h>

namespace flowloom::grid::testing {
namespace {

std::vector<std::string> Entries(int count) {
    std::vector<std::string> entries;
    for (int i = 1; i <= count; ++i) entries.push_back("Entry " + std::to_string(i));
    return entries;
}

TEST(GridDropList, FilledFromListItemsAndTakenByKeyboard) {
    GridHarness h;
    Property& row = h.grid().Properties().Add("Kind", ExPropCustomList, "Two");
    row.SetListItems(std::vector<std::string>{"One", "Two", "Three"});
    h.Select(0);
    h.Key(h.List(), Qt::Key_F4);
    ASSERT_TRUE(h.DropList()->isVisible());
    EXPECT_EQ(h.DropEntries()->count(), 3);
    EXPECT_EQ(h.DropEntries()->currentRow(), 1);
    EXPECT_EQ(h.sink.Count("NeedData"), 0u);

    h.Key(h.DropEntries(), Qt::Key_Down);
    h.Key(h.DropEntries(), Qt::Key_Return);
    EXPECT_FALSE(h.DropList()->isVisible());
    EXPECT_EQ(h.sink.log[h.sink.log.size() - 2], "DropdownPick Kind 2");
    EXPECT_EQ(h.sink.log.back(), "ValueChanged Kind=Three");
    EXPECT_EQ(row.value(), "Three");
    EXPECT_EQ(h.Edit()->text(), "Three");

    h.Key(h.List(), Qt::Key_Down, Qt::AltModifier);
    ASSERT_TRUE(h.DropList()->isVisible());
    h.Key(h.DropEntries(), Qt::Key_Escape);
    EXPECT_FALSE(h.DropList()->isVisible());
    EXPECT_EQ(row.value(), "Three");
}

TEST(GridDropList, FilledFromNeedDataAndTakenByMouse) {
    GridHarness h;
    Property& row = h.grid().Properties().Add("Field", ExPropCustomList, "");
    h.sink.listItems = Entries(12);
    h.Select(0);
    h.ClickButton();
    ASSERT_TRUE(h.DropList()->isVisible());
    EXPECT_TRUE(h.sink.Logged("NeedData Field"));
    EXPECT_EQ(h.DropEntries()->count(), 12);
    EXPECT_EQ(h.DropList()->width(), h.Edit()->width() + h.Button()->width());  // below the edit box and arrow
    EXPECT_EQ(h.DropList()->mapToGlobal(QPoint(0, 0)), h.Edit()->mapToGlobal(QPoint(0, h.Edit()->height())));

    const QRect third = h.DropEntries()->visualItemRect(h.DropEntries()->item(2));
    QTest::mouseClick(h.DropEntries()->viewport(), Qt::LeftButton, {}, third.center());
    EXPECT_FALSE(h.DropList()->isVisible());
    EXPECT_TRUE(h.sink.Logged("DropdownPick Field 2"));
    EXPECT_EQ(row.value(), "Entry 3");

    row.SetListSizeMode(1);
    row.SetListWidth(222);
    h.ClickButton();
    EXPECT_EQ(h.DropList()->width(), 222);
    h.Key(h.DropEntries(), Qt::Key_Escape);
}

TEST(GridPopups, ThePressThatClosesAPopUpOnItsArrowCommitsAndDoesNotReopenItButTheNextDoes) {
    GridHarness h;
    Property& flag = h.grid().Properties().Add("Flag", ExPropBoolean, "True");
    Property& memo = h.grid().Properties().Add("Body", ExPropMemo, "");
    h.Select(0);
    h.ClickButton();
    ASSERT_TRUE(h.DropList()->isVisible());
    EXPECT_EQ(h.DropEntries()->count(), 2);
    h.ClickButton();  // lands on the pop-up, which closes and hands the press on to the arrow
    EXPECT_FALSE(h.DropList()->isVisible());
    h.ClickButton();
    EXPECT_TRUE(h.DropList()->isVisible());
    h.Key(h.DropEntries(), Qt::Key_Escape);
    EXPECT_EQ(flag.value(), "True");

    h.Select(1);
    h.ClickButton();
    ASSERT_TRUE(h.Memo()->isVisible());
    QTest::keyClicks(h.Memo()->focusProxy(), "note");
    h.ClickButton();
    EXPECT_FALSE(h.Memo()->isVisible());
    EXPECT_EQ(memo.value(), "note\r\n");
    h.ClickButton();
    EXPECT_TRUE(h.Memo()->isVisible());
}

TEST(GridPopups, APressOutsideAPopUpClosesItAndReachesWhatWasClicked) {
    GridHarness h;
    Property& kind = h.grid().Properties().Add("Kind", ExPropCustomList, "One");
    kind.SetListItems(std::vector<std::string>{"One", "Two"});
    Property& memo = h.grid().Properties().Add("Body", ExPropMemo, "text");
    Property& other = h.grid().Properties().Add("Other", ExPropText, "");
    h.Select(0);
    h.ClickButton();
    ASSERT_TRUE(h.DropList()->isVisible());
    h.ClickCell(2, false);
    EXPECT_FALSE(h.DropList()->isVisible());
    EXPECT_TRUE(h.sink.Logged("SelChange Kind>Other"));
    EXPECT_EQ(h.grid().SelectedItem(), &other);
    EXPECT_TRUE(h.Edit()->isVisible());  // the release followed the press to the list
    EXPECT_EQ(kind.value(), "One");

    h.Select(1);
    h.ClickButton();
    ASSERT_TRUE(h.Memo()->isVisible());
    h.ClickCell(2, false);
    QApplication::processEvents();
    EXPECT_FALSE(h.Memo()->isVisible());
    EXPECT_EQ(memo.value(), "text\r\n");  // the memo commits
    EXPECT_EQ(h.grid().SelectedItem(), &other);
}

TEST(GridDropList, ShortListsEndWithTheirLastEntryAndLongOnesShowEightWholeEntries) {
    GridHarness h;
    Property& row = h.grid().Properties().Add("Kind", ExPropCustomList, "");
    h.Select(0);
    for (const int count : {1, 3, 8, 12}) {
        SCOPED_TRACE(count);
        row.SetListItems(Entries(count));
        h.ClickButton();
        ASSERT_TRUE(h.DropList()->isVisible());
        const QWidget* viewport = h.DropEntries()->viewport();
        const QRect last = h.DropEntries()->visualItemRect(h.DropEntries()->item(std::min(count, 8) - 1));
        EXPECT_TRUE(viewport->rect().contains(last)) << "the last entry shown is whole";
        EXPECT_EQ(last.bottom(), viewport->rect().bottom()) << "no empty space below it";
        h.Key(h.DropEntries(), Qt::Key_Escape);
    }
}

TEST(GridDropList, ArrowKeysInTheEditBoxRunThroughAClosedList) {
    GridHarness h;
    Property& row = h.grid().Properties().Add("Kind", ExPropCustomList, "One");
    row.SetListItems(std::vector<std::string>{"One", "Two", "Three"});
    h.grid().Properties().Add("Next", ExPropText, "");
    h.Select(0);
    h.Edit()->setFocus();
    h.Key(h.Edit(), Qt::Key_Down);
    h.Key(h.Edit(), Qt::Key_Down);
    EXPECT_FALSE(h.DropList()->isVisible());
    EXPECT_EQ(h.Edit()->text(), "Three");
    EXPECT_EQ(row.value(), "One");
    h.ClickCell(1, false);  // leaving the row commits what the box shows
    EXPECT_EQ(row.value(), "Three");
}

TEST(GridDoubleClick, TogglesABooleanAndCyclesAListUnlessCancelled) {
    GridHarness h;
    h.grid().SetTextTrue("Yes");
    h.grid().SetTextFalse("No");
    Property& flag = h.grid().Properties().Add("Flag", ExPropBoolean, "No");
    Property& kind = h.grid().Properties().Add("Kind", ExPropCustomList, "B");
    kind.SetListItems(std::vector<std::string>{"A", "B"});
    const auto doubleClick = [&h](int visibleIndex) { QTest::mouseDClick(h.List(), Qt::LeftButton, {}, h.Cell(visibleIndex, false)); };
    doubleClick(0);
    EXPECT_EQ(flag.value(), "Yes");
    EXPECT_TRUE(h.sink.Logged("DropdownPick Flag 0"));
    doubleClick(0);
    EXPECT_EQ(flag.value(), "No");
    EXPECT_TRUE(h.sink.Logged("DropdownPick Flag 1"));

    doubleClick(1);
    EXPECT_EQ(kind.value(), "A");  // "B" was last: the first comes next
    QTest::mouseDClick(h.Edit(), Qt::LeftButton, {}, QPoint(3, 3));
    EXPECT_EQ(kind.value(), "B");

    h.sink.cancel = true;
    doubleClick(0);
    EXPECT_EQ(flag.value(), "No");
    EXPECT_EQ(h.Edit()->text(), "No");
}

TEST(GridMemo, EnterCommitsWithALineEndAndEscDrops) {
    GridHarness h;
    Property& row = h.grid().Properties().Add("Body", ExPropMemo, "");
    h.Select(0);
    EXPECT_EQ(h.Edit()->text(), "(Text)");
    h.ClickButton();
    ASSERT_TRUE(h.Memo()->isVisible());
    QWidget* editor = h.Memo()->focusProxy();
    QTest::keyClicks(editor, "one");
    h.Key(editor, Qt::Key_Return, Qt::ShiftModifier);
    QTest::keyClicks(editor, "two");
    h.Key(editor, Qt::Key_Return);
    EXPECT_FALSE(h.Memo()->isVisible());
    EXPECT_EQ(row.value(), "one\r\ntwo\r\n");
    EXPECT_TRUE(h.sink.Logged("ValueChanged Body=one\r\ntwo\r\n"));

    h.ClickButton();
    QTest::keyClicks(editor, "dropped");
    h.Key(editor, Qt::Key_Escape);
    EXPECT_EQ(row.value(), "one\r\ntwo\r\n");

    h.Key(h.List(), Qt::Key_F4);
    ASSERT_TRUE(h.Memo()->isVisible());
    h.Key(editor, Qt::Key_Return);  // unchanged text that ends in a line end stays as it is
    EXPECT_EQ(row.value(), "one\r\ntwo\r\n");
}

TEST(GridDropList, AControlDestroyedWithItsListOpenLeavesNothingBehind) {
    auto h = std::make_unique<GridHarness>();
    Property& row = h->grid().Properties().Add("Kind", ExPropCustomList, "");
    row.SetListItems(std::vector<std::string>{"One"});
    h->Select(0);
    h->ClickButton();
    ASSERT_TRUE(h->DropList()->isVisible());
    h.reset();  // the sanitizers watch for use after free
}

}  // namespace
}  // namespace flowloom::grid::testing
