#include "designer/window/MainWindow.h"

#include "designer/Resources.h"
#include "designer/window/CanvasView.h"
#include "designer/window/DialogText.h"
#include "designer/window/DialogWindow.h"
#include "designer/window/GridHost.h"
#include "designer/window/ProcessListView.h"
#include "designer/window/QtToolLauncher.h"
#include "grid/widget/PropertyList.h"
#include "support/ModalDialog.h"
#include "support/ToolLauncher.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QFrame>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QToolBar>
#include <QTimer>
#include <QToolButton>

namespace flowloom::designer::window {

namespace {

QPixmap ResourcePixmap(std::string_view name, std::string_view type) {
    QPixmap pixmap;
    if (const auto data = LoadResourceData(name, type))
        pixmap.loadFromData(reinterpret_cast<const uchar*>(data->data()), static_cast<uint>(data->size()));
    return pixmap;
}

}  // namespace

MainWindow::MainWindow(QWidget* parent) : QMainWindow(parent) {
    setObjectName(QStringLiteral("frmDesigner"));
    BuildControls();
    BuildMenus();
    BuildToolbar();
    ConnectFocus();
    const QPixmap icon = ResourcePixmap("process", "ICON");
    if (!icon.isNull()) setWindowIcon(QIcon(icon));

    core_->SetTwipsPerPixel(TwipsPerPixelX(), TwipsPerPixelY());
    const DesignerLayout& layout = core_->Layout();
    central_->setMinimumSize(ToPixels({0, layout.lineTop, layout.PropList.Left + 1500, layout.wbcActivity.Top - layout.lineTop + 1200}).size());
    // Wider and taller than the form's design, so that the grid has room.
    resize(QSize(1000, 560) + QSize(0, menuBar()->sizeHint().height() + toolbar_->sizeHint().height()));
}

MainWindow::~MainWindow() {
    // The widgets outlive the designer by a moment: they must not reach it.
    QObject::disconnect(focusConnection_);
    if (waitCursorShown_) QApplication::restoreOverrideCursor();
    for (CanvasView* canvas : canvases_) canvas->Detach();
    list_->Detach();
    gridHost_->SetEvents(nullptr);
    if (dialogGridHost_) dialogGridHost_->SetEvents(nullptr);
    core_.reset();
    if (tools_ && &CurrentToolLauncher() == tools_.get()) SetCurrentToolLauncher(nullptr);
}

void MainWindow::BuildControls() {
    central_ = new QWidget(this);
    central_->setObjectName(QStringLiteral("client"));
    setCentralWidget(central_);
    central_->installEventFilter(this);

    line1_ = new QFrame(central_);
    line1_->setObjectName(QStringLiteral("Line1"));
    line1_->setFrameShape(QFrame::HLine);
    line1_->setFrameShadow(QFrame::Sunken);
    listBorder_ = new QFrame(central_);  // before the list, so that it lies behind it
    listBorder_->setObjectName(QStringLiteral("picListBorder"));
    listBorder_->setAutoFillBackground(true);

    grid_ = new grid::PropertyList(central_);
    grid_->setObjectName(QStringLiteral("PropList"));
    gridHost_ = std::make_unique<GridHost>(*grid_);
    core_ = std::make_unique<frmDesigner>(*gridHost_, *this);
    gridHost_->SetEvents(core_.get());
    connect(grid_, &grid::PropertyList::Click, this, [this] { core_->PropList_Click(); });

    // The mail-body tool runs as a process of its own; its end reaches the
    // designer, which takes the text back and enables the window again.
    tools_ = std::make_unique<QtToolLauncher>();
    SetCurrentToolLauncher(tools_.get());
    connect(tools_.get(), &QtToolLauncher::finished, this, [this] {
        if (core_) core_->ToolEnded();
    });

    // Tab goes round the controls in the order they are made, and the grid
    // came first for the designer: after it come the button and the help
    // box, then the list and the strips, and from the last strip round to the grid.
    browse_ = new QToolButton(central_);
    browse_->setObjectName(QStringLiteral("cmdBrowse"));
    browse_->setText(QStringLiteral("..."));
    browse_->setFocusPolicy(Qt::TabFocus);
    browse_->hide();
    connect(browse_, &QToolButton::clicked, this, [this] { core_->cmdBrowse_Click(); });

    info_ = new QPlainTextEdit(central_);
    info_->setObjectName(QStringLiteral("txtPropInfo"));
    info_->setReadOnly(true);
    info_->setTabChangesFocus(true);

    list_ = new ProcessListView(*core_, central_);
    for (const Strip strip : {Strip::Database, Strip::Datasource, Strip::Activity}) {
        auto* canvas = new CanvasView(strip, *core_, central_);
        connect(canvas, &CanvasView::KeyboardMenuAt, this, [this](QPoint at) { nextMenuAt_ = at; });
        canvases_[static_cast<int>(strip)] = canvas;
    }
    connect(list_, &ProcessListView::KeyboardMenuAt, this, [this](QPoint at) { nextMenuAt_ = at; });

    auto* help = new QAction(this);
    help->setShortcut(QKeySequence(Qt::Key_F1));
    help->setShortcutContext(Qt::WindowShortcut);
    connect(help, &QAction::triggered, this, [this] { core_->HelpRequested(); });
    addAction(help);
}

bool MainWindow::Load(const std::string& commandLine) {
    const bool loaded = core_->Form_Load(commandLine);
    loaded_ = true;
    if (isVisible()) CentralResized();
    Changed(~0u);
    return loaded;
}

// --- what the designer changed ------------------------------------------------

void MainWindow::Changed(unsigned what) {
    if (!core_) return;
    if (what & changed::Caption) setWindowTitle(QString::fromStdString(core_->Caption()));
    // The list changes once per entry while a file opens: sync it once,
    // when the designer is done, rather than thousands of times.
    if ((what & changed::List) && !listSyncPending_) {
        listSyncPending_ = true;
        QTimer::singleShot(0, this, [this] {
            listSyncPending_ = false;
            if (core_) list_->Sync();
        });
    }
    if (what & changed::ListMark) ShowListMark();
    if (what & changed::Info) info_->setPlainText(WithLineFeeds(QString::fromStdString(core_->txtPropInfo())));
    if (what & changed::Layout) PlaceControls();
    else if (what & changed::BrowseButton) ShowBrowseButton();
    if (what & changed::Cursor) ShowCursor();
    if (what & changed::Sheet) grid_->Refresh();
    if (what & changed::Enabled) {
        // While the tool runs the window takes no input, as the tool's owner.
        centralWidget()->setEnabled(core_->Enabled());
        menuBar()->setEnabled(core_->Enabled());
        toolbar_->setEnabled(core_->Enabled());
    }
    if ((what & (changed::Dialog | changed::Sheet)) && dialogWindow_) {
        if (dialogGridWidget_) dialogGridWidget_->Refresh();
        dialogWindow_->Sync();
    }
}

void MainWindow::ShowDialog(ModalDialog& dialog) {
    // A grid made for this dialog goes into it; it comes back when it closes.
    QWidget* grid = dialogGridHost_ && core_->OpenDialogGrid() == dialogGridHost_.get() ? dialogGridWidget_.get()
                                                                                         : nullptr;
    DialogWindow window(*core_, dialog, grid, this);
    dialogWindow_ = &window;
    if (dialogShown_) QTimer::singleShot(0, &window, [this, &window] {
        if (dialogShown_) dialogShown_(window);
    });
    window.exec();
    dialogWindow_ = nullptr;
}

grid::PropertyGridHost* MainWindow::DialogGrid() {
    if (dialogGridHost_) dialogGridHost_->SetEvents(nullptr);
    dialogGridHost_.reset();
    dialogGridWidget_ = std::make_unique<grid::PropertyList>();
    dialogGridWidget_->setObjectName(QStringLiteral("PropList"));
    dialogGridHost_ = std::make_unique<GridHost>(*dialogGridWidget_);
    return dialogGridHost_.get();
}

void MainWindow::BringToFront() {
    raise();
    activateWindow();
}

void MainWindow::ShowListMark() {
    QPalette palette = listBorder_->palette();
    QColor colour = palette.color(QPalette::Button);
    if (core_->ProcessListMarked()) {
        // An inactive title bar: the highlight, muted.
        const QColor highlight = palette.color(QPalette::Active, QPalette::Highlight);
        colour = QColor::fromHsv(highlight.hsvHue(), highlight.hsvSaturation() / 2, highlight.value());
    }
    palette.setColor(QPalette::Window, colour);
    listBorder_->setPalette(palette);
}

void MainWindow::ShowCursor() {
    const bool wait = core_->WaitCursor();
    if (wait == waitCursorShown_) return;
    waitCursorShown_ = wait;
    if (wait) QApplication::setOverrideCursor(Qt::WaitCursor);
    else QApplication::restoreOverrideCursor();
}

// --- focus ------------------------------------------------------------------------

void MainWindow::ConnectFocus() {
    focusConnection_ = connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { UserFocused(now); });
}

