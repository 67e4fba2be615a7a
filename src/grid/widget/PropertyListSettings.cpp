// Design-time settings through a property bag, and the locale's date formats.
#include "grid/widget/PropertyList.h"

#include "support/VbStrings.h"
#include "grid/widget/GridColors.h"
#include "grid/widget/LocaleFormats.h"

#include <QApplication>
#include <QLocale>

#include <functional>

namespace flowloom::grid {

namespace {

std::string BoolText(bool value) { return value ? "True" : "False"; }
bool ReadBoolText(const std::string& text) { return vb::ReadBool(text); }
std::string ColorText(OleColor color) { return std::to_string(color); }
OleColor ReadColor(const std::string& text) { return static_cast<OleColor>(std::stoul(text)); }

struct Setting {
    const char* key;
    std::string defaultValue;
    std::function<std::string(const PropertyList&)> read;
    std::function<void(PropertyList&, const std::string&)> write;  // empty: not restored
};

template <typename Value>
using Getter = Value (PropertyList::*)() const;
template <typename Value>
using Setter = void (PropertyList::*)(Value);

Setting BoolSetting(const char* key, bool fallback, Getter<bool> get, Setter<bool> set) {
    return {key, BoolText(fallback), [get](const PropertyList& grid) { return BoolText((grid.*get)()); },
            [set](PropertyList& grid, const std::string& text) { (grid.*set)(ReadBoolText(text)); }};
}

Setting ColorSetting(const char* key, OleColor fallback, Getter<OleColor> get, Setter<OleColor> set) {
    return {key, ColorText(fallback), [get](const PropertyList& grid) { return ColorText((grid.*get)()); },
            [set](PropertyList& grid, const std::string& text) { (grid.*set)(ReadColor(text)); }};
}

Setting IntSetting(const char* key, int fallback, Getter<int> get, Setter<int> set) {
    return {key, std::to_string(fallback), [get](const PropertyList& grid) { return std::to_string((grid.*get)()); },
            [set](PropertyList& grid, const std::string& text) { (grid.*set)(std::stoi(text)); }};
}

Setting TextSetting(const char* key, const char* fallback, Getter<std::string> get, Setter<std::string> set) {
    return {key, fallback, [get](const PropertyList& grid) { return (grid.*get)(); },
            [set](PropertyList& grid, const std::string& text) { (grid.*set)(text); }};
}

// In the order of writing.
const std::vector<Setting>& Settings() {
    static const std::vector<Setting> settings = {
        BoolSetting("AllowEdit", true, &PropertyList::AllowEdit, &PropertyList::SetAllowEdit),
        BoolSetting("AllowNullNumber", false, &PropertyList::AllowNullNumber, &PropertyList::SetAllowNullNumber),
        BoolSetting("AlwaysShowHeaders", true, &PropertyList::AlwaysShowHeaders, &PropertyList::SetAlwaysShowHeaders),
        ColorSetting("BackColor", kSystemWindow, &PropertyList::BackColor, &PropertyList::SetBackColor),
        ColorSetting("BackColorAlternate", kSystemWindow, &PropertyList::BackColorAlternate, &PropertyList::SetBackColorAlternate),
        ColorSetting("BackColorValue", kSystemWindow, &PropertyList::BackColorValue, &PropertyList::SetBackColorValue),
        IntSetting("DividerPlacement", 0, &PropertyList::DividerPlacement, &PropertyList::SetDividerPlacement),
        BoolSetting("ExpandableHeaders", false, &PropertyList::ExpandableHeaders, &PropertyList::SetExpandableHeaders),
        ColorSetting("ForeColor", kSystemWindowText, &PropertyList::ForeColor, &PropertyList::SetForeColor),
        BoolSetting("Enabled", true, &PropertyList::Enabled, &PropertyList::SetEnabled),
        Setting{"Font", FontValueText(FromQFont(QApplication::font())),
                [](const PropertyList& grid) { return FontValueText(grid.Font()); },
                [](PropertyList& grid, const std::string& text) { grid.SetFont(ParseFontValue(text)); }},
        IntSetting("BorderStyle", 0, &PropertyList::BorderStyle, &PropertyList::SetBorderStyle),
        ColorSetting("MaskColor", kDefaultMaskColor, &PropertyList::MaskColor, &PropertyList::SetMaskColor),
        IntSetting("MousePointer", 0, &PropertyList::MousePointer, &PropertyList::SetMousePointer),
        BoolSetting("OneClickActivate", false, &PropertyList::OneClickActivate, &PropertyList::SetOneClickActivate),
        IntSetting("Style", 0, &PropertyList::Style, &PropertyList::SetStyle),
        BoolSetting("HideSelection", true, &PropertyList::HideSelection, &PropertyList::SetHideSelection),
        ColorSetting("HighlightColor", kSystemHighlight, &PropertyList::HighlightColor, &PropertyList::SetHighlightColor),
        ColorSetting("HighlightText", kSystemHighlightText, &PropertyList::HighlightText, &PropertyList::SetHighlightText),
        BoolSetting("HoldDraw", false, &PropertyList::HoldDraw, &PropertyList::SetHoldDraw),
        Setting{"LongestItem", "0", [](const PropertyList& grid) { return std::to_string(grid.DividerLeft()); }, {}},
        TextSetting("TextFalse", "False", &PropertyList::TextFalse, &PropertyList::SetTextFalse),
        TextSetting("TextTrue", "True", &PropertyList::TextTrue, &PropertyList::SetTextTrue),
        IntSetting("TopIndex", 0, &PropertyList::TopIndex, &PropertyList::SetTopIndex),
        ColorSetting("LineColor", 0xC0C0C0, &PropertyList::LineColor, &PropertyList::SetLineColor),
        IntSetting("LineStyle", 0, &PropertyList::LineStyle, &PropertyList::SetLineStyle),
        BoolSetting("AutoTypeTranslation", true, &PropertyList::AutoTypeTranslation, &PropertyList::SetAutoTypeTranslation),
        BoolSetting("FilterFields", false, &PropertyList::FilterFields, &PropertyList::SetFilterFields),
        BoolSetting("ModalPicker", false, &PropertyList::ModalPicker, &PropertyList::SetModalPicker),
    };
    return settings;
}

}  // namespace

const std::string& PropertyList::SystemShortDatePattern() {
    static const std::string pattern = ShortDatePatternOf(QLocale::system());
    return pattern;
}

const DateNames& PropertyList::SystemDateNames() {
    static const DateNames names = DateNamesOf(QLocale::system());
    return names;
}

void PropertyList::WriteProperties(PropertyBag& bag) const {
    for (const Setting& setting : Settings()) {
        const std::string value = setting.read(*this);
        if (value != setting.defaultValue) bag.WriteProperty(setting.key, value);
    }
    if (sorted_) bag.WriteProperty("Sorted", "True");
}

void PropertyList::ReadProperties(const PropertyBag& bag) {
    for (const Setting& setting : Settings()) {
        if (!setting.write) continue;
        if (const auto value = bag.ReadProperty(setting.key)) setting.write(*this, *value);
    }
    if (const auto sorted = bag.ReadProperty("Sorted")) sorted_ = ReadBoolText(*sorted);
}

}  // namespace flowloom::grid
