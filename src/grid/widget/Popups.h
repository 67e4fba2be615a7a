#pragma once

#include <QFrame>

#include <string>
#include <vector>

class QListWidget;
class QPlainTextEdit;

namespace flowloom::grid {

// A borderless top-level pop-up that closes when the user presses outside
// it; the press itself still reaches whatever lies under the mouse.
class PopupFrame : public QFrame {
    Q_OBJECT
public:
    explicit PopupFrame(QWidget* owner);

    // Set when the press that closed the pop-up landed on the button that
    // opens it, so that the same press does not open it again.
    bool InLimbo = false;

signals:
    void ClosedByPress(QPoint globalPos);
    void Hidden();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    // Runs before the pop-up closes for a press outside it.
    virtual void OutsidePress(const QPoint&) {}
};

// The drop list of list and boolean rows.
class DropList : public PopupFrame {
    Q_OBJECT
public:
    explicit DropList(QWidget* owner);

    void SetEntries(const std::vector<std::string>& entries, const std::string& current, const QFont& font);
    int Count() const;
    int CurrentIndex() const;
    void SetCurrentIndex(int index);
    std::string Entry(int index) const;
    // Position of the last entry equal to the text, or -1.
    int IndexOf(const std::string& text) const;
    int ItemHeight() const;
    // 8 rows and the frame from 9 entries on, else each entry with 2 pixels
    // to spare: the two rules differ on purpose.
    static int ListHeight(int itemHeight, int count);
    // Below the edit box, as high as ListHeight asks cut to whole entries;
    // as wide as edit box and button (mode 0), listWidth pixels (mode 1),
    // or left where it was (any other mode).
    void Place(const QRect& editOnScreen, int buttonWidth, int sizeMode, int listWidth);
    // The next entry that begins with the character; false when none does.
    bool SelectByLetter(int ascii);

signals:
    void Picked(int index, bool byMouse);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // The height shrunk so that only whole entries show and none stand
    // empty below the last, as a list box of integral height does.
    int WholeEntriesHeight(int requested) const;

    QListWidget* list_;
};

// The multi-line editor of memo rows. Enter commits, Shift+Enter and
// Ctrl+Enter break the line, Esc drops the edit, a press outside commits.
class MemoPopup : public PopupFrame {
    Q_OBJECT
public:
    explicit MemoPopup(QWidget* owner);
    void Open(const QString& text, const QFont& font, const QRect& geometry);
    QString Text() const;

signals:
    void Committed(QString text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void OutsidePress(const QPoint&) override;

private:
    QPlainTextEdit* editor_;
};

}  // namespace flowloom::grid
