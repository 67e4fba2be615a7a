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
    void RowsCleared() override { ++clears; }
    void ClearSelectionIf(const Property& row) override {
        if (&row == selected) selected = nullptr;
    }
    void CustomDisplayText(Property&, std::string& text) override { text = "<" + text + ">"; }

    const Property* selected = nullptr;
    int clears = 0;
};

std::int32_t ErrorNumber(auto call, std::string* source = nullptr) {
    try {
        call();
    } catch (const VbError& e) {
        if (source) *source = e.Source();
        return e.Number();
    }
    return 0;
}

std::string Names(const Properties& rows) {
    std::string names;
    for (std::int32_t i = 1; i <= rows.Count(); ++i) names += rows.Item(i).name() + (i < rows.Count() ? "," : "");
    return names;
}

TEST(PropertyRows, ValuesByTypeAndChanged) {
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
    truth.SetValue("maybe");
    EXPECT_EQ(truth.value(), "No");
    Property& limited = rows.Add("m", ExPropText, "abcdef");
    limited.SetMaxLength(3);
    EXPECT_EQ(limited.value(), "abc");
    limited.SetValue("wxyz");
    EXPECT_EQ(limited.value(), "wxy");

    Property& number = rows.Add("n", ExPropNumber, "1234.5");
    number.SetDataFormat("#,##0.00");
    EXPECT_EQ(number.value(), "1,234.50");
    EXPECT_FALSE(number.Changed());  // a new format is no new value
    number.SetValue("1,234.50");
    EXPECT_FALSE(number.Changed());
    number.SetValue("7");
    EXPECT_TRUE(number.Changed());
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

TEST(PropertyRows, DatesShowTheMonthAsTheFormatSaysAndBadDatesKeepTheOldValue) {
    NamedMonthOwner owner;
    Properties rows(&owner);
    Property& date = rows.Add("Due", ExPropDate, "2026-11-23");
    EXPECT_EQ(date.value(), "23 Nov. 2026");
    date.SetDataFormat("dddd, d mmmm yyyy");
    EXPECT_EQ(date.value(), "Monday, 23 November 2026");
    date.SetDataFormat("yyyy-mm-dd");
    date.SetValue("5 Dec 2026");  // English names are understood in any locale
    EXPECT_EQ(date.value(), "2026-12-05");
    for (const char* bad : {"31.02.2026", "not a date"}) {
        date.SetValue(bad);
        EXPECT_EQ(date.value(), "2026-12-05") << bad;
    }
}

TEST(PropertyRows, DatesAreReadInTheDayAndMonthOrderOfTheirFormat) {
    EXPECT_EQ(FormatWithDataFormat("11/23/26", "m/d/yyyy"), "11/23/2026");
    EXPECT_EQ(FormatWithDataFormat("1/2/2026", "m/d/yyyy"), "1/2/2026");
    EXPECT_EQ(FormatWithDataFormat("1/2/2026", "dd.mm.yyyy"), "01.02.2026");
    EXPECT_EQ(FormatWithDataFormat("23.11.2026", "m/d/yyyy"), "11/23/2026");  // only fits day first
    EXPECT_EQ(FormatWithDataFormat("2026-01-02", "d \"de\" mmmm \"de\" yyyy"), "2 de January de 2026");
    EXPECT_EQ(ErrorNumber([] { FormatWithDataFormat("13/13/2026", "m/d/yyyy"); }), 13);
}

TEST(PropertyRows, DisplayTextOfFontsMemosAndCustomData) {
    StripedOwner owner;
    Properties rows(&owner);
    Property& font = rows.Add("f", ExPropFont, "");
    font.SetValueFont(FontValue{"Arial", 10.4, true, false, true, false});
    EXPECT_EQ(font.value(), std::string("Arial\0" "10\0" "True\0" "False\0" "True\0" "False", 30));
    EXPECT_EQ(font.DisplayText(), "Arial");
    EXPECT_EQ(font.ValueFont(), (FontValue{"Arial", 10, true, false, true, false}));
    Property& memo = rows.Add("m", ExPropMemo, "long\r\ntext");
    EXPECT_EQ(memo.EditText(), "(Text)");
    memo.SetUseCustomData(true);
    EXPECT_EQ(memo.DisplayText(), "<long\r\ntext>");
}

TEST(PropertyRows, StripesFollowPositionsButOwnColoursStay) {
    StripedOwner owner;
    Properties rows(&owner);
    rows.Add("a", ExPropText, "");
    rows.Add("b", ExPropText, "");
    rows.Add("own", ExPropText, "", OleColor{0x00FF00});
    EXPECT_EQ(rows.Item(2).BackColor(), 0xEEEEEEu);
    rows.AddEx(1, "first", ExPropText, "");
    EXPECT_EQ(Names(rows), "first,a,b,own");
    EXPECT_EQ(rows.Item(2).BackColor(), 0xEEEEEEu);  // "a" moved to an even place
    EXPECT_EQ(rows.Item(3).BackColor(), 0xFFFFFFu);
    EXPECT_EQ(rows.Item(4).BackColor(), 0x00FF00u);
    EXPECT_EQ(rows.Item(4).Index(), 4);
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
    EXPECT_EQ(ErrorNumber([&] { rows.Item(1).SetBorderStyle(3); }), 380);
    std::string source;
    EXPECT_EQ(ErrorNumber([&] { rows.Item(1).SetItemType(14); }, &source), 380);
    EXPECT_EQ(source, "PropertyList.Properties.Item.ItemType");
    EXPECT_EQ(rows.Item(1).ItemType(), ExPropText);
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

// The names after sorting rows named so; names starting with "H" are headers.
std::string Sorted(std::initializer_list<const char*> names, bool descending = false) {
    Properties rows;
    for (const std::string name : names) rows.Add(name, name[0] == 'H' ? ExPropHeader : ExPropText, "");
    rows.SortItems(descending);
    EXPECT_EQ(rows.Item(rows.Count()).Index(), rows.Count());
    return Names(rows);
}

TEST(PropertyRows, SortingRunsBetweenHeaders) {
    EXPECT_EQ(Sorted({"Header", "delta", "Bravo", "alpha", "charlie"}), "Header,alpha,Bravo,charlie,delta");
    EXPECT_EQ(Sorted({"Header", "delta", "Bravo", "alpha", "charlie"}, true), "Header,delta,charlie,Bravo,alpha");
    EXPECT_EQ(Sorted({"z", "y", "H1", "b", "a"}), "y,z,H1,a,b");
    EXPECT_EQ(Sorted({"m", "H-second", "a"}), "a,H-second,m");  // a header in second place joins the sort
}

}  // namespace
}  // namespace flowloom::grid
