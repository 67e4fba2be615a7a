#pragma once

#include "grid/GridTypes.h"

#include <QColor>
#include <QFont>
#include <QPalette>

namespace flowloom::grid {

// A stored colour as Qt paints it: system colours (top bit set) come from the
// palette role that matches the system colour index, others are 0x00BBGGRR.
QColor ResolveColor(OleColor color, const QPalette& palette);
QColor ResolveColor(OleColor color);

QFont ToQFont(const FontValue& font);
FontValue FromQFont(const QFont& font);

}  // namespace flowloom::grid
