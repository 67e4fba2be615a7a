#pragma once

#include "designer/HtmlDom.h"

#include <QColor>
#include <QFont>
#include <QRect>
#include <QTextDocument>

#include <memory>
#include <vector>

class QPainter;

namespace flowloom::designer::window {

// One cell of a canvas as it is drawn: its box in the page, its background
// and its markup laid out as a text document.
struct CanvasCellBox {
    int row = 0;
    int cell = 0;
    QRect rect;
    QColor background;
    std::unique_ptr<QTextDocument> content;  // null for an empty cell
    QPointF contentOrigin;
};

// The page of a canvas laid out as a browser lays out a simple table: body
// margins around it, column widths from the cells' widths and contents (or
// the whole width for a table of width "100%"), row heights from the rows'
// and cells' heights and contents, contents centred in their cells.
class CanvasLayout {
public:
    void Build(const HtmlPage& page, int viewportWidth);

    QSize ContentSize() const noexcept { return size_; }
    const std::vector<CanvasCellBox>& Cells() const noexcept { return cells_; }
    // The cell at a point of the page; nullptr over empty space.
    const CanvasCellBox* At(QPoint point) const;
    const CanvasCellBox* Find(int row, int cell) const;
    // Paints the cells that meet `exposed` (page coordinates) on white.
    void Paint(QPainter& painter, const QRect& exposed) const;

    // The body's font ("Tahoma", "8pt"), or the system's sans when the
    // family is not installed.
    static QFont BodyFont(const HtmlPage::Body& body);

private:
    std::vector<CanvasCellBox> cells_;
    QSize size_;
};

}  // namespace flowloom::designer::window
