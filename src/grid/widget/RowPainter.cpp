#include "grid/widget/RowPainter.h"

#include "grid/Property.h"
#include "grid/widget/GridColors.h"

#include <QApplication>
#include <QFontMetrics>
#include <QPainter>
#include <QPalette>
#include <qdrawutil.h>

#include <cmath>

namespace flowloom::grid {

namespace {

constexpr int kBlankPictureWidth = 18;

Qt::PenStyle PenStyleOf(int lineStyle) {
    static constexpr Qt::PenStyle styles[] = {Qt::SolidLine, Qt::DashLine, Qt::DotLine, Qt::DashDotLine, Qt::DashDotDotLine, Qt::NoPen};
    return lineStyle >= 0 && lineStyle <= 5 ? styles[lineStyle] : Qt::SolidLine;
}

// Rectangle from edges, right and bottom exclusive.
QRect Edges(int left, int top, int right, int bottom) { return QRect(QPoint(left, top), QPoint(right - 1, bottom - 1)); }

void DrawExpandBox(QPainter& painter, int x, int y, int n, const QColor& color, bool plus) {
    painter.setPen(QPen(color, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(x, y, n, n);
    painter.drawLine(x + 2, y + n / 2, x + n - 2, y + n / 2);
    if (plus) painter.drawLine(x + n / 2, y + 2, x + n / 2, y + n - 2);
}

// Left edge behind the picture column of a style 1 control.
int DrawPicture(QPainter& painter, const Property& row, int left, int top, int bottom) {
    const Picture& picture = row.GetPicture();
    if (picture.data.empty()) return left + kBlankPictureWidth;
    const QImage image = PictureImage(picture, row.MaskColor());
    if (!image.isNull()) painter.drawImage(left + 2, top + (bottom - top - picture.heightPx) / 2, image);
    return left + 2 + picture.widthPx;
}

std::string ShownValue(Property& row) {
    std::string text = row.EditText();
    const std::string& mask = row.PasswordChar();
    if (mask.empty()) return text;
    std::string masked;
    for (int i = 0, n = QString::fromStdString(text).size(); i < n; ++i) masked += mask;
    return masked;
}

bool HasSwatch(int type) { return type == ExPropColor || type == ExPropHtmlColor; }

// Width of a colour row's swatch with the pixel before and behind it.
int SwatchWidth(int top, int bottom) { return 1 + (bottom - top - 2) + 1; }

constexpr int kValueTextIndent = 3;

// The value column from left to the full right edge; a value too long for it
// ends in an ellipsis.
void PaintValue(QPainter& painter, Property& row, int left, int top, int right, int bottom, const RowPaintSettings& settings) {
    const int type = row.ItemType();
    if (HasSwatch(type)) {
        const int side = bottom - top - 2;
        painter.setPen(QPen(Qt::black, 1));
        painter.setBrush(ResolveColor(row.SwatchColor()));
        painter.drawRect(left + 1, top + 1, side - 1, side - 1);
        left += SwatchWidth(top, bottom);
    }
    const OleColor fill = settings.backColorValue != settings.backColor ? settings.backColorValue : row.BackColor();
    painter.fillRect(Edges(left, top, right, bottom), ResolveColor(fill));
    if (type == ExPropHeader) return;
    left += kValueTextIndent;
    const QString text = painter.fontMetrics().elidedText(QString::fromStdString(ShownValue(row)), Qt::ElideRight, right - left);
    painter.setPen(ResolveColor(row.ForeColor()));
    painter.drawText(Edges(left, top, right, bottom), Qt::AlignLeft | Qt::AlignTop | Qt::TextSingleLine, text);
}

}  // namespace

QString HiddenValueText(Property& row, const QRect& rect, const RowPaintSettings& settings) {
    const int type = row.ItemType();
    if (type == ExPropHeader || type == ExPropOwnerDraw || !row.PasswordChar().empty()) return {};
    const int top = rect.top();
    const int bottom = rect.top() + rect.height() - 1;
    int left = settings.dividerX + 1 + kValueTextIndent;
    if (HasSwatch(type)) left += SwatchWidth(top, bottom);
    const QString text = QString::fromStdString(ShownValue(row));
    const int room = rect.left() + rect.width() - left;
    return QFontMetrics(ToQFont(row.Font())).horizontalAdvance(text) > room ? text : QString();
}

int IndentWidth(const QFont& font) { return static_cast<int>(std::lround(QFontMetricsF(font).horizontalAdvance('W'))); }

QImage PictureImage(const Picture& picture, OleColor maskColor) {
    QImage image;
    if (!image.loadFromData(reinterpret_cast<const uchar*>(picture.data.data()), static_cast<int>(picture.data.size()))) return {};
    if (image.hasAlphaChannel()) return image;
    image = image.convertToFormat(QImage::Format_ARGB32);
    const QRgb transparent = ResolveColor(maskColor).rgb();
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x)
            if (line[x] == transparent) line[x] = 0;
    }
    return image;
}

int RowHeight(const Property& row, int style) {
    if (row.Font().name.empty()) return 16;
    const int textHeight = QFontMetrics(ToQFont(row.Font())).height();
    const int pictureHeight = row.GetPicture().heightPx;
    return (textHeight > pictureHeight || style == 0) ? textHeight + 2 : pictureHeight + 2;
}

std::optional<OwnerDrawArea> PaintRow(QPainter& painter, Property& row, const QRect& rect, const RowPaintSettings& settings) {
    painter.save();
    painter.fillRect(rect, ResolveColor(settings.backColor));
    int left = rect.left();
    const int top = rect.top();
    int bottom = rect.top() + rect.height();
    const int fullRight = rect.left() + rect.width();
    const bool header = row.ItemType() == ExPropHeader;
    int indent = left;
    if (settings.expandableHeaders) {
        indent = left = IndentWidth(settings.controlFont);
        const int box = indent % 2 == 1 ? indent - 5 : indent - 6;
        if (header)
            DrawExpandBox(painter, 2, top + (rect.height() - (indent - 2)) / 2, box, ResolveColor(settings.foreColor), !row.Expanded());
    }
    painter.setFont(ToQFont(row.Font()));
    row.SetActive(settings.highlighted);

    std::optional<OwnerDrawArea> ownerDraw;
    if (row.ItemType() == ExPropOwnerDraw) {
        int pictureStart = left;
        if (settings.style == 1) {
            pictureStart = left + 2;
            left += row.GetPicture().data.empty() ? kBlankPictureWidth : 2 + row.GetPicture().widthPx;
        }
        ownerDraw = OwnerDrawArea{pictureStart, top, fullRight, bottom, left + 2, settings.dividerX};
    } else {
        const QColor captionText = ResolveColor(settings.highlighted ? row.HighlightText() : row.ForeColor());
        const QColor captionBack = ResolveColor(settings.highlighted ? row.HighlightColor() : row.BackColor());
        bottom -= 1;
        const int right = header ? fullRight : settings.dividerX;
        painter.fillRect(Edges(left, top, right, bottom), captionBack);
        if (row.BorderStyle() != 0)
            qDrawShadePanel(&painter, Edges(left + 1, top, header ? right + 1 : right, bottom), QApplication::palette(),
                            row.BorderStyle() == 1, 1);
        if (settings.style == 1) left = DrawPicture(painter, row, left, top, bottom);
        left += 2;
        painter.setPen(captionText);
        painter.drawText(Edges(left, top, right, bottom), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                         QString::fromStdString(row.Caption()));
        painter.setPen(QPen(ResolveColor(settings.lineColor), 1, PenStyleOf(settings.lineStyle)));
        painter.drawLine(indent, bottom, fullRight, bottom);
        painter.drawLine(right, top, right, bottom);
        if (settings.expandableHeaders) painter.drawLine(indent, top, indent, bottom);
        PaintValue(painter, row, right + 1, top, fullRight, bottom, settings);
        row.PaintedRight = right;
    }
    row.PaintedTop = top;
    painter.restore();
    return ownerDraw;
}

}  // namespace flowloom::grid
