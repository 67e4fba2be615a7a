// The window's controls stand where the designer's layout puts them: twips
// of the form's client area, whose top band (above Line1) the toolbar takes.
#include "designer/window/CanvasView.h"
#include "designer/window/MainWindow.h"
#include "designer/window/ProcessListView.h"
#include "grid/widget/PropertyList.h"

#include <QEvent>
#include <QFrame>
#include <QPlainTextEdit>
#include <QToolButton>

#include <cmath>

namespace flowloom::designer::window {

namespace {

constexpr double kTwipsPerInch = 1440.0;

int Round(double value) { return static_cast<int>(std::lround(value)); }

}  // namespace

double MainWindow::TwipsPerPixelX() const { return kTwipsPerInch / std::max(1, logicalDpiX()); }
double MainWindow::TwipsPerPixelY() const { return kTwipsPerInch / std::max(1, logicalDpiY()); }

QRect MainWindow::ToPixels(const TwipRect& rect) const {
    const DesignerLayout& layout = core_->Layout();
    const double tx = layout.twipsPerPixelX, ty = layout.twipsPerPixelY;
    const int left = Round(rect.Left / tx), top = Round((rect.Top - layout.lineTop) / ty);
    // Edges are rounded, not sizes, so that neighbours meet without gaps.
    const int right = Round((rect.Left + rect.Width) / tx);
    const int bottom = Round((rect.Top + rect.Height - layout.lineTop) / ty);
    return {left, top, std::max(0, right - left), std::max(0, bottom - top)};
}

void MainWindow::PlaceControls() {
    const DesignerLayout& layout = core_->Layout();
    line1_->setGeometry(0, 0, central_->width(), 2);
    listBorder_->setGeometry(ToPixels(layout.picListBorder));
    list_->setGeometry(ToPixels(layout.lstProcesses));
    Canvas(Strip::Database).setGeometry(ToPixels(layout.wbcDatabase));
    Canvas(Strip::Datasource).setGeometry(ToPixels(layout.wbcDatasource));
    Canvas(Strip::Activity).setGeometry(ToPixels(layout.wbcActivity));
    grid_->setGeometry(ToPixels(layout.PropList));
    info_->setGeometry(ToPixels(layout.txtPropInfo));
    ShowBrowseButton();
}

void MainWindow::ShowBrowseButton() {
    const DesignerLayout& layout = core_->Layout();
    if (layout.cmdBrowseVisible) {
        browse_->setGeometry(ToPixels(layout.cmdBrowse));
        browse_->raise();
    }
    browse_->setVisible(layout.cmdBrowseVisible);
}

void MainWindow::CentralResized() {
    const DesignerLayout& layout = core_->Layout();
    line1_->setGeometry(0, 0, central_->width(), 2);
    // The form's inner height holds the toolbar's band as well.
    core_->Form_Resize(central_->width() * layout.twipsPerPixelX,
                       central_->height() * layout.twipsPerPixelY + layout.lineTop);
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
    // The designer keeps the margin under the list from its first load, so
    // sizes reach it only after that.
    if (watched == central_ && event->type() == QEvent::Resize && core_ && loaded_) CentralResized();
    return QMainWindow::eventFilter(watched, event);
}

}  // namespace flowloom::designer::window
