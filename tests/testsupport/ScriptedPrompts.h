#pragma once

#include "support/Prompts.h"

#include <deque>
#include <string>
#include <vector>

namespace flowloom::test {

// Prompts for tests: records every box and text, answers from a script (and
// with the default button when the script has run out).
class ScriptedPrompts : public Prompts {
public:
    struct Box {
        std::string prompt;
        int style = 0;
        std::string title;
    };

    ScriptedPrompts() : scope_(*this) {}

    int MsgBox(const std::string& prompt, int style, const std::string& title, const std::string&,
               std::int32_t) override;
    std::optional<std::string> InputBox(const std::string& prompt, const std::string& title,
                                        const std::string& defaultText) override;
    bool ShowText(const std::string& text) override;
    bool OpenUrl(const std::string& url) override;
    int ShowError(const ErrorBox& box) override;

    std::deque<int> answers;                       // for MsgBox and ShowError
    std::deque<std::optional<std::string>> inputs;  // for InputBox
    bool openUrlSucceeds = true;

    std::vector<Box> boxes;
    std::vector<ErrorBox> errors;
    std::vector<std::string> texts;
    std::vector<std::string> urls;

private:
    ScopedPrompts scope_;
};

}  // namespace flowloom::test
