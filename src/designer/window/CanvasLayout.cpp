#include "designer/window/CanvasLayout.h"

#include <QAbstractTextDocumentLayout>
#include <QFontDatabase>
#include <QPainter>
#include <QTextOption>

#include <algorithm>
#include <cmath>
#include <optional>

namespace flowloom::designer::window {

namespace {

constexpr int kCellPadding = 1;  // a table cell's default padding

// "60" or "60px" as pixels; nullopt for "", "100%" and other lengths.
std::optional<int> Pixels(const std::string& length) {
    QString text = QString::fromStdString(length).trimmed();
    if (text.endsWith(QLatin1String("px"))) text.chop(2);
    bool ok = false;
    const int value = text.toInt(&ok);
    return ok && value >= 0 ? std::optional<int>(value) : std::nullopt;
}

bool IsPercent(const std::string& length) { return QString::fromStdString(length).trimmed().endsWith(QLatin1Char('%')); }

std::unique_ptr<QTextDocument> MakeContent(const HtmlCell& cell, const HtmlRow& row, const QFont& font) {
    if (cell.innerHTML.empty()) return nullptr;
    auto content = std::make_unique<QTextDocument>();
    content->setDefaultFont(font);
    content->setDocumentMargin(0);
    const bool centred = QString::fromStdString(row.Align).compare(QLatin1String("center"), Qt::CaseInsensitive) == 0;
    QTextOption option(centred ? Qt::AlignHCenter : Qt::AlignLeft);
    option.setWrapMode(cell.noWrap ? QTextOption::NoWrap : QTextOption::WrapAtWordBoundaryOrAnywhere);
    content->setDefaultTextOption(option);
    content->setHtml(QString::fromStdString(cell.innerHTML));
    content->setTextWidth(-1);  // natural width first
    return content;
}

QSize MeasuredSize(const QTextDocument* content) {
    if (!content) return {0, 0};
    const QSizeF size = content->documentLayout()->documentSize();
    return {static_cast<int>(std::ceil(size.width())), static_cast<int>(std::ceil(size.height()))};
}

QColor Background(const HtmlCell& cell) {
    const QColor colour(QString::fromStdString(cell.backgroundColor()));
    return colour.isValid() ? colour : QColor(Qt::white);
}

}  // namespace

QFont CanvasLayout::BodyFont(const HtmlPage::Body& body) {
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    QStringList families;
    if (!body.fontFamily.empty()) families << QString::fromStdString(body.fontFamily);
    families << font.family() << QStringLiteral("sans-serif");
    font.setFamilies(families);
    QString size = QString::fromStdString(body.fontSize).trimmed();
    bool ok = false;
    if (size.endsWith(QLatin1String("pt"))) {
        size.chop(2);
        const double points = size.toDouble(&ok);
        if (ok && points > 0) font.setPointSizeF(points);
    } else if (size.endsWith(QLatin1String("px"))) {
        size.chop(2);
        const int pixels = size.toInt(&ok);
        if (ok && pixels > 0) font.setPixelSize(pixels);
    }
    return font;
}

void CanvasLayout::Build(const HtmlPage& page, int viewportWidth) {
    cells_.clear();
    const HtmlPage::Body& body = page.body;
    const HtmlTable* table = page.Table();
    size_ = QSize(body.leftMargin + body.rightMargin, body.topMargin + body.bottomMargin);
    if (!table) return;

    const QFont font = BodyFont(body);
    const int spacing = std::max(0, table->cellSpacing);
    int columns = 0;
    for (int r = 0; r < table->RowCount(); ++r) columns = std::max(columns, table->rows(r).CellCount());

    // Cells and the widths their columns need.
    std::vector<int> widths(static_cast<std::size_t>(columns), 0);
    for (int r = 0; r < table->RowCount(); ++r) {
        const HtmlRow& row = table->rows(r);
        for (int c = 0; c < row.CellCount(); ++c) {
            const HtmlCell& cell = *row.cells(c);
            CanvasCellBox box{r, c, {}, Background(cell), MakeContent(cell, row, font), {}};
            const int needed = std::max(Pixels(cell.Width).value_or(0), MeasuredSize(box.content.get()).width());
            int& width = widths[static_cast<std::size_t>(c)];
            width = std::max(width, needed + 2 * kCellPadding);
            cells_.push_back(std::move(box));
        }
    }

    // A table of a percentage width fills the page; the columns share what is left.
    int tableWidth = spacing;
    for (const int width : widths) tableWidth += width + spacing;
    if (IsPercent(table->width) && columns > 0) {
        const int available = viewportWidth - body.leftMargin - body.rightMargin;
        const int extra = available - tableWidth;
        for (int c = 0; extra > 0 && c < columns; ++c)
            widths[static_cast<std::size_t>(c)] += extra / columns + (c < extra % columns ? 1 : 0);
        tableWidth = std::max(tableWidth, available);
        for (CanvasCellBox& box : cells_) {
            const HtmlCell& cell = *table->rows(box.row).cells(box.cell);
            if (box.content && !cell.noWrap)
                box.content->setTextWidth(widths[static_cast<std::size_t>(box.cell)] - 2 * kCellPadding);
        }
    }

    std::vector<int> left(static_cast<std::size_t>(columns), 0);
    for (int c = 0, x = body.leftMargin + spacing; c < columns; ++c) {
        left[static_cast<std::size_t>(c)] = x;
        x += widths[static_cast<std::size_t>(c)] + spacing;
    }

    // Rows: at least their height, and as high as their tallest cell.
    int y = body.topMargin + spacing;
    auto box = cells_.begin();
    for (int r = 0; r < table->RowCount(); ++r) {
        const HtmlRow& row = table->rows(r);
        int height = Pixels(row.Height).value_or(0);
        for (int c = 0; c < row.CellCount(); ++c) {
            const HtmlCell& cell = *row.cells(c);
            const int content = MeasuredSize(box[c].content.get()).height() + 2 * kCellPadding;
            height = std::max({height, Pixels(cell.Height).value_or(0), content});
        }
        for (int c = 0; c < row.CellCount(); ++c, ++box) {
            const int width = widths[static_cast<std::size_t>(c)];
            box->rect = QRect(left[static_cast<std::size_t>(c)], y, width, height);
            const QSize content = MeasuredSize(box->content.get());
            box->contentOrigin = QPointF(box->rect.left() + (width - content.width()) / 2.0,
                                         box->rect.top() + (height - content.height()) / 2.0);
        }
        y += height + spacing;
    }
    size_ = QSize(body.leftMargin + tableWidth + body.rightMargin, y + body.bottomMargin);
}

const CanvasCellBox* CanvasLayout::At(QPoint point) const {
    const auto it = std::find_if(cells_.begin(), cells_.end(), [&](const CanvasCellBox& box) { return box.rect.contains(point); });
    return it == cells_.end() ? nullptr : &*it;
}

const CanvasCellBox* CanvasLayout::Find(int row, int cell) const {
    const auto it = std::find_if(cells_.begin(), cells_.end(),
                                 [&](const CanvasCellBox& box) { return box.row == row && box.cell == cell; });
    return it == cells_.end() ? nullptr : &*it;
}

void CanvasLayout::Paint(QPainter& painter, const QRect& exposed) const {
    painter.fillRect(exposed, Qt::white);
    for (const CanvasCellBox& box : cells_) {
        if (!box.rect.intersects(exposed)) continue;
        painter.fillRect(box.rect, box.background);
        if (!box.content) continue;
        painter.save();
        painter.translate(box.contentOrigin);
        box.content->drawContents(&painter);
        painter.restore();
    }
}

}  // namespace flowloom::designer::window
