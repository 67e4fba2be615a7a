#include "grid/widget/Popups.h"

#include "support/TextCompare.h"

#include <QApplication>
#include <QKeyEvent>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>

namespace flowloom::grid {

namespace {

// Hands a press on to the widget under it, the way the window system would
// have delivered it had no pop-up held the mouse: through its window, which
// gives the focus as a click does, minds modal dialogs and sends the release
// that follows to the same widget.
void DeliverPress(const QMouseEvent& press) {
    const QPoint global = press.globalPosition().toPoint();
    const QWidget* target = QApplication::widgetAt(global);
    QWindow* window = target ? target->window()->windowHandle() : nullptr;
    if (!window) return;  // outside the program: the press only closed the pop-up
    const QPointF local = window->mapFromGlobal(global);
    QMouseEvent handedOn(QEvent::MouseButtonPress, local, local, press.globalPosition(), press.button(), press.buttons(),
                         press.modifiers(), press.pointingDevice());
    QCoreApplication::sendEvent(window, &handedOn);
}

}  // namespace

PopupFrame::PopupFrame(QWidget* owner) : QFrame(owner, Qt::Popup) {
    // Qt hands the closing press on by itself on some platforms only; this
    // pop-up always does it itself, so that the press arrives exactly once.
    setAttribute(Qt::WA_NoMouseReplay);
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setLineWidth(1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);  // the frame's line is the whole border
    layout->setSpacing(0);
}

void PopupFrame::mousePressEvent(QMouseEvent* event) {
    if (rect().contains(event->position().toPoint())) {
        QFrame::mousePressEvent(event);
        return;
    }
    // A press outside closes the pop-up and still reaches what was clicked.
    const QPoint global = event->globalPosition().toPoint();
    OutsidePress(global);
    emit ClosedByPress(global);
    close();
    event->accept();
    DeliverPress(*event);
}

void PopupFrame::hideEvent(QHideEvent* event) {
    QFrame::hideEvent(event);
    emit Hidden();
}

DropList::DropList(QWidget* owner) : PopupFrame(owner), list_(new QListWidget(this)) {
    setObjectName("cbo");
    list_->setFrameShape(QFrame::NoFrame);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list_->setUniformItemSizes(true);
    list_->setMinimumSize(1, 1);  // a list of one entry is one entry high
    layout()->addWidget(list_);
    setFocusProxy(list_);
    list_->installEventFilter(this);
    list_->viewport()->installEventFilter(this);
}

void DropList::SetEntries(const std::vector<std::string>& entries, const std::string& current, const QFont& font) {
    list_->clear();
    list_->setFont(font);
    for (const std::string& entry : entries) {
        list_->addItem(QString::fromStdString(entry));
        list_->item(list_->count() - 1)->setSizeHint(QSize(0, ItemHeight()));
    }
    SetCurrentIndex(IndexOf(current));
}

int DropList::IndexOf(const std::string& text) const {
    const QList<QListWidgetItem*> matches = list_->findItems(QString::fromStdString(text), Qt::MatchExactly | Qt::MatchCaseSensitive);
    return matches.isEmpty() ? -1 : list_->row(matches.back());  // the last equal entry wins
}

int DropList::Count() const { return list_->count(); }
int DropList::CurrentIndex() const { return list_->currentRow(); }

void DropList::SetCurrentIndex(int index) {
    list_->setCurrentRow(index);
    if (index < 0) list_->clearSelection();
}

std::string DropList::Entry(int index) const {
    const QListWidgetItem* item = list_->item(index);
    return item ? item->text().toStdString() : std::string();
}

int DropList::ItemHeight() const { return QFontMetrics(list_->font()).height(); }

int DropList::ListHeight(int itemHeight, int count) { return count >= 9 ? itemHeight * 8 + 2 : (itemHeight + 2) * count; }

int DropList::WholeEntriesHeight(int requested) const {
    const int frame = 2 * frameWidth();
    const int entries = std::clamp((requested - frame) / std::max(1, ItemHeight()), 1, std::max(1, Count()));
    return entries * ItemHeight() + frame;
}

void DropList::Place(const QRect& editOnScreen, int buttonWidth, int sizeMode, int listWidth) {
    const int height = WholeEntriesHeight(ListHeight(ItemHeight(), Count()));
    if (sizeMode == 0) setGeometry(editOnScreen.left(), editOnScreen.bottom() + 1, editOnScreen.width() + buttonWidth, height);
    else if (sizeMode == 1) setGeometry(editOnScreen.left(), editOnScreen.bottom() + 1, listWidth, height);
}

bool DropList::SelectByLetter(int ascii) {
    const std::string letter = ToLower(QString(QChar(ascii)).toStdString());
    for (int step = 1; step <= Count(); ++step) {
        const int index = (std::max(CurrentIndex(), -1) + step) % Count();
        if (ToLower(Entry(index)).rfind(letter, 0) == 0) {
            SetCurrentIndex(index);
            return true;
        }
    }
    return false;
}

bool DropList::eventFilter(QObject* watched, QEvent* event) {
    if (watched == list_ && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
            if (CurrentIndex() >= 0) emit Picked(CurrentIndex(), false);
            hide();
            return true;
        }
        if (key->key() == Qt::Key_Escape) {
            hide();
            return true;
        }
    }
    if (watched == list_->viewport() && event->type() == QEvent::MouseButtonRelease) {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        const QPoint position = mouse->position().toPoint();
        if (mouse->button() == Qt::LeftButton && list_->viewport()->rect().contains(position)) {
            if (QListWidgetItem* item = list_->itemAt(position)) list_->setCurrentItem(item);
            if (CurrentIndex() >= 0) emit Picked(CurrentIndex(), true);
            hide();
            return true;
        }
    }
    return PopupFrame::eventFilter(watched, event);
}

MemoPopup::MemoPopup(QWidget* owner) : PopupFrame(owner), editor_(new QPlainTextEdit(this)) {
    setObjectName("txt");
    editor_->setFrameShape(QFrame::NoFrame);
    editor_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    editor_->setContextMenuPolicy(Qt::NoContextMenu);
    layout()->addWidget(editor_);
    setFocusProxy(editor_);
    editor_->installEventFilter(this);
}

void MemoPopup::Open(const QString& text, const QFont& font, const QRect& geometry) {
    editor_->setFont(font);
    editor_->setPlainText(text);
    editor_->moveCursor(QTextCursor::End);
    setGeometry(geometry);
    show();
    editor_->setFocus();
}

QString MemoPopup::Text() const { return editor_->toPlainText(); }

bool MemoPopup::eventFilter(QObject* watched, QEvent* event) {
    if (watched == editor_ && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Escape) {
            hide();
            return true;
        }
        if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
            if (key->modifiers() & (Qt::ShiftModifier | Qt::ControlModifier)) {
                editor_->insertPlainText("\n");
            } else {
                emit Committed(Text());
                hide();
            }
            return true;
        }
    }
    return PopupFrame::eventFilter(watched, event);
}

void MemoPopup::OutsidePress(const QPoint&) { emit Committed(Text()); }

}  // namespace flowloom::grid
