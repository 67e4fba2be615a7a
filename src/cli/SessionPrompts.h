#pragma once

#include "support/Prompts.h"

#include <deque>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

namespace flowloom::cli {

// The prompts of a designer session: every box, input box, file dialog,
// error and text window becomes transcript lines on the session's output.
// Answers come from queues that the script fills before the action that
// needs them, one queue per kind; an empty queue gives the default button,
// the empty text or a cancelled dialog.
class SessionPrompts : public Prompts {
public:
    explicit SessionPrompts(std::ostream& out) : out_(out) {}

    void QueueAnswer(int answer) { answers_.push_back(answer); }
    void QueueInput(std::string text) { inputs_.push_back(std::move(text)); }
    // nullopt cancels the dialog.
    void QueueFile(std::optional<std::string> path) { files_.push_back(std::move(path)); }

    int MsgBox(const std::string& prompt, int style, const std::string& title, const std::string& helpFile,
               std::int32_t helpContext) override;
    std::optional<std::string> InputBox(const std::string& prompt, const std::string& title,
                                        const std::string& defaultText) override;
    bool ShowText(const std::string& text) override;
    bool OpenUrl(const std::string& url) override;
    std::optional<std::string> SelectFile(const FileDialogRequest& request) override;
    int ShowError(const ErrorBox& box) override;

private:
    void AnswerLine(std::string_view what);

    std::ostream& out_;
    std::deque<int> answers_;
    std::deque<std::string> inputs_;
    std::deque<std::optional<std::string>> files_;
};

// The answer a script word names ("ok", "cancel", "yes", "no", "abort",
// "retry", "ignore"); nullopt for any other word.
std::optional<int> AnswerFromWord(std::string_view word);
// The word of an answer; "" for a number that is no answer.
std::string_view AnswerWord(int answer);

}  // namespace flowloom::cli
