// The control as an owner sees it: headers, events through sink or signals,
// handlers that rebuild the rows, settings with their errors, the divider.
#include "GridTestSupport.h"

#include <QHelpEvent>
#include <QToolTip>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace flowloom::grid::testing {
namespace {

std::size_t VisibleRows(GridHarness& h) { return ShownRows(h.grid()).size(); }

TEST(GridHeaders, CollapseAndExpandByClickAndNumpadKeys) {
    GridHarness h;
    h.grid().SetExpandableHeaders(true);
    Properties& rows = h.grid().Properties();
    Property& general = rows.Add("General", ExPropHeader, "");
    rows.Add("Name", ExPropText, "");
    rows.Add("Size", ExPropNumber, "1");
    rows.Add("More", ExPropHeader, "");
    rows.Add("Note", ExPropText, "");
    EXPECT_EQ(VisibleRows(h), 5u);

    QTest::mouseClick(h.List(), Qt::LeftButton, {}, QPoint(3, h.Cell(0, false).y()));
    EXPECT_FALSE(general.Expanded());
    EXPECT_EQ(VisibleRows(h), 3u);
    EXPECT_TRUE(h.sink.Logged("PreExpand General"));
    EXPECT_TRUE(h.sink.Logged("Collapse General"));

    h.Key(h.List(), Qt::Key_Minus, Qt::KeypadModifier);  // already collapsed
    EXPECT_EQ(h.sink.Count("Collapse"), 1u);
    h.Key(h.List(), Qt::Key_Plus, Qt::KeypadModifier);
    EXPECT_TRUE(h.sink.Logged("Expand General"));
    EXPECT_EQ(VisibleRows(h), 5u);
    h.Key(h.List(), Qt::Key_Return);  // toggles
    EXPECT_EQ(VisibleRows(h), 3u);
    h.Key(h.List(), Qt::Key_Return);
    EXPECT_EQ(VisibleRows(h), 5u);

    h.ClickCell(0, true);  // a click right of the box only selects
    EXPECT_TRUE(general.Expanded());
}

TEST(GridHeaders, RowsAddedBehindACollapsedHeaderStayHidden) {
    GridHarness h;
    h.grid().SetExpandableHeaders(true);
    Properties& rows = h.grid().Properties();
    Property& header = rows.Add("Header", ExPropHeader, "");
    Property& inside = rows.Add("Inside", ExPropText, "");
    h.Select(1);
    header.SetExpanded(false);
    EXPECT_EQ(h.grid().SelectedItem(), &inside);  // selected although hidden
    rows.Add("Later", ExPropText, "");
    EXPECT_EQ(VisibleRows(h), 1u);
    header.SetExpanded(true);
    EXPECT_EQ(VisibleRows(h), 3u);

    h.grid().SetExpandableHeaders(false);
    h.grid().SetAlwaysShowHeaders(false);
    EXPECT_EQ(VisibleRows(h), 2u);
}

TEST(GridScrolling, AGridFilledBeforeItShowsOpensAtTheTopWithTheSelectedRowInView) {
    for (const int selected : {1, 39}) {
        SCOPED_TRACE(selected);
        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        auto& grid = *new PropertyList(&window);
        layout->addWidget(&grid);
        grid.Properties().Add("Header", ExPropHeader, "");
        for (int i = 1; i < 40; ++i) grid.Properties().Add("Row " + std::to_string(i), ExPropText, "");
        grid.SetListIndex(selected);  // as a form fills its grid before it shows
        window.resize(300, 200);
        window.show();
        QApplication::processEvents();

        const std::vector<Property*> shown = ShownRows(grid);
        Property& row = grid.Properties().Item(selected + 1);
        ASSERT_FALSE(shown.empty());
        if (selected == 1) {
            EXPECT_EQ(shown.front()->name(), "Header");
        }
        EXPECT_NE(std::find(shown.begin(), shown.end(), &row), shown.end());
        EXPECT_EQ(grid.SelectedItem(), &row);
    }
}

TEST(GridScrolling, ATurnOfTheWheelIsOneScroll) {
    GridHarness h;
    for (int i = 0; i < 40; ++i) h.grid().Properties().Add("Row " + std::to_string(i), ExPropText, "");
    int scrolls = 0;
    QObject::connect(&h.grid(), &PropertyList::Scroll, [&] { ++scrolls; });
    const QPoint at = h.Cell(2, false);
    QWheelEvent wheel(at, h.List()->mapToGlobal(at), QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(h.List(), &wheel);
    EXPECT_EQ(scrolls, 1);
    EXPECT_GT(h.grid().TopIndex(), 0);
}

// The text of the tip shown for a rest of the mouse at a point of the
// widget; empty when none shows.
QString TipAt(QWidget* widget, QPoint at) {
    QHelpEvent rest(QEvent::ToolTip, at, widget->mapToGlobal(at));
    QApplication::sendEvent(widget, &rest);
    return QToolTip::isVisible() ? QToolTip::text() : QString();
}

TEST(GridToolTips, AValueTooLongToShowIsToldWholeInATip) {
    GridHarness h;
    const std::string path = "/home/someone/documents/letters/" + std::string(80, 'x') + "/template.dotx";
    const std::string query = "SELECT " + std::string(80, 'y') + " FROM Customers";
    h.grid().Properties().Add("Short", ExPropText, "fits");
    h.grid().Properties().Add("Secret", ExPropText, std::string(200, 's')).SetPasswordChar("*");
    h.grid().Properties().Add("Path", ExPropText, path);
    h.grid().Properties().Add("Query", ExPropText, query);
    h.Select(0);
    EXPECT_EQ(TipAt(h.List(), h.Cell(1, true)), "");  // masked values stay hidden
    EXPECT_EQ(TipAt(h.List(), h.Cell(2, false)), "");  // over the caption
    EXPECT_EQ(TipAt(h.List(), h.Cell(2, true)), QString::fromStdString(path));

    h.Select(3);  // the edit box covers the value now
    EXPECT_EQ(TipAt(h.Edit(), QPoint(5, 5)), QString::fromStdString(query));
    QToolTip::hideText();
}

TEST(GridEvents, TheSinkSilencesTheSignalsUntilCleared) {
    GridHarness h;
    Property& row = h.grid().Properties().Add("Flag", ExPropBoolean, "True");
    int signalled = 0;
    QObject::connect(&h.grid(), &PropertyList::ValueChanged, [&](Property*, std::string& value, bool& cancel) {
        ++signalled;
        cancel = value == "True";
    });
    int clicks = 0;
    QObject::connect(&h.grid(), &PropertyList::DblClick, [&] { ++clicks; });

    QTest::mouseDClick(h.List(), Qt::LeftButton, {}, h.Cell(0, false));
    EXPECT_EQ(signalled, 0);
    EXPECT_EQ(h.sink.Count("ValueChanged"), 1u);
    EXPECT_EQ(clicks, 1);  // always raised
    EXPECT_EQ(row.value(), "False");

    h.grid().SetCallbackSink(nullptr);
    QTest::mouseDClick(h.List(), Qt::LeftButton, {}, h.Cell(0, false));
    EXPECT_EQ(signalled, 1);
    EXPECT_EQ(h.sink.Count("ValueChanged"), 1u);
    EXPECT_EQ(row.value(), "False");  // the signal's handler cancelled
    EXPECT_EQ(clicks, 2);
}

TEST(GridEvents, HandlersMayRebuildTheRowsFromInsideValueChanged) {
    GridHarness h;
    Properties& rows = h.grid().Properties();
    auto fill = [&rows] {
        rows.Clear();
        rows.Add("Name", ExPropText, "rebuilt");
        Property& list = rows.Add("Kind", ExPropCustomList, "A");
        list.SetListItems(std::vector<std::string>{"A", "B"});
        rows.Add("Flag", ExPropBoolean, "True");
    };
    fill();
    h.sink.onValueChanged = [&](Property&, std::string&) { fill(); };

    h.ClickCell(0, true);
    h.Edit()->setFocus();
    h.Edit()->setText("typed");
    h.Key(h.Edit(), Qt::Key_Return);
    EXPECT_EQ(rows.Item(1).value(), "rebuilt");

    QTest::mouseDClick(h.List(), Qt::LeftButton, {}, h.Cell(2, false));
    EXPECT_EQ(rows.Item(3).value(), "True");

    h.Select(1);
    h.ClickButton();
    ASSERT_TRUE(h.DropList()->isVisible());
    h.Key(h.DropEntries(), Qt::Key_Down);
    h.Key(h.DropEntries(), Qt::Key_Return);
    EXPECT_EQ(rows.Item(2).value(), "A");

    h.sink.onValueChanged = [&](Property& row, std::string&) { rows.Remove(row.Index()); };
    h.Select(0);
    h.Edit()->setText("gone");
    h.ClickCell(1, false);
    EXPECT_EQ(rows.Count(), 2);
    EXPECT_EQ(rows.Item(1).name(), "Kind");
}

TEST(GridEvents, KeysAndClicksReachTheOwner) {
    GridHarness h;
    h.grid().Properties().Add("A", ExPropText, "");
    h.grid().Properties().Add("B", ExPropText, "");
    std::vector<int> keys;
    QObject::connect(&h.grid(), &PropertyList::KeyDown, [&](int& code, int) { keys.push_back(code); });
    int clicks = 0;
    QObject::connect(&h.grid(), &PropertyList::Click, [&] { ++clicks; });
    h.Select(0);
    EXPECT_EQ(clicks, 1);
    h.List()->setFocus();
    h.Key(h.List(), Qt::Key_Down);
    EXPECT_EQ(keys, std::vector<int>{40});
    EXPECT_EQ(h.grid().ListIndex(), 1);

    h.Edit()->setFocus();
    h.Key(h.Edit(), Qt::Key_A);
    EXPECT_TRUE(h.sink.Logged("KeyDownEdit 65"));
    EXPECT_TRUE(h.sink.Logged("KeyPressEdit 97"));
    h.Key(h.Edit(), Qt::Key_Up);  // back to the control, which moves up
    EXPECT_EQ(h.grid().ListIndex(), 0);
    EXPECT_EQ(h.grid().Properties().Item(2).value(), "a");
}

TEST(GridSettings, RangesRaiseInvalidPropertyValue) {
    GridHarness h;
    std::string source;
    EXPECT_EQ(ErrorNumber([&] { h.grid().SetLineStyle(6); }, &source), 380);
    EXPECT_EQ(source, "PropertyList.LineStyle");
    EXPECT_EQ(ErrorNumber([&] { h.grid().SetStyle(2); }, &source), 380);
    EXPECT_EQ(source, "");
    EXPECT_EQ(ErrorNumber([&] { h.grid().SetBorderStyle(-1); }), 380);
    EXPECT_EQ(ErrorNumber([&] { h.grid().SetLongestItem(5); }, &source), 380);
    EXPECT_EQ(source, "PropertyList.LongestItem");
}

TEST(GridSettings, DividerFollowsItsPlacementAndDragsWithinLimits) {
    GridHarness h;
    h.grid().Properties().Add("A fairly long caption", ExPropText, "");
    h.grid().SetDividerPlacement(0);
    h.grid().SetDividerLeft(100);
    const int longest = h.grid().LongestItem();
    EXPECT_GT(longest, 5);
    EXPECT_EQ(h.grid().DividerLeft(), longest);  // reading it moved the divider

    h.grid().SetDividerPlacement(3);
    h.grid().SetDividerLeft(120);
    const int y = h.Cell(0, false).y();
    QTest::mouseMove(h.List(), QPoint(118, y));
    QTest::mousePress(h.List(), Qt::LeftButton, {}, QPoint(118, y));
    QTest::mouseMove(h.List(), QPoint(80, y));
    EXPECT_EQ(h.grid().DividerLeft(), 80);
    for (const int x : {49, h.grid().width() - 49}) {
        QTest::mouseMove(h.List(), QPoint(x, y));
        EXPECT_EQ(h.grid().DividerLeft(), 80) << x;
    }
    QTest::mouseMove(h.List(), QPoint(h.grid().width() - 50, y));
    EXPECT_EQ(h.grid().DividerLeft(), h.grid().width() - 50);
    QTest::mouseRelease(h.List(), Qt::LeftButton, {}, QPoint(h.grid().width() - 50, y));
    QTest::mouseMove(h.List(), QPoint(60, y));
    EXPECT_EQ(h.grid().DividerLeft(), h.grid().width() - 50);
}

TEST(GridSettings, WrittenWithoutDefaultsAndReadBack) {
    GridHarness h;
    h.grid().SetAllowEdit(false);
    h.grid().SetLineStyle(2);
    h.grid().SetTextTrue("Yes");
    h.grid().SetBackColor(0x00FFFF);
    MemoryPropertyBag bag;
    h.grid().WriteProperties(bag);
    EXPECT_EQ(bag.Values().count("HideSelection"), 0u);
    EXPECT_EQ(bag.ReadProperty("AllowEdit"), "False");
    EXPECT_EQ(bag.ReadProperty("BackColorValue"), "65535");

    PropertyList other;
    other.ReadProperties(bag);
    EXPECT_FALSE(other.AllowEdit());
    EXPECT_EQ(other.LineStyle(), 2);
    EXPECT_EQ(other.TextTrue(), "Yes");
    EXPECT_EQ(other.BackColorValue(), 0x00FFFFu);
    EXPECT_TRUE(other.HideSelection());
}

TEST(GridSettings, AllowEditFalseAndReadOnlyRowsKeepEditorsHidden) {
    GridHarness h;
    Property& row = h.grid().Properties().Add("A", ExPropText, "");
    h.Select(0);
    EXPECT_TRUE(h.Edit()->isVisible());
    row.SetReadOnly(true);
    EXPECT_FALSE(h.Edit()->isVisible());
    row.SetReadOnly(false);
    h.grid().SetAllowEdit(false);
    EXPECT_FALSE(h.Edit()->isVisible());
    h.Select(0);
    EXPECT_FALSE(h.Edit()->isVisible());
}

}  // namespace
}  // namespace flowloom::grid::testing
