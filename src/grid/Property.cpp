#include "grid/Property.h"

#include "support/TextCompare.h"
#include "support/VbError.h"
#include "support/VbStrings.h"
#include "grid/PropertyOwner.h"
#include "grid/ValueFormat.h"

#include <cmath>
#include <cstdio>
#include <initializer_list>

namespace flowloom::grid {

namespace {

// "&HBBGGRR&" in upper case: a numeric value in hexadecimal, the closing "&" added.
std::string ColorText(const std::string& text) {
    std::string upper = ToUpper(text);
    if (upper.rfind("&H", 0) != 0) {
        const double number = vb::ToNumber(upper).value_or(0);
        char buf[32];
        std::snprintf(buf, sizeof buf, "&H%lX", static_cast<unsigned long>(static_cast<std::int64_t>(number) & 0xFFFFFFFF));
        upper = buf;
    }
    if (upper.empty() || upper.back() != '&') upper += '&';
    return upper;
}

// A decimal colour number (0x00BBGGRR) as "RRGGBB"; anything else "000000".
std::string HtmlColorText(const std::string& text) {
    std::string result = text;
    if (auto number = vb::ToNumber(text)) {
        const auto color = static_cast<std::uint32_t>(static_cast<std::int64_t>(*number));
        char buf[16];
        std::snprintf(buf, sizeof buf, "%02X%02X%02X", color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF);
        result = buf;
    }
    return result.size() == 6 ? result : "000000";
}

constexpr char kFieldSeparator = '\0';

}  // namespace

std::string FontValueText(const FontValue& font) {
    auto truth = [](bool b) { return std::string(b ? "True" : "False"); };
    std::string text = font.name;
    for (const std::string& field : std::initializer_list<std::string>{vb::NumberText(std::round(font.size)), truth(font.bold), truth(font.italic),
                                     truth(font.strikethrough), truth(font.underline)}) {
        text += kFieldSeparator;
        text += field;
    }
    return text;
}

FontValue ParseFontValue(const std::string& text) {
    std::vector<std::string> fields;
    std::size_t start = 0;
    for (std::size_t pos; (pos = text.find(kFieldSeparator, start)) != std::string::npos; start = pos + 1)
        fields.push_back(text.substr(start, pos - start));
    fields.push_back(text.substr(start));
    FontValue font;
    font.name = fields[0];
    if (fields.size() > 1) font.size = vb::Val(fields[1]);
    bool* flags[] = {&font.bold, &font.italic, &font.strikethrough, &font.underline};
    for (std::size_t i = 0; i < 4 && i + 2 < fields.size(); ++i) *flags[i] = vb::ReadBool(fields[i + 2]);
    return font;
}

bool Property::IsSelected() const { return owner_ && owner_->IsSelected(*this); }

const DateNames& Property::Names() const { return owner_ ? owner_->LocaleDateNames() : EnglishDateNames(); }

void Property::RedrawOwner() {
    if (owner_) owner_->Redraw();
}

void Property::SetMaskColor(OleColor color) {
    maskColor_ = color;
    RedrawOwner();
}

void Property::SetPicture(Picture picture) {
    picture_ = std::move(picture);
    if (owner_) owner_->RowMetricsChanged(*this);
}

void Property::SetReadOnly(bool value) {
    readOnly_ = value;
    if (!IsSelected()) return;
    if (value) owner_->HideEditors();
    else owner_->ReshowEditors();
}

void Property::SetHighlightText(OleColor color) {
    highlightText_ = color;
    RedrawOwner();
}

void Property::SetHighlightColor(OleColor color) {
    highlightColor_ = color;
    RedrawOwner();
}

void Property::SetFont(FontValue font) {
    font_ = std::move(font);
    if (owner_) owner_->RowMetricsChanged(*this);
}

void Property::SetForeColor(OleColor color) {
    foreColor_ = color;
    RedrawOwner();
}

void Property::SetBackColor(OleColor color) {
    backColor_ = color;
    RedrawOwner();
}

void Property::SetItemType(int type) {
    if (!IsValidItemType(type))
        throw VbError(vberr::InvalidPropertyValue, StandardErrorText(vberr::InvalidPropertyValue),
                      "PropertyList.Properties.Item.ItemType");
    itemType_ = type;
    RedrawOwner();
    if (IsSelected()) owner_->ReshowEditors();
}

void Property::SetValue(const std::string& text) {
    try {
        std::string s = text;
        if (maxLength_ > 0 && static_cast<std::int32_t>(s.size()) > maxLength_) s.resize(static_cast<std::size_t>(maxLength_));
        if (s != value_ && index_ >= 1) changed_ = true;
        switch (itemType_) {
        case ExPropColor: value_ = ColorText(s); break;
        case ExPropHtmlColor: value_ = HtmlColorText(s); break;
        case ExPropBoolean: {
            const std::string textTrue = owner_ ? owner_->TextTrue() : "True";
            const bool truth = EqualsNoCase(s, textTrue) || EqualsNoCase(s, "true");
            value_ = truth ? textTrue : (owner_ ? owner_->TextFalse() : "False");
            break;
        }
        default: value_ = !dataFormat_.empty() && !s.empty() ? FormatWithDataFormat(s, dataFormat_, Names()) : s;
        }
    } catch (...) {
        return;  // a value the format cannot take leaves the old one
    }
    if (!IsSelected()) RedrawOwner();
    else owner_->SetEditText(EditText());
}

void Property::SetBorderStyle(int style) {
    if (style < 0 || style > 2)
        throw VbError(vberr::InvalidPropertyValue, StandardErrorText(vberr::InvalidPropertyValue),
                      "PropertyList.Properties.Item.BorderStyle");
    borderStyle_ = style;
    RedrawOwner();
}

void Property::SetSpinIncrement(double step) {
    spinIncrement_ = step;
    if (IsSelected()) owner_->ReshowEditors();
}

void Property::SetDataFormat(const std::string& format) {
    dataFormat_ = format;
    if (format.empty() || value_.empty()) return;
    try {
        value_ = FormatWithDataFormat(value_, format, Names());
    } catch (...) {
        // the value stays as it was
    }
}

void Property::SetExpanded(bool value) {
    expanded_ = value;
    if (owner_) {
        owner_->RebuildVisibleRows();
        owner_->Redraw();
    }
}

FontValue Property::ValueFont() const { return ParseFontValue(value_); }

void Property::SetValueFont(const FontValue& font) {
    value_ = FontValueText(font);
    if (!IsSelected()) RedrawOwner();
}

void Property::SetCaption(std::string caption) {
    caption_ = std::move(caption);
    if (owner_) {
        owner_->RowMetricsChanged(*this);
        owner_->Redraw();
    }
}

void Property::SetMaxLength(std::int32_t length) {
    maxLength_ = length;
    if (length > 0 && static_cast<std::int32_t>(value_.size()) > length) SetValue(value_.substr(0, static_cast<std::size_t>(length)));
}

std::string Property::DisplayText() {
    std::string text = value_;
    if (itemType_ == ExPropFont) text = text.substr(0, text.find(kFieldSeparator));
    if (useCustomData_ && owner_) owner_->CustomDisplayText(*this, text);
    return text;
}

std::string Property::EditText() { return itemType_ == ExPropMemo ? "(Text)" : DisplayText(); }

OleColor Property::SwatchColor() const {
    if (itemType_ == ExPropHtmlColor) {
        if (value_.size() != 6) return 0;
        const std::string reordered = value_.substr(4, 2) + value_.substr(2, 2) + value_.substr(0, 2);
        return static_cast<OleColor>(vb::ToNumber("&H" + reordered).value_or(0));
    }
    std::string text = value_;
    if (!text.empty() && text.back() == '&') text.pop_back();
    return static_cast<OleColor>(static_cast<std::int64_t>(vb::ToNumber(text).value_or(0)));
}

void Property::SetIndexAndColors(std::int32_t index) {
    index_ = index;
    if (!owner_) return;
    const OleColor base = owner_->BackColor();
    const OleColor alternate = owner_->BackColorAlternate();
    // A row with a colour of its own keeps it; striped rows follow their position.
    if (base != alternate && (backColor_ == base || backColor_ == alternate)) backColor_ = index % 2 == 1 ? base : alternate;
}

}  // namespace flowloom::grid