void MainWindow::UserFocused(QWidget* now) {
    if (movingFocus_ || !core_ || !now) return;
    const Control control = ControlOfWidget(now);
    if (control != Control::None) core_->FocusControl(control);
}

Control MainWindow::ControlOfWidget(const QWidget* widget) const {
    const Control controls[] = {Control::List, Control::Database, Control::Datasource, Control::Activity,
                                Control::Grid, Control::Info};
    for (const Control control : controls) {
        const QWidget* owner = WidgetOf(control);
        if (owner == widget || owner->isAncestorOf(widget)) return control;
    }
    return Control::None;
}

QWidget* MainWindow::WidgetOf(Control control) const {
    switch (control) {
    case Control::List: return list_;
    case Control::Database: return canvases_[static_cast<int>(Strip::Database)];
    case Control::Datasource: return canvases_[static_cast<int>(Strip::Datasource)];
    case Control::Activity: return canvases_[static_cast<int>(Strip::Activity)];
    case Control::Grid: return grid_;
    case Control::Info: return info_;
    case Control::None: break;
    }
    return nullptr;
}

void MainWindow::FocusMoved(Control control) {
    QWidget* widget = WidgetOf(control);
    if (!widget) return;
    movingFocus_ = true;
    widget->setFocus(Qt::OtherFocusReason);
    movingFocus_ = false;
}

// --- life cycle ---------------------------------------------------------------------

void MainWindow::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    core_->Form_Activate();
}

void MainWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::ActivationChange || !isActiveWindow() || !core_) return;
    // Coming back to the window while the tool runs puts the tool in front.
    if (core_->ToolWatched() && !core_->OpenDialog()) return core_->Timer1_Timer(true);
    core_->Form_Activate();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (closing_ || core_->Unloaded()) return event->accept();
    closing_ = true;
    const bool unloaded = core_->Form_Unload();
    closing_ = false;
    if (unloaded) event->accept();
    else event->ignore();
}

void MainWindow::Unload() {
    // From Exit or a failed start: close as the user would. From closeEvent
    // the window is closing already.
    if (!closing_) {
        closing_ = true;
        close();
        closing_ = false;
    }
    emit Unloaded();
}

}  // namespace flowloom::designer::window
