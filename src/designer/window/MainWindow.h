#pragma once

#include "designer/DesignerView.h"
#include "designer/frmDesigner.h"

#include <QMainWindow>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

class QAction;
class QFrame;
class QMenu;
class QPlainTextEdit;
class QToolBar;
class QToolButton;

namespace flowloom::grid {
class PropertyList;
}

namespace flowloom::designer::window {

class CanvasView;
class DialogWindow;
class GridHost;
class ProcessListView;
class QtToolLauncher;

// frmDesigner's window: binds Qt widgets to the designer's logic and shows
// what the designer changed. Every decision is the designer's; the window
// places its controls from the designer's layout (in twips) and passes on
// what a person does.
class MainWindow : public QMainWindow, public DesignerView {
    Q_OBJECT
public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    // Form_Load with the raw command line; false when start-up failed.
    bool Load(const std::string& commandLine);

    frmDesigner& Core() noexcept { return *core_; }
    ProcessListView& ProcessList() const noexcept { return *list_; }
    CanvasView& Canvas(Strip strip) const noexcept { return *canvases_[static_cast<int>(strip)]; }
    grid::PropertyList& Grid() const noexcept { return *grid_; }
    QPlainTextEdit& PropInfo() const noexcept { return *info_; }
    QToolBar& Toolbar() const noexcept { return *toolbar_; }
    // The menu or action of a menu entry by its name; nullptr for none.
    QMenu* MenuNamed(const std::string& name) const;
    QAction* ActionNamed(const std::string& name) const;

    // How a context menu is run: by default exec() at the point. Tests put
    // a function here that picks an entry without blocking.
    using MenuRunner = std::function<QAction*(QMenu& menu, QPoint global)>;
    void SetMenuRunner(MenuRunner runner) { runMenu_ = std::move(runner); }

    // DesignerView.
    void Changed(unsigned what) override;
    void FocusMoved(Control control) override;
    void ShowPopupMenu() override;
    void ShowAbout() override;
    void Unload() override;
    void ShowDialog(ModalDialog& dialog) override;
    grid::PropertyGridHost* DialogGrid() override;
    void BringToFront() override;

    // The dialog on show, or null; tests act on its widgets.
    DialogWindow* OpenDialogWindow() const noexcept { return dialogWindow_; }
    // Runs once a dialog window is shown (tests drive it from here, since
    // the dialog's event loop does not return until it closes).
    void SetDialogShown(std::function<void(DialogWindow&)> shown) { dialogShown_ = std::move(shown); }

signals:
    // The designer unloaded: the program ends.
    void Unloaded();

protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildControls();
    void BuildMenus();
    void AddMenuEntries(QMenu& menu, const std::string& parent);
    void SyncMenu(const std::string& menu);
    void BuildToolbar();
    void ConnectFocus();

    // Geometry (twips of the form, from the designer) and the parts it refreshes.
    double TwipsPerPixelX() const;
    double TwipsPerPixelY() const;
    QRect ToPixels(const TwipRect& rect) const;
    void PlaceControls();
    void CentralResized();
    void ShowListMark();
    void ShowBrowseButton();
    void ShowCursor();

    void UserFocused(QWidget* now);
    Control ControlOfWidget(const QWidget* widget) const;
    QWidget* WidgetOf(Control control) const;

    std::unique_ptr<GridHost> gridHost_;
    std::unique_ptr<frmDesigner> core_;
    // The tool launcher this window installed, and the grid of a dialog that
    // has one (made before the dialog is shown, kept for the next one).
    std::unique_ptr<QtToolLauncher> tools_;
    std::unique_ptr<grid::PropertyList> dialogGridWidget_;
    std::unique_ptr<GridHost> dialogGridHost_;
    DialogWindow* dialogWindow_ = nullptr;
    std::function<void(DialogWindow&)> dialogShown_;

    QWidget* central_ = nullptr;
    QFrame* line1_ = nullptr;
    QFrame* listBorder_ = nullptr;
    ProcessListView* list_ = nullptr;
    CanvasView* canvases_[3] = {};
    grid::PropertyList* grid_ = nullptr;
    QPlainTextEdit* info_ = nullptr;
    QToolButton* browse_ = nullptr;
    QToolBar* toolbar_ = nullptr;
    std::map<std::string, QMenu*> menus_;
    std::map<std::string, QAction*> actions_;

    MenuRunner runMenu_;
    std::optional<QPoint> nextMenuAt_;
    QMetaObject::Connection focusConnection_;
    bool movingFocus_ = false;  // the designer moves the focus: do not report it back
    bool waitCursorShown_ = false;
    bool closing_ = false;
    bool loaded_ = false;
    bool listSyncPending_ = false;
};

}  // namespace flowloom::designer::window
