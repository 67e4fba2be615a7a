#include "EditorWindow.h"

#include "BodyText.h"

#include <QAction>
#include <QCloseEvent>
#include <QFile>
#include <QFontDatabase>
#include <QInputDialog>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QStackedWidget>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>
#include <QTextList>
#include <QToolBar>

#include <cstdio>

namespace flowloom::markuploom {

namespace {

// The text of a plain editor as it stands, no blank or line end changed.
QString RawText(const QPlainTextEdit& editor) {
    QString text = editor.document()->toRawText();
    text.replace(QChar::ParagraphSeparator, u'\n');
    text.replace(QChar::LineSeparator, u'\n');
    return text;
}

void SetUnmodifiedPlainText(QPlainTextEdit& editor, const QString& text) {
    editor.setPlainText(text);
    editor.document()->setModified(false);
}

}  // namespace

EditorWindow::EditorWindow(const ToolOptions& options, QWidget* parent)
    : QMainWindow(parent), options_(options), views_(new QStackedWidget(this)) {
    setWindowTitle(TitleFor(options_.plainText));
    if (!options_.plainText) {
        rich_ = new QTextEdit(views_);
        rich_->setAcceptRichText(true);
        views_->addWidget(rich_);
    }
    source_ = new QPlainTextEdit(views_);
    if (rich_) source_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    views_->addWidget(source_);
    setCentralWidget(views_);
    BuildMenus();
    if (rich_) BuildFormatBar();
    resize(760, 540);
}

QString EditorWindow::TitleFor(bool plainText) {
    return plainText ? QStringLiteral("text editor") : QStringLiteral("html editor");
}

void EditorWindow::BuildMenus() {
    QMenu* file = menuBar()->addMenu(tr("&File"));
    QAction* close = file->addAction(tr("&Close"), this, &QWidget::close);
    // The platform's Close keys often include Ctrl+W already; a key bound
    // twice would be ambiguous and do nothing.
    QList<QKeySequence> closeKeys = QKeySequence::keyBindings(QKeySequence::Close);
    if (!closeKeys.contains(QKeySequence(Qt::CTRL | Qt::Key_W))) closeKeys.prepend(QKeySequence(Qt::CTRL | Qt::Key_W));
    close->setShortcuts(closeKeys);
    if (!rich_) return;
    QMenu* view = menuBar()->addMenu(tr("&View"));
    sourceAction_ = view->addAction(tr("HTML &Source"));
    sourceAction_->setCheckable(true);
    sourceAction_->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_H));
    connect(sourceAction_, &QAction::toggled, this, &EditorWindow::SetSourceShown);
}

void EditorWindow::BuildFormatBar() {
    QToolBar* bar = addToolBar(tr("Format"));
    auto toggle = [&](const QString& text, const QKeySequence& key) {
        QAction* action = bar->addAction(text);
        action->setCheckable(true);
        action->setShortcut(key);
        connect(action, &QAction::triggered, this, [this, action] { ToggleFormat(action); });
        formatActions_ << action;
        return action;
    };
    boldAction_ = toggle(tr("Bold"), QKeySequence::Bold);
    italicAction_ = toggle(tr("Italic"), QKeySequence::Italic);
    underlineAction_ = toggle(tr("Underline"), QKeySequence::Underline);
    formatActions_ << bar->addAction(tr("Bullets"), this, [this] { MakeList(false); });
    formatActions_ << bar->addAction(tr("Numbering"), this, [this] { MakeList(true); });
    formatActions_ << bar->addAction(tr("Link..."), this, &EditorWindow::InsertLink);
    bar->addSeparator();
    bar->addAction(sourceAction_);
    connect(rich_, &QTextEdit::currentCharFormatChanged, this, &EditorWindow::UpdateFormatButtons);
}

bool EditorWindow::Load(QString& error) {
    QFile file(options_.file);
    if (file.exists()) {
        if (!file.open(QIODevice::ReadOnly)) {
            error = file.errorString();
            return false;
        }
        original_ = file.readAll();
        if (file.error() != QFileDevice::NoError) {
            error = file.errorString();
            return false;
        }
    }
    const QString text = QString::fromUtf8(original_);
    text_ = options_.plainText ? EditorLineEnds(UnmarkLineEnds(text)) : text;
    ShowText();
    return true;
}

