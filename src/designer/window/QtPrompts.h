#pragma once

#include "support/Prompts.h"

#include <QPointer>
#include <QWidget>

namespace flowloom::designer::window {

// The designer's prompts as Qt dialogs: message boxes with the buttons, icon
// and default button of the style, input boxes, file dialogs, the text
// window and the desktop's handler for links.
class QtPrompts : public Prompts {
public:
    // Dialogs open over `parent` (the main window, once there is one).
    void SetParent(QWidget* parent) { parent_ = parent; }

    int MsgBox(const std::string& prompt, int style, const std::string& title, const std::string& helpFile,
               std::int32_t helpContext) override;
    std::optional<std::string> InputBox(const std::string& prompt, const std::string& title,
                                        const std::string& defaultText) override;
    bool ShowText(const std::string& text) override;
    bool OpenUrl(const std::string& url) override;
    std::optional<std::string> SelectFile(const FileDialogRequest& request) override;

private:
    QWidget* Parent() const;

    QPointer<QWidget> parent_;
};

}  // namespace flowloom::designer::window
