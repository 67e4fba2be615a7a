#include "cli/SessionPrompts.h"

#include "cli/CliPrompts.h"

#include <algorithm>
#include <array>
#include <utility>

namespace flowloom::cli {

namespace {

constexpr std::array<std::pair<std::string_view, int>, 7> kAnswers = {{
    {"ok", msgbox::OK},
    {"cancel", msgbox::Cancel},
    {"abort", msgbox::Abort},
    {"retry", msgbox::Retry},
    {"ignore", msgbox::Ignore},
    {"yes", msgbox::Yes},
    {"no", msgbox::No},
}};

// Whether a box of this style has a button that gives the answer.
bool HasButton(int style, int answer) {
    switch (msgbox::Buttons(style)) {
    case msgbox::OKCancel: return answer == msgbox::OK || answer == msgbox::Cancel;
    case msgbox::AbortRetryIgnore:
        return answer == msgbox::Abort || answer == msgbox::Retry || answer == msgbox::Ignore;
    case msgbox::YesNoCancel: return answer == msgbox::Yes || answer == msgbox::No || answer == msgbox::Cancel;
    case msgbox::YesNo: return answer == msgbox::Yes || answer == msgbox::No;
    case msgbox::RetryCancel: return answer == msgbox::Retry || answer == msgbox::Cancel;
    default: return answer == msgbox::OK;
    }
}

// The text window shows the text with its own line breaks.
std::string WithLineFeeds(const std::string& text) {
    std::string out;
    out.reserve(text.size() + 1);
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;
        out += text[i];
    }
    if (!out.empty() && out.back() != '\n') out += '\n';
    return out;
}

}  // namespace

std::optional<int> AnswerFromWord(std::string_view word) {
    const auto it = std::find_if(kAnswers.begin(), kAnswers.end(), [&](const auto& a) { return a.first == word; });
    if (it == kAnswers.end()) return std::nullopt;
    return it->second;
}

std::string_view AnswerWord(int answer) {
    const auto it = std::find_if(kAnswers.begin(), kAnswers.end(), [&](const auto& a) { return a.second == answer; });
    return it == kAnswers.end() ? std::string_view{} : it->first;
}

void SessionPrompts::AnswerLine(std::string_view what) {
    out_ << "answer:";
    if (!what.empty()) out_ << ' ' << what;
    out_ << '\n';
}

int SessionPrompts::MsgBox(const std::string& prompt, int style, const std::string&, const std::string&,
                           std::int32_t) {
    out_ << "message: " << OneLine(prompt) << '\n';
    if (msgbox::Buttons(style) == msgbox::OKOnly) return msgbox::OK;
    int answer = msgbox::DefaultAnswer(style);
    if (!answers_.empty()) {
        // A word the box has no button for is spent all the same; the
        // default button answers, and the transcript shows which.
        if (HasButton(style, answers_.front())) answer = answers_.front();
        answers_.pop_front();
    }
    AnswerLine(AnswerWord(answer));
    return answer;
}

std::optional<std::string> SessionPrompts::InputBox(const std::string& prompt, const std::string&,
                                                    const std::string&) {
    out_ << "input: " << OneLine(prompt) << '\n';
    std::string text;
    if (!inputs_.empty()) {
        text = std::move(inputs_.front());
        inputs_.pop_front();
    }
    AnswerLine(OneLine(text));
    return text;
}

std::optional<std::string> SessionPrompts::SelectFile(const FileDialogRequest& request) {
    out_ << "dialog: " << OneLine(request.title) << '\n';
    std::optional<std::string> path;
    if (!files_.empty()) {
        path = std::move(files_.front());
        files_.pop_front();
    }
    AnswerLine(path ? OneLine(*path) : "cancel");
    return path;
}

bool SessionPrompts::ShowText(const std::string& text) {
    out_ << "--- text window ---\n" << WithLineFeeds(text) << "--- end ---\n";
    return true;
}

bool SessionPrompts::OpenUrl(const std::string& url) {
    out_ << "open: " << OneLine(url) << '\n';
    return true;
}

int SessionPrompts::ShowError(const ErrorBox& box) {
    out_ << "error " << box.number << " (" << box.module << '.' << box.procedure << "): " << OneLine(box.description)
         << '\n';
    // An error box takes no queued answer: it is answered with the choice
    // that does nothing further, so that a script never sends a report.
    switch (msgbox::Buttons(box.style)) {
    case msgbox::YesNo:
    case msgbox::YesNoCancel: return msgbox::No;
    case msgbox::RetryCancel: return msgbox::Cancel;
    default: return msgbox::DefaultAnswer(box.style);
    }
}

}  // namespace flowloom::cli
