#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace flowloom::grid {

// The kind of a row: what its right column shows and which editor it opens.
enum ItemType : int {
    ExPropText = 0,
    ExPropNumber = 1,
    ExPropBoolean = 2,
    ExPropBrowse = 3,
    ExPropColor = 4,
    ExPropCustomList = 5,
    ExPropOwnerDraw = 6,
    ExPropHeader = 7,
    ExPropDate = 8,
    ExPropFile = 9,
    ExPropFont = 10,
    ExPropMemo = 11,
    ExPropFolder = 12,
    ExPropHtmlColor = 13,
};

inline bool IsValidItemType(int type) { return type >= ExPropText && type <= ExPropHtmlColor; }

// A colour as the grid stores it: 0x00BBGGRR, or a system colour with the top
// bit set and the colour's index in the low byte (0x80000005 is the window
// background).
using OleColor = std::uint32_t;

inline constexpr OleColor kSystemWindow = 0x80000005;
inline constexpr OleColor kSystemWindowText = 0x80000008;
inline constexpr OleColor kSystemHighlight = 0x8000000D;
inline constexpr OleColor kSystemHighlightText = 0x8000000E;
inline constexpr OleColor kDefaultMaskColor = 0xC0C0C0;

inline bool IsSystemColor(OleColor color) { return (color & 0x80000000u) != 0; }

// A font as a small value.
struct FontValue {
    std::string name = "Sans Serif";
    double size = 8;
    bool bold = false;
    bool italic = false;
    bool strikethrough = false;
    bool underline = false;

    bool operator==(const FontValue&) const = default;
};

// A picture a row shows left of its caption: an image the widget knows how
// to paint (for instance PNG bytes), with its size in pixels.
struct Picture {
    std::string data;
    int widthPx = 0;
    int heightPx = 0;
};

}  // namespace flowloom::grid
