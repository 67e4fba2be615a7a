// Rows of the grid: values by type, Changed, stripes, removal, sorting, errors.
#include "grid/Properties.h"
#include "grid/PropertyOwner.h"
#include "grid/ValueFormat.h"

#include "support/VbError.h"

#include <gtest/gtest.h>

namespace flowloom::grid {
namespace {

// A control with stripes that records what the rows ask of it.
class StripedOwner : public PropertyOwner {
public:
    OleColor BackColor() const override { return 0xFFFFFF; }
    OleColor BackColorAlternate() const override { return 0xEEEEEE; }
    std::string TextTrue() const override { return "Yes"; }
    std::string TextFalse() const override { return "No"; }
    bool IsSelected(const Property& row) const override { return &row == selected; }
    void Redraw() override { ++redraws; }
    void SetEditText(const std::string& text) override { editText = text; }
    void RebuildVisibleRows() override { ++rebuilds; }
    void RowsCleared() override { ++clears; }
    void ClearSelectionIf(const Property& row) override {
        if (&row == selected) selected = nullptr;
    }
    void CustomDisplayText(Property&, std::string& text) override { text = "<" + text + ">"; }

    const Property* selected = nullptr;
    int redraws = 0;
    int rebuilds = 0;
    int clears = 0;
    std::string editText;
};

std::int32_t ErrorNumber(auto call) {
    try {
        call();
    } catch (const VbError& e) {
        return e.Number();
    }
    return 0;
}

std::string Names(const Properties& rows) {
    std::string names;
    for (std::int32_t i = 1; i <= rows.Count(); ++i) names += rows.Item(i).name() + (i < rows.Count() ? "," : "");
    return names;
}

TEST(PropertyRows, ChangedFollowsLaterChangesOnly) {
    Properties rows;
    Property& row = rows.Add("Name", ExPropText, "first");
    EXPECT_FALSE(row.Changed());
    row.SetValue("first");
    EXPECT_FALSE(row.Changed());
    row.SetValue("second");
    EXPECT_TRUE(row.Changed());
}

TEST(PropertyRows, ValuesByType) {
    StripedOwner owner;
    Properties rows(&owner);
    Property& color = rows.Add("c", ExPropColor, "255");
    EXPECT_EQ(color.value(), "&HFF&");
    color.SetValue("&hff");
    EXPECT_EQ(color.value(), "&HFF&");
    EXPECT_EQ(color.SwatchColor(), 0xFFu);
    Property& html = rows.Add("h", ExPropHtmlColor, "255");
    EXPECT_EQ(html.value(), "FF0000");
    EXPECT_EQ(html.SwatchColor(), 0xFFu);
    html.SetValue("abc");
    EXPECT_EQ(html.value(), "000000");
    Property& truth = rows.Add("b", ExPropBoolean, "TRUE");
    EXPECT_EQ(truth.value(), "Yes");
    truth.SetValue("Yes");
    EXPECT_EQ(truth.value(), "Yes");
    truth.SetValue("maybe");
    EXPECT_EQ(truth.value(), "No");
    Property& limited = rows.Add("m", ExPropText, "abcdef");
    limited.SetMaxLength(3);
    EXPECT_EQ(limited.value(), "abc");
    limited.SetValue("wxyz");
    EXPECT_EQ(limited.value(), "wxy");
}

TEST(PropertyRows, DateFormatAndFailuresKeepTheOldValue) {
    Properties rows;
    Property& date = rows.Add("d", ExPropDate, "2026-11-23");
    EXPECT_EQ(date.DataFormat(), "dd.mm.yyyy");
    EXPECT_EQ(date.value(), "23.11.2026");
    date.SetValue("not a date");
    EXPECT_EQ(date.value(), "23.11.2026");
    date.SetDataFormat("yyyy-mm-dd");
    EXPECT_EQ(date.value(), "2026-11-23");
    Property& number = rows.Add("n", ExPropNumber, "1234.5");
    number.SetDataFormat("#,##0.00");
    EXPECT_EQ(number.value(), "1,234.50");
    EXPECT_FALSE(number.Changed());
}

// A control whose locale writes dates with the month's name.
class NamedMonthOwner : public PropertyOwner {
public:
    NamedMonthOwner() {
        names_ = EnglishDateNames();
        names_.shortMonths[10] = "Nov.";
        names_.longMonths[10] = "November";
    }
    std::string ShortDatePattern() const override { return "d mmm yyyy"; }
    const DateNames& LocaleDateNames() const override { return names_; }

private:
    DateNames names_;
};

TEST(PropertyRows, DatesShowTheMonthAsTheFormatSaysAndAreReadBackByName) {
    NamedMonthOwner owner;
    Properties rows(&owner);
    Property& date = rows.Add("Due", ExPropDate, "2026-11-23");
    EXPECT_EQ(date.value(), "23 Nov. 2026");
    date.SetDataFormat("dddd, d mmmm yyyy");
    EXPECT_EQ(date.value(), "Monday, 23 November 2026");
    date.SetDataFormat("yyyy-mm-dd");
    EXPECT_EQ(date.value(), "2026-11-23");
    date.SetValue("5 Dec 2026");  // English names are understood in any locale
    EXPECT_EQ(date.value(), "2026-12-05");
    date.SetValue("31.02.2026");
    EXPECT_EQ(date.value(), "2026-12-05");
}

TEST(PropertyRows, DatesAreReadInTheDayAndMonthOrderOfTheirFormat) {
    EXPECT_EQ(FormatWithDataFormat("11/23/26", "m/d/yyyy"), "11/23/2026");
    EXPECT_EQ(FormatWithDataFormat("1/2/2026", "m/d/yyyy"), "1/2/2026");
    EXPECT_EQ(FormatWithDataFormat("1/2/2026", "dd.mm.yyyy"), "01.02.2026");
    EXPECT_EQ(FormatWithDataFormat("23.11.2026", "m/d/yyyy"), "11/23/2026");  // only fits day first
    EXPECT_EQ(FormatWithDataFormat("2026-01-02", "d \"de\" mmmm \"de\" yyyy"), "2 de January de 2026");
    EXPECT_EQ(ErrorNumber([] { FormatWithDataFormat("13/13/2026", "m/d/yyyy"); }), 13);
}

TEST(PropertyRows, TypeDefaultsOfNewRows) {
    Properties rows;
    Property& file = rows.Add("f", ExPropFile, "");
    EXPECT_EQ(file.DialogFlags(), 0x80004);
    EXPECT_EQ(file.DialogFilter(), "All Files (*.*)|*.*");
    EXPECT_EQ(rows.Add("font", ExPropFont, "").DialogFlags(), 65);
    EXPECT_FALSE(rows.Add("t", ExPropText, "").LockedEdit());
    EXPECT_FALSE(rows.Add("n", ExPropNumber, "").LockedEdit());
    EXPECT_TRUE(rows.Add("l", ExPropCustomList, "").LockedEdit());
}

TEST(PropertyRows, DisplayTextOfFontsMemosAndCustomData) {
    StripedOwner owner;
    Properties rows(&owner);
    Property& font = rows.Add("f", ExPropFont, "");
    font.SetValueFont(FontValue{"Arial", 10.4, true, false, true, false});
    EXPECT_EQ(font.value(), std::string("Arial\0" "10\0" "True\0" "False\0" "True\0" "False", 30));
    EXPECT_EQ(font.DisplayText(), "Arial");
    EXPECT_EQ(font.ValueFont(), (FontValue{"Arial", 10, true, false, true, false}));
    EXPECT_EQ(ParseFontValue("Courier").name, "Courier");
    Property& memo = rows.Add("m", ExPropMemo, "long\r\ntext");
    EXPECT_EQ(memo.EditText(), "(Text)");
    memo.SetUseCustomData(true);
    EXPECT_EQ(memo.DisplayText(), "<long\r\ntext>");
}

TEST(PropertyRows, SelectedRowUpdatesTheEditBoxInsteadOfRedrawing) {
    StripedOwner owner;
    Properties rows(&owner);
    Property& row = rows.Add("a", ExPropText, "");
    owner.selected = &row;
    const int redraws = owner.redraws;
    row.SetValue("typed");
    EXPECT_EQ(owner.editText, "typed");
    EXPECT_EQ(owner.redraws, redraws);
}

TEST(PropertyRows, StripesFollowPositionsButOwnColoursStay) {
    StripedOwner owner;
    Properties rows(&owner);
    rows.Add("a", ExPropText, "");
    rows.Add("b", ExPropText, "");
    rows.Add("own", ExPropText, "", OleColor{0x00FF00});
    EXPECT_EQ(rows.Item(1).BackColor(), 0xFFFFFFu);
    EXPECT_EQ(rows.Item(2).BackColor(), 0xEEEEEEu);
    rows.AddEx(1, "first", ExPropText, "");
    EXPECT_EQ(Names(rows), "first,a,b,own");
    EXPECT_EQ(rows.Item(2).BackColor(), 0xEEEEEEu);  // "a" moved to an even place
    EXPECT_EQ(rows.Item(3).BackColor(), 0xFFFFFFu);
    EXPECT_EQ(rows.Item(4).BackColor(), 0x00FF00u);
    EXPECT_EQ(rows.Item(4).Index(), 4);
    EXPECT_GE(owner.rebuilds, 1);
    rows.Remove(1);
    EXPECT_EQ(rows.Item(1).BackColor(), 0xFFFFFFu);
    EXPECT_EQ(rows.Item(1).Index(), 1);
}

TEST(PropertyRows, LookupsAndErrors) {
    Properties rows;
    rows.Add("Alpha", ExPropText, "");
    EXPECT_EQ(rows.Item("ALPHA"), &rows.Item(1));
    EXPECT_EQ(rows.Item("none"), nullptr);
    EXPECT_EQ(ErrorNumber([&] { rows.Item(0); }), 9);
    EXPECT_EQ(ErrorNumber([&] { rows.Item(2); }), 9);
    EXPECT_EQ(ErrorNumber([&] { rows.SetCount(5); }), 380);
    EXPECT_EQ(ErrorNumber([&] { rows.Item(1).SetItemType(14); }), 380);
    EXPECT_EQ(rows.Item(1).ItemType(), ExPropText);
    EXPECT_EQ(ErrorNumber([&] { rows.Item(1).SetBorderStyle(3); }), 380);
    try {
        rows.Item(1).SetItemType(-1);
    } catch (const VbError& e) {
        EXPECT_EQ(e.Source(), "PropertyList.Properties.Item.ItemType");
    }
}

TEST(PropertyRows, RemovingTheOnlyRowClearsAndOthersAreErrors) {
    StripedOwner owner;
    Properties rows(&owner);
    EXPECT_EQ(ErrorNumber([&] { rows.Remove(1); }), 9);
    rows.Add("a", ExPropText, "");
    rows.Remove(1);
    EXPECT_EQ(rows.Count(), 0);
    EXPECT_EQ(owner.clears, 1);
    rows.Add("a", ExPropText, "");
    rows.Add("b", ExPropText, "");
    owner.selected = &rows.Item(2);
    EXPECT_EQ(ErrorNumber([&] { rows.Remove(3); }), 9);
    rows.Remove("B");
    EXPECT_EQ(owner.selected, nullptr);
    EXPECT_EQ(Names(rows), "a");
}

TEST(PropertyRows, SortingKeepsAFirstHeaderFirst) {
    Properties rows;
    rows.Add("Header", ExPropHeader, "");
    for (const char* name : {"delta", "Bravo", "alpha", "charlie"}) rows.Add(name, ExPropText, "");
    rows.SortItems(false);
    EXPECT_EQ(Names(rows), "Header,alpha,Bravo,charlie,delta");
    rows.SortItems(true);
    EXPECT_EQ(Names(rows), "Header,delta,charlie,Bravo,alpha");
    EXPECT_EQ(rows.Item(5).Index(), 5);
}

TEST(PropertyRows, SortingRunsBetweenHeadersAndASecondPlaceHeaderJoinsIn) {
    Properties rows;
    for (const char* name : {"z", "y", "H1", "b", "a"}) rows.Add(name, std::string(name) == "H1" ? ExPropHeader : ExPropText, "");
    rows.SortItems(false);
    EXPECT_EQ(Names(rows), "y,z,H1,a,b");

    Properties second;
    for (const char* name : {"m", "B-header", "a"}) second.Add(name, std::string(name) == "B-header" ? ExPropHeader : ExPropText, "");
    second.SortItems(false);
    EXPECT_EQ(Names(second), "a,B-header,m");
}

}  // namespace
}  // namespace flowloom::grid
