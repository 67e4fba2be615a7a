#pragma once

#include "grid/GridTypes.h"

#include <QFont>
#include <QImage>
#include <QRect>
#include <QString>

#include <optional>

class QPainter;

namespace flowloom::grid {

class Property;

// The control's settings that painting a row reads.
struct RowPaintSettings {
    OleColor backColor = kSystemWindow;
    OleColor backColorValue = kSystemWindow;
    OleColor foreColor = kSystemWindowText;
    OleColor lineColor = 0xC0C0C0;
    int lineStyle = 0;
    int style = 0;
    bool expandableHeaders = false;
    int dividerX = 100;
    QFont controlFont;
    bool highlighted = false;
};

// Where an owner-drawn row may paint, for its DrawItem call.
struct OwnerDrawArea {
    int left = 0, top = 0, right = 0, bottom = 0, startText = 0, startValue = 0;
};

// Paints one row into rect (content coordinates); an owner-drawn row gets
// its background and expand box only, and the area it may paint is returned.
std::optional<OwnerDrawArea> PaintRow(QPainter& painter, Property& row, const QRect& rect, const RowPaintSettings& settings);

// The whole value of a row painted in rect when it is too long to show
// there; empty when it fits, and for rows whose value is masked or not text.
QString HiddenValueText(Property& row, const QRect& rect, const RowPaintSettings& settings);

// Height of a row: its font's text height plus 2, or its picture's height
// plus 2 when that is taller and pictures are shown (style 1).
int RowHeight(const Property& row, int style);

// Width of "W" in a font: the indent of rows under expandable headers.
int IndentWidth(const QFont& font);

// The image of a picture, with the mask colour transparent unless the image
// carries transparency of its own; null when the bytes don't decode.
QImage PictureImage(const Picture& picture, OleColor maskColor);

}  // namespace flowloom::grid
