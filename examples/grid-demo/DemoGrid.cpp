#include "DemoGrid.h"

#include <QPainter>

namespace flowloom::grid::demo {

namespace {

std::string Quoted(const std::string& text) {
    std::string shown;
    for (char c : text) shown += c == '\0' ? std::string("|") : c == '\r' ? std::string("\\r") : c == '\n' ? std::string("\\n") : std::string(1, c);
    return "\"" + shown + "\"";
}

}  // namespace

void FillDemoGrid(PropertyList& grid) {
    grid.SetHoldDraw(true);
    grid.SetExpandableHeaders(true);
    grid.SetBackColorAlternate(0xF4ECE6);
    grid.SetTextTrue("Yes");
    grid.SetTextFalse("No");
    Properties& rows = grid.Properties();
    rows.Clear();

    rows.Add("Text and numbers", ExPropHeader, "");
    rows.Add("Name", ExPropText, "Letters to members");
    rows.Add("Copies", ExPropNumber, "2").SetSpinIncrement(1);
    rows.Add("Password", ExPropText, "secret").SetPasswordChar("*");
    rows.Add("Enabled", ExPropBoolean, "true");
    Property& fixed = rows.Add("Read only", ExPropText, "cannot change");
    fixed.SetReadOnly(true);
    fixed.SetBorderStyle(1);

    rows.Add("Choices", ExPropHeader, "");
    rows.Add("Output", ExPropCustomList, "Word").SetListItems(std::vector<std::string>{"Word", "Excel", "HTML", "Text"});
    rows.Add("Field (asks NeedData)", ExPropCustomList, "");
    rows.Add("Due", ExPropDate, "2026-11-23");
    rows.Add("Colour", ExPropColor, "255");
    rows.Add("Web colour", ExPropHtmlColor, "3366CC");

    rows.Add("Files and more", ExPropHeader, "");
    rows.Add("Template", ExPropFile, "/home/office/Documents/Letters/Templates/Members/Welcome letter to new members.dotx")
        .SetDialogFilter("Templates (*.dotx)|*.dotx|All Files (*.*)|*.*");
    rows.Add("Font", ExPropFont, FontValueText({"DejaVu Sans", 10, true, false, false, false}));
    rows.Add("Folder", ExPropFolder, "/tmp");
    rows.Add("Lookup", ExPropBrowse, "Customers");
    rows.Add("Body", ExPropMemo, "Dear member,\r\nwelcome.\r\n");
    rows.Add("Owner drawn", ExPropOwnerDraw, "");
    grid.SetHoldDraw(false);
    grid.SetListIndex(1);
}

void LoggingSink::KeyDownEdit(int& KeyCode, int Shift) { log_("KeyDownEdit " + std::to_string(KeyCode) + " " + std::to_string(Shift)); }
void LoggingSink::KeyPressEdit(int& KeyAscii) { log_("KeyPressEdit " + std::to_string(KeyAscii)); }
void LoggingSink::KeyUpEdit(int KeyCode, int Shift) { log_("KeyUpEdit " + std::to_string(KeyCode) + " " + std::to_string(Shift)); }

void LoggingSink::NeedData(Property& iProp, std::vector<std::string>& sListItems) {
    log_("NeedData " + iProp.name());
    sListItems = {"CustomerID", "CompanyName", "ContactName", "Address", "City", "Region",
                  "PostalCode", "Country", "Phone", "Fax", "Email"};
}

void LoggingSink::SelChange(Property* iPropOld, Property* iPropNew) { log_("SelChange " + iPropOld->name() + " -> " + iPropNew->name()); }

void LoggingSink::ValueChanged(Property& iProp, std::string& sNewValue, bool&) {
    log_("ValueChanged " + iProp.name() + " = " + Quoted(sNewValue));
}

void LoggingSink::QueryCustomData(Property& iProp, std::string&) { log_("QueryCustomData " + iProp.name()); }

void LoggingSink::DrawItem(Property& iProp, QPainter& hdc, int /*lLeft*/, int lTop, int lRight, int lBottom, int lStartText,
                           int lStartValue) {
    hdc.save();
    hdc.setPen(Qt::darkBlue);
    hdc.drawText(QRect(lStartText, lTop, lStartValue - lStartText, lBottom - lTop), Qt::AlignVCenter, QString::fromStdString(iProp.Caption()));
    QLinearGradient gradient(lStartValue, 0, lRight, 0);
    gradient.setColorAt(0, Qt::yellow);
    gradient.setColorAt(1, Qt::darkGreen);
    hdc.fillRect(QRect(lStartValue + 1, lTop + 2, lRight - lStartValue - 4, lBottom - lTop - 4), gradient);
    hdc.restore();
}

void LoggingSink::ShowEditControl(Property& iProp, int, int, int, int, bool& bUseIntrinsic) {
    log_("ShowEditControl " + iProp.name());
    bUseIntrinsic = false;
}

void LoggingSink::Expand(Property& iProp) { log_("Expand " + iProp.name()); }
void LoggingSink::Collapse(Property& iProp) { log_("Collapse " + iProp.name()); }
void LoggingSink::ODCommitPending(Property& iProp) { log_("ODCommitPending " + iProp.name()); }

void LoggingSink::Browse(Property& iProp, std::string& sFillWith) {
    log_("Browse " + iProp.name());
    sFillWith = sFillWith == "Customers" ? "Orders" : "Customers";
}

void LoggingSink::DropdownPick(Property& iProp, int lListIndex) { log_("DropdownPick " + iProp.name() + " " + std::to_string(lListIndex)); }
void LoggingSink::PreExpand(Property& iProp) { log_("PreExpand " + iProp.name()); }

}  // namespace flowloom::grid::demo
