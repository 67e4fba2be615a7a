// Finding the mail-body tool, starting it and waiting for its window.
#include "designer/editor/HtmlEditor.h"

#include "app/ErrorNumbers.h"
#include "model/Database.h"
#include "model/Databases.h"
#include "model/Processes.h"
#include "support/AppPaths.h"
#include "support/FileHelpers.h"
#include "support/Prompts.h"
#include "support/ReportError.h"
#include "support/TextCompare.h"
#include "support/ToolLauncher.h"
#include "support/VbError.h"

namespace flowloom::editor {

namespace {

// The tool's program; the boxes call it by the name it has on Windows.
constexpr const char* kToolProgram = "markuploom";
constexpr const char* kToolDisplayName = "Markuploom.exe";

constexpr std::int32_t kStartTimeout = 30065;
// The wait: at most this many rounds of this many milliseconds.
constexpr int kWaitRounds = 201;
constexpr int kWaitRoundMilliseconds = 50;
constexpr int kWatchInterval = 100;

// The tool beside the program, else in the tools folder; empty when neither has it.
std::string FindTool(const HtmlEditorHost& form) {
    const std::string besideProgram = (ProgramFolder() / kToolProgram).string();
    if (FileExists(besideProgram)) return besideProgram;
    const auto processes = form.ToolProcesses();
    const std::string folder = GetToolsFolder(processes.get());
    if (folder.empty()) return {};
    const std::string inTools = BuildPath(folder, kToolProgram);
    return FileExists(inTools) ? inTools : std::string();
}

bool IsToolTitle(const std::string& title) {
    const std::string lower = ToLower(title);
    return lower == "html editor" || lower == "text editor";
}

// Whether the started tool showed its window in time.
bool WaitForToolWindow(ToolLauncher& launcher) {
    for (int round = 0; round < kWaitRounds; ++round) {
        const auto title = launcher.WaitForWindow(kWaitRoundMilliseconds);
        if (title && IsToolTitle(*title)) return true;
    }
    return false;
}

// Handles tell one started tool from the next; the launcher knows which runs.
ToolWindow NextToolWindow() {
    static ToolWindow last = 0;
    return ++last;
}

}  // namespace

std::string GetToolsFolder(const Processes* processes) {
    if (!processes) return {};
    try {
        const auto databases = processes->Databases();
        if (!databases || databases->Count() == 0) return {};
        const auto first = databases->Item(1);
        if (!first || !FileExists(first->Location)) return {};
        return FilePath(first->Location, true) + "tools";
    } catch (...) {
        return {};
    }
}

ToolWindow OpenHtmlEditorOnTop(const std::string& commandArguments, HtmlEditorHost& form) {
    return GuardedOr<ToolWindow>("mHTMLEditor", "OpenHtmlEditorOnTop", 0, [&]() -> ToolWindow {
        const std::string tool = FindTool(form);
        if (tool.empty()) {
            MsgBox(std::string(kToolDisplayName) + " not found!", msgbox::Exclamation);
            return 0;
        }
        ToolLauncher& launcher = CurrentToolLauncher();
        if (!launcher.Start(tool, commandArguments)) RaiseStandardError(vberr::FileNotFound);
        if (!WaitForToolWindow(launcher)) errnum::Raise(kStartTimeout);
        form.SetEnabled(false);
        form.SetTimerInterval(kWatchInterval);
        return NextToolWindow();
    });
}

}  // namespace flowloom::editor
