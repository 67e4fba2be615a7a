#include "designer/window/TextWindow.h"

#include "designer/window/DialogText.h"

#include <QFile>
#include <QFileDialog>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

namespace flowloom::designer::window {

TextWindow::TextWindow(const QString& text, QWidget* parent)
    : QWidget(parent, Qt::Window), view_(new QPlainTextEdit(this)), raw_(text) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QStringLiteral("Flowloom"));

    view_->setReadOnly(true);
    view_->setLineWrapMode(QPlainTextEdit::NoWrap);
    view_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    view_->setPlainText(WithLineFeeds(text));

    auto* save = new QPushButton(tr("&Save..."), this);
    auto* close = new QPushButton(tr("&Close"), this);
    connect(save, &QPushButton::clicked, this, &TextWindow::SaveAs);
    connect(close, &QPushButton::clicked, this, &QWidget::close);
    connect(new QShortcut(QKeySequence(Qt::Key_Escape), this), &QShortcut::activated, this, &QWidget::close);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(save);
    buttons->addWidget(close);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(view_);
    layout->addLayout(buttons);
    resize(720, 520);
    if (parent) move(parent->window()->geometry().center() - rect().center());
}

QString TextWindow::Text() const { return view_->toPlainText(); }

bool TextWindow::SaveTo(const QString& fileName) {
    QFile file(fileName);
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(raw_.toUtf8()) >= 0 && file.flush())
        return true;
    QMessageBox::warning(this, windowTitle(), tr("The text could not be saved to '%1': %2").arg(fileName, file.errorString()));
    return false;
}

void TextWindow::SaveAs() {
    const QString name = QFileDialog::getSaveFileName(this, tr("Save Text"), QString(),
                                                      QtFileFilter(QStringLiteral("Text files (*.txt)|*.txt|All Files (*.*)|*.*")));
    if (!name.isEmpty()) SaveTo(WithDefaultExtension(name, QStringLiteral("txt")));
}

}  // namespace flowloom::designer::window
