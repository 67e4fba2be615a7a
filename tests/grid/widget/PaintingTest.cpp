// Painting of rows, checked by their pixels, and a picture of the example
// grid for a person to look at.
#include "GridTestSupport.h"

#include "DemoGrid.h"
#include "grid/widget/GridColors.h"
#include "grid/widget/RowPainter.h"

#include <QPainter>

#include <gtest/gtest.h>

namespace flowloom::grid::testing {
namespace {

constexpr int kWidth = 300;
constexpr int kDivider = 100;

class RowPicture {
public:
    explicit RowPicture(Property& row, RowPaintSettings settings = {}) : image_(kWidth, 24, QImage::Format_RGB32) {
        image_.fill(Qt::magenta);
        settings.dividerX = kDivider;
        QPainter painter(&image_);
        PaintRow(painter, row, QRect(0, 0, kWidth, RowHeight(row, settings.style)), settings);
    }
    QColor At(int x, int y) const { return image_.pixelColor(x, y); }
    const QImage& Image() const { return image_; }
    // Leftmost x in [from, to) whose pixel differs from the one at from, on any line of the text.
    int FirstInk(int from, int to) const {
        for (int x = from; x < to; ++x)
            for (int y = 2; y < 14; ++y)
                if (At(x, y) != At(from, y)) return x;
        return -1;
    }

private:
    QImage image_;
};

TEST(GridPainting, SwatchesShowTheValueColour) {
    Properties rows;
    Property& color = rows.Add("Colour", ExPropColor, "255");
    Property& html = rows.Add("Web", ExPropHtmlColor, "00FF00");
    const int swatchCentre = kDivider + 2 + 6;
    EXPECT_EQ(RowPicture(color).At(swatchCentre, 7), QColor(255, 0, 0));
    EXPECT_EQ(RowPicture(html).At(swatchCentre, 7), QColor(0, 255, 0));
    html.SetValue("abc");
    EXPECT_EQ(RowPicture(html).At(swatchCentre, 7), QColor(0, 0, 0));
}

TEST(GridPainting, PasswordRowsShowOneMaskPerCharacter) {
    Properties rows;
    Property& secret = rows.Add("Secret", ExPropText, "abc");
    secret.SetPasswordChar("*");
    Property& stars = rows.Add("Secret", ExPropText, "***");
    EXPECT_EQ(RowPicture(secret).Image(), RowPicture(stars).Image());
}

TEST(GridPainting, HighlightAndValueColumnColours) {
    Properties rows;
    Property& row = rows.Add("Name", ExPropText, "", 0xEEEEEE);
    RowPaintSettings settings;
    settings.highlighted = true;
    row.SetHighlightColor(0x0000FF);
    EXPECT_EQ(RowPicture(row, settings).At(kDivider - 3, 2), QColor(255, 0, 0));
    EXPECT_EQ(RowPicture(row).At(kDivider - 3, 2), QColor(0xEE, 0xEE, 0xEE));
    EXPECT_EQ(RowPicture(row).At(kWidth - 5, 2), QColor(0xEE, 0xEE, 0xEE));  // value column follows the row
    settings.highlighted = false;
    settings.backColorValue = 0x00FFFF;
    EXPECT_EQ(RowPicture(row, settings).At(kWidth - 5, 2), QColor(255, 255, 0));
}

TEST(GridPainting, HeadersSpanTheRowAndShowTheirState) {
    Properties rows;
    Property& header = rows.Add("Section", ExPropHeader, "", 0x808080);
    RowPaintSettings settings;
    EXPECT_EQ(RowPicture(header, settings).At(kDivider + 20, 2), QColor(0x80, 0x80, 0x80));

    settings.expandableHeaders = true;
    settings.foreColor = 0x000000;
    // The middle of the box's vertical stroke: inked for a plus only.
    const int indent = IndentWidth(settings.controlFont);
    const int box = indent % 2 == 1 ? indent - 5 : indent - 6;
    const QPoint stroke(2 + box / 2, (RowHeight(header, 0) - (indent - 2)) / 2 + 2);
    EXPECT_NE(RowPicture(header, settings).At(stroke.x(), stroke.y()), QColor(0, 0, 0));
    header.SetExpanded(false);
    EXPECT_EQ(RowPicture(header, settings).At(stroke.x(), stroke.y()), QColor(0, 0, 0));
}

TEST(GridPainting, PictureColumnKeepsCaptionsInLine) {
    Properties rows;
    Property& row = rows.Add("Caption", ExPropText, "", 0xFFFFFF, 0x000000);
    RowPaintSettings plain;
    RowPaintSettings pictures;
    pictures.style = 1;
    const int without = RowPicture(row, plain).FirstInk(1, kDivider - 1);
    const int with = RowPicture(row, pictures).FirstInk(1, kDivider - 1);
    ASSERT_GT(without, 0);
    EXPECT_EQ(with - without, 18);
}

TEST(GridPainting, AValueTooLongToShowEndsInAnEllipsis) {
    Properties rows;
    Property& row = rows.Add("Long", ExPropText, std::string(100, 'W'), 0xFFFFFF, 0x000000);
    const RowPicture picture(row);
    const int textTop = 2;
    const int textBottom = RowHeight(row, 0) - 3;
    int lastInk = -1;
    for (int x = kDivider + 1; x < kWidth; ++x)
        for (int y = textTop; y <= textBottom; ++y)
            if (picture.At(x, y) != QColor(Qt::white)) lastInk = x;
    ASSERT_GT(lastInk, kDivider);
    // The last dot of the ellipsis sits on the base line: nothing above the
    // middle of the text, where a cut-off W would still show its strokes.
    for (int y = textTop; y < (textTop + textBottom) / 2; ++y) EXPECT_EQ(picture.At(lastInk, y), QColor(Qt::white)) << y;
}

// Not a check: pictures of the example grid, with and without a drop list
// open, for a person to look at.
TEST(GridPainting, TheExampleGridAsPictures) {
    GridHarness h;
    demo::LoggingSink sink([](const std::string&) {});
    h.grid().SetCallbackSink(&sink);
    demo::FillDemoGrid(h.grid());
    h.grid().SetListIndex(7);  // a list row, so that its drop arrow shows
    QWidget* window = h.grid().window();
    window->resize(460, 420);
    QApplication::processEvents();
    EXPECT_TRUE(h.grid().grab().save(QString(GRID_SCREENSHOT_DIR) + "/grid-demo.png"));

    h.Select(8);  // the list that asks NeedData for its eleven entries
    h.ClickButton();
    ASSERT_TRUE(h.DropList()->isVisible());
    // The pop-up is a window of its own: laid over the grid where it stands.
    QImage picture = window->grab().toImage();
    QPainter(&picture).drawPixmap(h.DropList()->mapToGlobal(QPoint(0, 0)) - window->mapToGlobal(QPoint(0, 0)), h.DropList()->grab());
    EXPECT_TRUE(picture.save(QString(GRID_SCREENSHOT_DIR) + "/grid-demo-droplist.png"));
    h.Key(h.DropEntries(), Qt::Key_Escape);
    h.grid().SetCallbackSink(nullptr);
}

}  // namespace
}  // namespace flowloom::grid::testing
