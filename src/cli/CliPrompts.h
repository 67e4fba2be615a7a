#pragma once

#include "support/Prompts.h"

#include <ostream>

namespace flowloom::cli {

// Prompts of the command line: every message box becomes one line
// "message: <text>" on stderr and every reported error one line
// "error <number>: <description>"; questions take their default answer, the
// text window writes to stdout.
class CliPrompts : public Prompts {
public:
    CliPrompts(std::ostream& out, std::ostream& err) : out_(out), err_(err) {}

    int MsgBox(const std::string& prompt, int style, const std::string& title, const std::string& helpFile,
               std::int32_t helpContext) override;
    std::optional<std::string> InputBox(const std::string& prompt, const std::string& title,
                                        const std::string& defaultText) override;
    bool ShowText(const std::string& text) override;
    bool OpenUrl(const std::string& url) override;
    int ShowError(const ErrorBox& box) override;

    int MessageCount() const noexcept { return messages_; }
    int ErrorCount() const noexcept { return errors_; }

private:
    std::ostream& out_;
    std::ostream& err_;
    int messages_ = 0;
    int errors_ = 0;
};

// A text on one line: CR LF, CR and LF each become the two characters "\n".
std::string OneLine(const std::string& text);

}  // namespace flowloom::cli
