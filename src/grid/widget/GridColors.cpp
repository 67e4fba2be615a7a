#include "grid/widget/GridColors.h"

#include <QApplication>

#include <cmath>

namespace flowloom::grid {

namespace {

QPalette::ColorRole RoleOfSystemColor(std::uint32_t index, QPalette::ColorGroup& group) {
    group = QPalette::Active;
    switch (index) {
    case 2: return QPalette::Highlight;          // active caption
    case 9: return QPalette::HighlightedText;    // caption text
    case 5: return QPalette::Base;               // window
    case 8: return QPalette::Text;               // window text
    case 13: return QPalette::Highlight;
    case 14: return QPalette::HighlightedText;
    case 15: return QPalette::Button;            // button face
    case 16: return QPalette::Mid;               // button shadow
    case 17: group = QPalette::Disabled; return QPalette::Text;  // grey text
    case 18: return QPalette::ButtonText;
    case 20: return QPalette::Light;             // button highlight
    case 21: return QPalette::Shadow;            // dark shadow
    case 22: return QPalette::Midlight;          // light
    case 23: return QPalette::ToolTipText;
    case 24: return QPalette::ToolTipBase;
    case 7: return QPalette::WindowText;         // menu text
    default: return QPalette::Window;
    }
}

}  // namespace

QColor ResolveColor(OleColor color, const QPalette& palette) {
    if (IsSystemColor(color)) {
        QPalette::ColorGroup group;
        const QPalette::ColorRole role = RoleOfSystemColor(color & 0xFF, group);
        return palette.color(group, role);
    }
    return QColor(static_cast<int>(color & 0xFF), static_cast<int>((color >> 8) & 0xFF), static_cast<int>((color >> 16) & 0xFF));
}

QColor ResolveColor(OleColor color) { return ResolveColor(color, QApplication::palette()); }

QFont ToQFont(const FontValue& font) {
    QFont qfont(QString::fromStdString(font.name));
    if (font.size > 0) qfont.setPointSizeF(font.size);
    qfont.setBold(font.bold);
    qfont.setItalic(font.italic);
    qfont.setStrikeOut(font.strikethrough);
    qfont.setUnderline(font.underline);
    return qfont;
}

FontValue FromQFont(const QFont& qfont) {
    FontValue font;
    font.name = qfont.family().toStdString();
    font.size = qfont.pointSizeF() > 0 ? qfont.pointSizeF() : std::round(qfont.pixelSize() * 0.75);
    font.bold = qfont.bold();
    font.italic = qfont.italic();
    font.strikethrough = qfont.strikeOut();
    font.underline = qfont.underline();
    return font;
}

}  // namespace flowloom::grid
