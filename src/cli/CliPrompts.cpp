#include "cli/CliPrompts.h"

namespace flowloom::cli {

std::string OneLine(const std::string& text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r') {
            if (i + 1 < text.size() && text[i + 1] == '\n') ++i;
            out += "\\n";
        } else if (text[i] == '\n') {
            out += "\\n";
        } else {
            out += text[i];
        }
    }
    return out;
}

int CliPrompts::MsgBox(const std::string& prompt, int style, const std::string&, const std::string&, std::int32_t) {
    ++messages_;
    err_ << "message: " << OneLine(prompt) << '\n';
    return msgbox::DefaultAnswer(style);
}

std::optional<std::string> CliPrompts::InputBox(const std::string&, const std::string&, const std::string&) {
    return std::nullopt;
}

bool CliPrompts::ShowText(const std::string& text) {
    out_ << text;
    return true;
}

bool CliPrompts::OpenUrl(const std::string&) { return false; }

int CliPrompts::ShowError(const ErrorBox& box) {
    ++errors_;
    err_ << "error " << box.number << ": " << OneLine(box.description) << '\n';
    // Never offer a report or a retry from the command line.
    const int buttons = msgbox::Buttons(box.style);
    if (buttons == msgbox::YesNo || buttons == msgbox::YesNoCancel) return msgbox::No;
    if (buttons == msgbox::RetryCancel) return msgbox::Cancel;
    return msgbox::OK;
}

}  // namespace flowloom::cli