void EditorWindow::ShowText() {
    if (!rich_) {
        SetUnmodifiedPlainText(*source_, text_);
        return;
    }
    // Without /noconvert a plain text keeps its lines in the rich view; it
    // only becomes HTML when someone edits it there.
    const bool asHtml = options_.noConvert || Qt::mightBeRichText(text_);
    rich_->setHtml(asHtml ? text_ : Qt::convertFromPlainText(text_, Qt::WhiteSpaceNormal));
    rich_->document()->setModified(false);
    views_->setCurrentWidget(rich_);
}

bool EditorWindow::TakeEdits() {
    const bool inRich = rich_ && views_->currentWidget() == rich_;
    QTextDocument* document = inRich ? rich_->document() : source_->document();
    if (!document->isModified()) return false;
    text_ = inRich ? rich_->toHtml() : RawText(*source_);
    document->setModified(false);
    edited_ = true;
    return true;
}

bool EditorWindow::Save(QString& error) {
    TakeEdits();
    // An HTML text nobody touched goes back as it came, to the byte.
    const QByteArray bytes = rich_ && !edited_ ? original_ : WithCrLf(text_).toUtf8();
    QFile file(options_.file);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(bytes) != bytes.size() ||
        !file.flush()) {
        error = file.errorString();
        return false;
    }
    return true;
}

void EditorWindow::SetSourceShown(bool shown) {
    const bool taken = TakeEdits();
    if (shown) {
        SetUnmodifiedPlainText(*source_, text_);
        views_->setCurrentWidget(source_);
    } else {
        if (taken) {
            rich_->setHtml(text_);
            rich_->document()->setModified(false);
        }
        views_->setCurrentWidget(rich_);
    }
    for (QAction* action : formatActions_) action->setEnabled(!shown);
}

void EditorWindow::ToggleFormat(QAction* action) {
    QTextCharFormat format;
    const bool on = action->isChecked();
    if (action == boldAction_) format.setFontWeight(on ? QFont::Bold : QFont::Normal);
    else if (action == italicAction_) format.setFontItalic(on);
    else format.setFontUnderline(on);
    rich_->mergeCurrentCharFormat(format);
    rich_->setFocus();
}

void EditorWindow::MakeList(bool numbered) {
    QTextCursor cursor = rich_->textCursor();
    cursor.createList(numbered ? QTextListFormat::ListDecimal : QTextListFormat::ListDisc);
    rich_->setFocus();
}

void EditorWindow::InsertLink() {
    bool ok = false;
    const QString address =
        QInputDialog::getText(this, tr("Link"), tr("Address:"), QLineEdit::Normal, QStringLiteral("https://"), &ok)
            .trimmed();
    if (!ok || address.isEmpty()) return;
    QTextCharFormat format;
    format.setAnchor(true);
    format.setAnchorHref(address);
    format.setFontUnderline(true);
    format.setForeground(palette().link());
    QTextCursor cursor = rich_->textCursor();
    if (cursor.hasSelection()) cursor.mergeCharFormat(format);
    else cursor.insertText(address, format);
    rich_->setFocus();
}

void EditorWindow::UpdateFormatButtons() {
    const QTextCharFormat format = rich_->currentCharFormat();
    boldAction_->setChecked(format.fontWeight() >= QFont::Bold);
    italicAction_->setChecked(format.fontItalic());
    underlineAction_->setChecked(format.fontUnderline());
}

void EditorWindow::RunCommand(const QString& command) {
    if (command == QLatin1String("raise")) {
        if (isMinimized()) showNormal();
        raise();
        activateWindow();
    } else if (command == QLatin1String("close")) {
        close();
    } else {
        std::fprintf(stderr, "markuploom: unknown command: %s\n", qPrintable(command));
    }
}

void EditorWindow::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    if (announced_) return;
    announced_ = true;
    // The caller waits for this line as the sign that the window is up.
    std::fprintf(stdout, "window: %s\n", windowTitle().toUtf8().constData());
    std::fflush(stdout);
}

void EditorWindow::closeEvent(QCloseEvent* event) {
    QString error;
    if (Save(error)) {
        event->accept();
        return;
    }
    std::fprintf(stderr, "markuploom: cannot write %s: %s\n", qPrintable(options_.file), qPrintable(error));
    const auto answer = QMessageBox::warning(
        this, windowTitle(), tr("The text could not be written to %1:\n%2\n\nClose anyway?").arg(options_.file, error),
        QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
    if (answer == QMessageBox::Yes) {
        saveFailed_ = true;
        event->accept();
    } else {
        event->ignore();
    }
}

}  // namespace flowloom::markuploom
