#include "designer/window/DialogWindow.h"

#include "designer/frmDesigner.h"
#include "support/ModalDialog.h"

#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTimer>

namespace flowloom::designer::window {

namespace {

QString Text(const std::string& text) { return QString::fromStdString(text); }

}  // namespace

DialogWindow::DialogWindow(frmDesigner& core, ModalDialog& dialog, QWidget* grid, QWidget* parent)
    : QDialog(parent), core_(core), dialog_(dialog), grid_(grid) {
    setWindowTitle(Text(dialog.Caption()));
    setObjectName(Text(dialog.Caption()));
    auto* layout = new QGridLayout(this);
    for (const DialogControl& control : dialog.Controls()) {
        QWidget* widget = MakeWidget(control);
        widget->setObjectName(Text(control.name));
        widgets_[control.name] = widget;
        const ControlCell& cell = control.cell;
        layout->addWidget(widget, cell.row, cell.column, cell.rowSpan, cell.columnSpan);
        // A grid takes the room the dialog gets when it grows.
        if (control.kind == ControlKind::Grid) layout->setColumnStretch(cell.column, 2);
    }
    Sync();
    // A tool the dialog starts from its grid disables it without a word to
    // this window: look every 100 ms, as the dialog watches its tool.
    auto* watch = new QTimer(this);
    connect(watch, &QTimer::timeout, this, [this] {
        if (!done_ && isEnabled() != dialog_.Enabled()) Sync();
    });
    watch->start(100);
}

DialogWindow::~DialogWindow() {
    // The grid belongs to the main window, which keeps it for the next use.
    if (grid_) {
        grid_->hide();
        grid_->setParent(nullptr);
    }
}

QWidget* DialogWindow::MakeWidget(const DialogControl& control) {
    const std::string name = control.name;
    switch (control.kind) {
    case ControlKind::Label: return new QLabel(Text(control.caption), this);
    case ControlKind::TextBox: {
        if (control.readOnly) {
            auto* box = new QPlainTextEdit(this);
            box->setReadOnly(true);
            box->setTabChangesFocus(true);
            box->setMaximumHeight(4 * box->fontMetrics().height() + 12);
            return box;
        }
        auto* edit = new QLineEdit(this);
        connect(edit, &QLineEdit::textEdited, this, [this, name](const QString& text) {
            if (!syncing_) core_.DialogSetText(name, text.toStdString());
            Acted();
        });
        return edit;
    }
    case ControlKind::ComboBox: {
        auto* combo = new QComboBox(this);
        combo->setEditable(true);
        combo->setInsertPolicy(QComboBox::NoInsert);
        combo->setMinimumContentsLength(24);
        connect(combo, &QComboBox::activated, this, [this, name](int index) {
            if (!syncing_) core_.DialogPick(name, index);
            Acted();
        });
        connect(combo->lineEdit(), &QLineEdit::textEdited, this, [this, name](const QString& text) {
            if (!syncing_) core_.DialogSetText(name, text.toStdString());
            Acted();
        });
        return combo;
    }
    case ControlKind::ListBox: {
        auto* list = new QListWidget(this);
        connect(list, &QListWidget::currentRowChanged, this, [this, name](int row) {
            if (syncing_ || row < 0) return;
            core_.DialogPick(name, row);
            Acted();
        });
        return list;
    }
    case ControlKind::Button: {
        auto* button = new QPushButton(Text(control.caption), this);
        // Enter in a combo box must not press a button of its own accord.
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this, name] {
            core_.DialogClick(name);
            Acted();
        });
        return button;
    }
    case ControlKind::Grid:
        if (grid_) {
            grid_->setParent(this);
            grid_->show();
            grid_->setMinimumSize(320, 240);
            return grid_;
        }
        return new QWidget(this);
    }
    return new QWidget(this);
}

void DialogWindow::Sync() {
    if (done_) return;
    syncing_ = true;
    setEnabled(dialog_.Enabled());
    for (const DialogControl& control : dialog_.Controls()) SyncWidget(control, widgets_[control.name]);
    syncing_ = false;
}

void DialogWindow::SyncWidget(const DialogControl& control, QWidget* widget) {
    widget->setEnabled(control.enabled);
    const QSignalBlocker blocker(widget);
    if (auto* combo = qobject_cast<QComboBox*>(widget)) {
        QStringList entries;
        for (const std::string& entry : control.entries) entries << Text(entry);
        QStringList shown;
        for (int i = 0; i < combo->count(); ++i) shown << combo->itemText(i);
        if (shown != entries) {
            combo->clear();
            combo->addItems(entries);
        }
        if (combo->currentText() != Text(control.text)) combo->setEditText(Text(control.text));
    } else if (auto* list = qobject_cast<QListWidget*>(widget)) {
        QStringList entries;
        for (const std::string& entry : control.entries) entries << Text(entry);
        QStringList shown;
        for (int i = 0; i < list->count(); ++i) shown << list->item(i)->text();
        if (shown != entries) {
            list->clear();
            list->addItems(entries);
        }
        list->setCurrentRow(control.listIndex);
    } else if (auto* edit = qobject_cast<QLineEdit*>(widget)) {
        if (edit->text() != Text(control.text)) edit->setText(Text(control.text));
    } else if (auto* box = qobject_cast<QPlainTextEdit*>(widget)) {
        QString text = Text(control.text);
        text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
        if (box->toPlainText() != text) box->setPlainText(text);
    } else if (auto* label = qobject_cast<QLabel*>(widget)) {
        label->setText(Text(control.caption));
    } else if (auto* button = qobject_cast<QPushButton*>(widget)) {
        button->setText(Text(control.caption));
    }
}

QWidget* DialogWindow::Control(const std::string& name) const {
    const auto it = widgets_.find(name);
    return it == widgets_.end() ? nullptr : it->second;
}

void DialogWindow::Acted() {
    if (done_) return;
    if (core_.OpenDialog() != &dialog_) {
        done_ = true;
        done(dialog_.OK() ? QDialog::Accepted : QDialog::Rejected);
        return;
    }
    Sync();
}

void DialogWindow::reject() {
    // Escape and the close box end the dialog as its Cancel does.
    if (!done_ && core_.OpenDialog() == &dialog_) core_.DialogCloseBox();
    Acted();
}

void DialogWindow::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    // Coming back to a dialog whose tool still runs puts the tool in front.
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && !done_ && core_.ToolWatched())
        core_.Timer1_Timer(true);
}

}  // namespace flowloom::designer::window
