#include "support/Prompts.h"

#include "support/AppPaths.h"

namespace flowloom {

int msgbox::DefaultAnswer(int style) {
    const bool second = (style & DefaultButton2) != 0;
    const bool third = (style & DefaultButton3) != 0;
    switch (Buttons(style)) {
    case OKCancel: return second ? Cancel : OK;
    case AbortRetryIgnore: return third ? Ignore : second ? Retry : Abort;
    case YesNoCancel: return third ? Cancel : second ? No : Yes;
    case YesNo: return second ? No : Yes;
    case RetryCancel: return second ? Cancel : Retry;
    default: return OK;
    }
}

namespace {
SilentPrompts& Silent() {
    static SilentPrompts silent;
    return silent;
}
Prompts* g_current = nullptr;
}  // namespace

Prompts& CurrentPrompts() { return g_current ? *g_current : Silent(); }

Prompts* SetCurrentPrompts(Prompts* prompts) {
    Prompts* previous = g_current;
    g_current = prompts;
    return previous;
}

int MsgBox(const std::string& prompt, int style, const std::string& title) {
    return CurrentPrompts().MsgBox(prompt, style, title.empty() ? AppTitle() : title);
}

}  // namespace flowloom
