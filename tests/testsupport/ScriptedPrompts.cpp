#include "ScriptedPrompts.h"

namespace flowloom::test {

int ScriptedPrompts::MsgBox(const std::string& prompt, int style, const std::string& title,
                            const std::string&, std::int32_t) {
    boxes.push_back({prompt, style, title});
    if (answers.empty()) return msgbox::DefaultAnswer(style);
    int answer = answers.front();
    answers.pop_front();
    return answer;
}

std::optional<std::string> ScriptedPrompts::InputBox(const std::string&, const std::string&,
                                                     const std::string& defaultText) {
    if (inputs.empty()) return defaultText;
    auto answer = inputs.front();
    inputs.pop_front();
    return answer;
}

bool ScriptedPrompts::ShowText(const std::string& text) {
    texts.push_back(text);
    return true;
}

bool ScriptedPrompts::OpenUrl(const std::string& url) {
    urls.push_back(url);
    return openUrlSucceeds;
}

int ScriptedPrompts::ShowError(const ErrorBox& box) {
    errors.push_back(box);
    return MsgBox(box.text, box.style, box.title, box.helpFile, box.helpContext);
}

}  // namespace flowloom::test
