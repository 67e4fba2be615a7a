// The menu bar, the toolbar and the context menu, built from the designer's
// menus as data: their states come from the designer's enabling rules, and
// a choice goes back to the designer by the entry's name.
#include "designer/MenuData.h"
#include "designer/Resources.h"
#include "designer/window/MainWindow.h"
#include "support/AppPaths.h"

#include <QAction>
#include <QCursor>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QToolBar>

namespace flowloom::designer::window {

namespace {

constexpr const char* kPopupMenu = "mnuPopUp";

QString Q(const std::string& text) { return QString::fromStdString(text); }

QIcon ToolbarIcon(const ToolbarButton& button) {
    QPixmap pixmap;
    const std::string& key = button.imageKey.empty() ? button.key : button.imageKey;
    if (const auto data = LoadResourceData(key, "TOOLBAR"))
        pixmap.loadFromData(reinterpret_cast<const uchar*>(data->data()), static_cast<uint>(data->size()));
    return pixmap.isNull() ? QIcon() : QIcon(pixmap);
}

}  // namespace

QMenu* MainWindow::MenuNamed(const std::string& name) const {
    const auto it = menus_.find(name);
    return it == menus_.end() ? nullptr : it->second;
}

QAction* MainWindow::ActionNamed(const std::string& name) const {
    const auto it = actions_.find(name);
    return it == actions_.end() ? nullptr : it->second;
}

void MainWindow::BuildMenus() {
    const MenuBar& data = core_->Menus();
    for (const MenuEntry& entry : data.Entries()) {
        // The context menu is built afresh each time it opens.
        if (!entry.parent.empty() || entry.name == kPopupMenu) continue;
        QMenu* menu = menuBar()->addMenu(Q(entry.caption));
        menu->setObjectName(Q(entry.name));
        menus_[entry.name] = menu;
        actions_[entry.name] = menu->menuAction();
        menu->menuAction()->setVisible(entry.visible);
        menu->menuAction()->setEnabled(entry.enabled);
        AddMenuEntries(*menu, entry.name);
        connect(menu, &QMenu::aboutToShow, this, [this, name = entry.name] { SyncMenu(name); });
    }
}

void MainWindow::AddMenuEntries(QMenu& menu, const std::string& parent) {
    const MenuBar& data = core_->Menus();
    for (const MenuEntry* entry : data.Children(parent)) {
        QAction* action = nullptr;
        if (entry->separator) {
            action = menu.addSeparator();
        } else if (data.IsMenu(entry->name)) {
            QMenu* sub = menu.addMenu(Q(entry->caption));
            sub->setObjectName(Q(entry->name));
            menus_[entry->name] = sub;
            AddMenuEntries(*sub, entry->name);
            connect(sub, &QMenu::aboutToShow, this, [this, name = entry->name] { SyncMenu(name); });
            action = sub->menuAction();
        } else {
            action = menu.addAction(Q(entry->caption));
            connect(action, &QAction::triggered, this, [this, name = entry->name] { core_->ChooseMenu(name); });
        }
        action->setObjectName(Q(entry->name));
        action->setEnabled(entry->enabled);
        action->setVisible(entry->visible);
        actions_[entry->name] = action;
    }
}

void MainWindow::SyncMenu(const std::string& menu) {
    core_->OpenMenu(menu);
    for (const MenuEntry* entry : core_->Menus().Children(menu)) {
        QAction* action = ActionNamed(entry->name);
        if (!action) continue;
        action->setEnabled(entry->enabled);
        action->setVisible(entry->visible);
        if (!entry->separator) action->setText(Q(entry->caption));
    }
}

void MainWindow::BuildToolbar() {
    toolbar_ = addToolBar(QStringLiteral("Toolbar1"));
    toolbar_->setObjectName(QStringLiteral("Toolbar1"));
    toolbar_->setMovable(false);
    toolbar_->setFloatable(false);
    toolbar_->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    toolbar_->setIconSize(QSize(24, 24));
    toolbar_->toggleViewAction()->setEnabled(false);
    for (const ToolbarButton& button : ToolbarButtons()) {
        if (button.separator) {
            toolbar_->addSeparator()->setObjectName(Q(button.key));
            continue;
        }
        QAction* action = toolbar_->addAction(ToolbarIcon(button), Q(button.caption));
        action->setObjectName(Q(button.key));
        action->setToolTip(Q(button.toolTip));
        connect(action, &QAction::triggered, this, [this, index = button.index] { core_->ToolbarClick(index); });
    }
}

void MainWindow::ShowPopupMenu() {
    QMenu menu(this);
    menu.setObjectName(QString::fromLatin1(kPopupMenu));
    for (const MenuEntry* entry : core_->Menus().Children(kPopupMenu)) {
        if (!entry->visible) continue;
        if (entry->separator) {
            menu.addSeparator();
            continue;
        }
        QAction* action = menu.addAction(Q(entry->caption));
        action->setObjectName(Q(entry->name));
        action->setEnabled(entry->enabled);
    }
    const QPoint at = nextMenuAt_.value_or(QCursor::pos());
    nextMenuAt_.reset();
    QAction* chosen = runMenu_ ? runMenu_(menu, at) : menu.exec(at);
    if (chosen) core_->ChooseMenu(chosen->objectName().toStdString());
    else core_->ClosePopup();
}

void MainWindow::ShowAbout() {
    const QString title = Q(AppTitle());
    QMessageBox::about(this, tr("About %1").arg(title),
                       tr("<p><b>%1</b><br>Version %2</p>"
                          "<p>Designs, verifies and documents the document-automation processes of a "
                          "processes file, and writes the macro code that runs them.</p>")
                           .arg(title.toHtmlEscaped(), Q(AppVersion()).toHtmlEscaped()));
}

}  // namespace flowloom::designer::window
