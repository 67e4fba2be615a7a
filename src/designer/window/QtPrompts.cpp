#include "designer/window/QtPrompts.h"

#include "designer/HelpGuide.h"
#include "designer/window/DialogText.h"
#include "designer/window/TextWindow.h"
#include "support/AppPaths.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QUrl>

#include <utility>
#include <vector>

namespace flowloom::designer::window {

namespace {

QString Q(const std::string& text) { return QString::fromStdString(text); }

QMessageBox::Icon IconOf(int style) {
    switch (msgbox::Icon(style)) {
    case msgbox::Critical: return QMessageBox::Critical;
    case msgbox::Question: return QMessageBox::Question;
    case msgbox::Exclamation: return QMessageBox::Warning;
    case msgbox::Information: return QMessageBox::Information;
    default: return QMessageBox::NoIcon;
    }
}

// The buttons of a style in their order, each with the answer it gives.
std::vector<std::pair<QMessageBox::StandardButton, int>> ButtonsOf(int style) {
    using B = QMessageBox;
    switch (msgbox::Buttons(style)) {
    case msgbox::OKCancel: return {{B::Ok, msgbox::OK}, {B::Cancel, msgbox::Cancel}};
    case msgbox::AbortRetryIgnore: return {{B::Abort, msgbox::Abort}, {B::Retry, msgbox::Retry}, {B::Ignore, msgbox::Ignore}};
    case msgbox::YesNoCancel: return {{B::Yes, msgbox::Yes}, {B::No, msgbox::No}, {B::Cancel, msgbox::Cancel}};
    case msgbox::YesNo: return {{B::Yes, msgbox::Yes}, {B::No, msgbox::No}};
    case msgbox::RetryCancel: return {{B::Retry, msgbox::Retry}, {B::Cancel, msgbox::Cancel}};
    default: return {{B::Ok, msgbox::OK}};
    }
}

std::size_t DefaultIndex(int style) {
    if (style & msgbox::DefaultButton3) return 2;
    if (style & msgbox::DefaultButton2) return 1;
    return 0;
}

}  // namespace

QWidget* QtPrompts::Parent() const { return parent_ ? parent_.data() : QApplication::activeWindow(); }

int QtPrompts::MsgBox(const std::string& prompt, int style, const std::string& title, const std::string&,
                      std::int32_t helpContext) {
    QMessageBox box(IconOf(style), Q(title.empty() ? AppTitle() : title), Q(prompt), QMessageBox::NoButton, Parent());
    const auto buttons = ButtonsOf(style);
    std::vector<QPushButton*> added;
    for (const auto& [button, answer] : buttons) added.push_back(box.addButton(button));
    const std::size_t defaultIndex = DefaultIndex(style);
    box.setDefaultButton(added[defaultIndex < added.size() ? defaultIndex : 0]);
    QPushButton* help = (style & msgbox::HelpButton) ? box.addButton(QMessageBox::Help) : nullptr;

    for (;;) {
        box.exec();
        // Help shows the page and leaves the question open.
        if (help && box.clickedButton() == help) {
            OpenUrl(HelpPageUrl(helpContext));
            continue;
        }
        for (std::size_t i = 0; i < added.size(); ++i)
            if (box.clickedButton() == added[i]) return buttons[i].second;
        return msgbox::DefaultAnswer(style);
    }
}

std::optional<std::string> QtPrompts::InputBox(const std::string& prompt, const std::string& title,
                                               const std::string& defaultText) {
    bool ok = false;
    const QString text = QInputDialog::getText(Parent(), Q(title.empty() ? AppTitle() : title), Q(prompt),
                                               QLineEdit::Normal, Q(defaultText), &ok);
    if (!ok) return std::nullopt;
    return text.toStdString();
}

bool QtPrompts::ShowText(const std::string& text) {
    auto* window = new TextWindow(Q(text), Parent());  // deletes itself on close
    window->show();
    window->raise();
    window->activateWindow();
    return true;
}

bool QtPrompts::OpenUrl(const std::string& url) {
    if (url.empty()) return false;
    return QDesktopServices::openUrl(QUrl::fromUserInput(Q(url)));
}

std::optional<std::string> QtPrompts::SelectFile(const FileDialogRequest& request) {
    QFileDialog dialog(Parent(), Q(request.title), Q(request.folder));
    dialog.setAcceptMode(request.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(request.save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    if (!request.filter.empty()) dialog.setNameFilter(QtFileFilter(Q(request.filter)));
    if (!request.fileName.empty()) dialog.selectFile(Q(request.fileName));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    QString chosen = dialog.selectedFiles().front();
    if (request.save) chosen = WithDefaultExtension(chosen, Q(request.defaultExtension));
    return chosen.toStdString();
}

}  // namespace flowloom::designer::window
