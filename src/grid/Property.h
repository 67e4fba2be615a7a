#pragma once

#include "app/TaggedValue.h"
#include "grid/GridTypes.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace flowloom::grid {

class PropertyOwner;
class Properties;
struct DateNames;

// One row of the grid: a caption and a typed value, always held as text.
// Rows are made only by Properties::Add/AddEx and point back at their
// control without owning it.
class Property {
public:
    explicit Property(PropertyOwner* owner) : owner_(owner) {}

    const std::string& DialogFilter() const noexcept { return dialogFilter_; }
    void SetDialogFilter(std::string value) { dialogFilter_ = std::move(value); }
    std::int32_t DialogFlags() const noexcept { return dialogFlags_; }
    void SetDialogFlags(std::int32_t value) { dialogFlags_ = value; }
    const std::string& DialogTitle() const noexcept { return dialogTitle_; }
    void SetDialogTitle(std::string value) { dialogTitle_ = std::move(value); }

    // Choices of a custom list; empty means: ask the owner through NeedData.
    const std::optional<std::vector<std::string>>& ListItems() const noexcept { return listItems_; }
    void SetListItems(std::optional<std::vector<std::string>> items) { listItems_ = std::move(items); }
    const TaggedValue& ListItemData() const noexcept { return listItemData_; }
    void SetListItemData(TaggedValue value) { listItemData_ = std::move(value); }

    std::int32_t Index() const noexcept { return index_; }

    OleColor MaskColor() const noexcept { return maskColor_; }
    void SetMaskColor(OleColor color);
    const Picture& GetPicture() const noexcept { return picture_; }
    void SetPicture(Picture picture);
    bool UseCustomData() const noexcept { return useCustomData_; }
    void SetUseCustomData(bool value) { useCustomData_ = value; }
    bool ReadOnly() const noexcept { return readOnly_; }
    void SetReadOnly(bool value);
    const TaggedValue& Tag() const noexcept { return tag_; }
    void SetTag(TaggedValue value) { tag_ = std::move(value); }
    std::int32_t ItemData() const noexcept { return itemData_; }
    void SetItemData(std::int32_t value) { itemData_ = value; }
    OleColor HighlightText() const noexcept { return highlightText_; }
    void SetHighlightText(OleColor color);
    OleColor HighlightColor() const noexcept { return highlightColor_; }
    void SetHighlightColor(OleColor color);
    const FontValue& Font() const noexcept { return font_; }
    void SetFont(FontValue font);
    OleColor ForeColor() const noexcept { return foreColor_; }
    void SetForeColor(OleColor color);
    OleColor BackColor() const noexcept { return backColor_; }
    void SetBackColor(OleColor color);

    int ItemType() const noexcept { return itemType_; }
    // Error 380 outside 0 to 13.
    void SetItemType(int type);

    const std::string& value() const noexcept { return value_; }
    void SetValue(const std::string& text);
    const std::string& name() const noexcept { return name_; }
    void SetName(std::string value) { name_ = std::move(value); }

    // 0 none, 1 sunken, 2 raised; error 380 otherwise.
    int BorderStyle() const noexcept { return borderStyle_; }
    void SetBorderStyle(int style);
    double SpinIncrement() const noexcept { return spinIncrement_; }
    void SetSpinIncrement(double step);
    bool LockedEdit() const noexcept { return lockedEdit_; }
    void SetLockedEdit(bool value) { lockedEdit_ = value; }
    const std::string& DataFormat() const noexcept { return dataFormat_; }
    // Re-formats the present value when both are set; Changed stays.
    void SetDataFormat(const std::string& format);
    bool Expanded() const noexcept { return expanded_; }
    void SetExpanded(bool value);

    // The value of a font row as a font, and back.
    FontValue ValueFont() const;
    void SetValueFont(const FontValue& font);

    const std::string& Caption() const noexcept { return caption_; }
    void SetCaption(std::string caption);
    bool Active() const noexcept { return active_; }
    void SetActive(bool value) { active_ = value; }  // while painting
    int ListSizeMode() const noexcept { return listSizeMode_; }
    void SetListSizeMode(int mode) { listSizeMode_ = mode; }
    std::int32_t ListWidth() const noexcept { return listWidth_; }
    void SetListWidth(std::int32_t width) { listWidth_ = width; }
    bool Changed() const noexcept { return changed_; }
    void SetChanged(bool value) { changed_ = value; }
    std::int32_t MaxLength() const noexcept { return maxLength_; }
    void SetMaxLength(std::int32_t length);
    const std::string& PasswordChar() const noexcept { return passwordChar_; }
    void SetPasswordChar(std::string value) { passwordChar_ = std::move(value); }

    // The text the row shows: a font row's name, possibly replaced by the owner.
    std::string DisplayText();
    // What the edit box shows: "(Text)" for a memo, else the display text.
    std::string EditText();
    // The colour of the swatch of a colour row, system colours unresolved.
    OleColor SwatchColor() const;

    // Where the row was painted last (for the widget).
    int PaintedTop = 0;
    int PaintedRight = 0;

    PropertyOwner* Owner() const noexcept { return owner_; }

private:
    friend class Properties;
    // Stores the position and redoes the stripes for it.
    void SetIndexAndColors(std::int32_t index);
    void RedrawOwner();
    bool IsSelected() const;
    const DateNames& Names() const;

    PropertyOwner* owner_;
    std::string dialogFilter_;
    std::int32_t dialogFlags_ = 0;
    std::string dialogTitle_;
    std::optional<std::vector<std::string>> listItems_;
    TaggedValue listItemData_;
    std::int32_t index_ = 0;
    OleColor maskColor_ = kDefaultMaskColor;
    Picture picture_;
    bool useCustomData_ = false;
    bool readOnly_ = false;
    TaggedValue tag_;
    std::int32_t itemData_ = 0;
    OleColor highlightText_ = kSystemHighlightText;
    OleColor highlightColor_ = kSystemHighlight;
    FontValue font_;
    OleColor foreColor_ = kSystemWindowText;
    OleColor backColor_ = kSystemWindow;
    int itemType_ = ExPropText;
    std::string value_;
    std::string name_;
    int borderStyle_ = 0;
    double spinIncrement_ = 0;
    bool lockedEdit_ = false;
    std::string dataFormat_;
    bool expanded_ = true;
    std::string caption_;
    bool active_ = false;
    int listSizeMode_ = 0;
    std::int32_t listWidth_ = 0;
    bool changed_ = false;
    std::int32_t maxLength_ = 0;
    std::string passwordChar_;
};

// The value of a font row: name, size, bold, italic, strikethrough and
// underline joined by NUL characters.
std::string FontValueText(const FontValue& font);
FontValue ParseFontValue(const std::string& text);

}  // namespace flowloom::grid
