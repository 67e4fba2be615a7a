#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace flowloom {

// Message box styles and answers, with the host's numbers, since the texts
// and tests speak of them ("style 292", "style 16400").
namespace msgbox {
inline constexpr int OKOnly = 0;
inline constexpr int OKCancel = 1;
inline constexpr int AbortRetryIgnore = 2;
inline constexpr int YesNoCancel = 3;
inline constexpr int YesNo = 4;
inline constexpr int RetryCancel = 5;
inline constexpr int Critical = 16;
inline constexpr int Question = 32;
inline constexpr int Exclamation = 48;
inline constexpr int Information = 64;
inline constexpr int DefaultButton2 = 256;
inline constexpr int DefaultButton3 = 512;
inline constexpr int HelpButton = 16384;

inline constexpr int OK = 1;
inline constexpr int Cancel = 2;
inline constexpr int Abort = 3;
inline constexpr int Retry = 4;
inline constexpr int Ignore = 5;
inline constexpr int Yes = 6;
inline constexpr int No = 7;

inline int Buttons(int style) { return style & 7; }
inline int Icon(int style) { return style & 0x70; }
// The answer of the default button of a style, for prompts that cannot ask.
int DefaultAnswer(int style);
}  // namespace msgbox

// A trapped error as the error handler shows it.
struct ErrorBox {
    std::int32_t number = 0;
    std::string description;
    std::string text;   // the whole text of the box
    std::string title;
    int style = msgbox::Critical;
    std::string helpFile;
    std::int32_t helpContext = 0;
    std::string module;     // where the error was trapped
    std::string procedure;
};

// A file dialog: open or save, with its title, default extension, initial
// folder and filter ("XML files (*.xml)|*.xml|All Files (*.*)|*.*").
struct FileDialogRequest {
    bool save = false;
    std::string title;
    std::string defaultExtension;
    std::string folder;
    std::string filter;
    std::string fileName;
};

// Everything the core asks of the person in front of it: message boxes, input
// boxes, the read-only text window, and opening a link. The designer answers
// with dialogs, the command line on stderr/stdout, tests with a script. No
// core logic talks to a screen in any other way.
class Prompts {
public:
    virtual ~Prompts() = default;

    // Returns one of msgbox::OK ... msgbox::No.
    virtual int MsgBox(const std::string& prompt, int style, const std::string& title,
                       const std::string& helpFile = {}, std::int32_t helpContext = 0) = 0;
    // nullopt when the user cancels.
    virtual std::optional<std::string> InputBox(const std::string& prompt, const std::string& title,
                                                const std::string& defaultText) = 0;
    // The text window (reports, generated code); true when it was shown.
    virtual bool ShowText(const std::string& text) = 0;
    // Opens a link or a file with the desktop's handler; true on success.
    virtual bool OpenUrl(const std::string& url) = 0;
    // The file chosen in a file dialog; nullopt when it was cancelled.
    virtual std::optional<std::string> SelectFile(const FileDialogRequest&) { return std::nullopt; }
    // A box of the error handler. By default an ordinary message box.
    virtual int ShowError(const ErrorBox& box) {
        return MsgBox(box.text, box.style, box.title, box.helpFile, box.helpContext);
    }
};

// Answers without asking: the default button, no input, nothing shown. Used
// until a front end installs its own prompts.
class SilentPrompts : public Prompts {
public:
    int MsgBox(const std::string&, int style, const std::string&, const std::string&, std::int32_t) override {
        return msgbox::DefaultAnswer(style);
    }
    std::optional<std::string> InputBox(const std::string&, const std::string&, const std::string&) override {
        return std::nullopt;
    }
    bool ShowText(const std::string&) override { return false; }
    bool OpenUrl(const std::string&) override { return false; }
};

// The prompts in use. Never null: a SilentPrompts until one is installed.
Prompts& CurrentPrompts();
// Installs `prompts` (not owned; nullptr restores the silent default) and
// returns the previous one.
Prompts* SetCurrentPrompts(Prompts* prompts);

// Installs prompts for the lifetime of a scope.
class ScopedPrompts {
public:
    explicit ScopedPrompts(Prompts& prompts) : previous_(SetCurrentPrompts(&prompts)) {}
    ~ScopedPrompts() { SetCurrentPrompts(previous_); }
    ScopedPrompts(const ScopedPrompts&) = delete;
    ScopedPrompts& operator=(const ScopedPrompts&) = delete;

private:
    Prompts* previous_;
};

// MsgBox of the current prompts, with the product's title when none is given.
int MsgBox(const std::string& prompt, int style = msgbox::OKOnly, const std::string& title = {});

}  // namespace flowloom
