#pragma once

#include "ToolOptions.h"

#include <QByteArray>
#include <QMainWindow>
#include <QString>

class QAction;
class QPlainTextEdit;
class QStackedWidget;
class QTextEdit;

namespace flowloom::markuploom {

// The editor of one exchange file: a rich-text view with an HTML source view
// for a mail body in HTML, or a plain editor for a plain-text body. Closing
// the window writes the text back into the file.
class EditorWindow : public QMainWindow {
    Q_OBJECT
public:
    explicit EditorWindow(const ToolOptions& options, QWidget* parent = nullptr);

    // Reads the file; a missing file is an empty text. False (with the reason
    // in `error`) when it exists but cannot be read.
    bool Load(QString& error);
    // Writes the text back: an HTML text nobody changed byte for byte as it
    // came, anything else with CR LF line ends.
    bool Save(QString& error);

    // Commands of the caller on standard input: "raise" and "close".
    void RunCommand(const QString& command);

    // The title the caller waits for.
    static QString TitleFor(bool plainText);

    bool SaveFailed() const noexcept { return saveFailed_; }

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void BuildMenus();
    void BuildFormatBar();
    void ShowText();
    // Takes a change made in the visible view into text_; whether there was one.
    bool TakeEdits();
    void SetSourceShown(bool shown);
    void ToggleFormat(QAction* action);
    void MakeList(bool numbered);
    void InsertLink();
    void UpdateFormatButtons();

    const ToolOptions options_;
    QByteArray original_;  // the file as it came
    QString text_;         // the text as of the last change taken in
    bool edited_ = false;
    bool announced_ = false;
    bool saveFailed_ = false;

    QStackedWidget* views_ = nullptr;
    QTextEdit* rich_ = nullptr;          // HTML mode
    QPlainTextEdit* source_ = nullptr;   // HTML source, or the plain text in plain mode
    QAction* sourceAction_ = nullptr;
    QAction* boldAction_ = nullptr;
    QAction* italicAction_ = nullptr;
    QAction* underlineAction_ = nullptr;
    QList<QAction*> formatActions_;
};

}  // namespace flowloom::markuploom
