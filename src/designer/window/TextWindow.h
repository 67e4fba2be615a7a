#pragma once

#include <QWidget>

class QPlainTextEdit;

namespace flowloom::designer::window {

// A read-only window for reports and generated code: the text in a
// monospace font, a Save... button to keep it in a file and a Close button.
// It does not block the designer; it deletes itself when closed.
class TextWindow : public QWidget {
    Q_OBJECT
public:
    explicit TextWindow(const QString& text, QWidget* parent = nullptr);

    QString Text() const;
    // Writes the text to a file; false (with a message) when it fails.
    bool SaveTo(const QString& fileName);

private:
    void SaveAs();

    QPlainTextEdit* view_;
    QString raw_;  // as given, line ends and all, for saving
};

}  // namespace flowloom::designer::window
