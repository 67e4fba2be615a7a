#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace flowloom {
class Processes;
}

namespace flowloom::editor {

// The window that starts the mail-body tool: it gives the open file (for the
// tools folder beside the first database), is disabled while the tool runs,
// and watches the tool until it ends.
class HtmlEditorHost {
public:
    virtual ~HtmlEditorHost() = default;
    virtual std::shared_ptr<Processes> ToolProcesses() const = 0;
    virtual void SetEnabled(bool enabled) = 0;
    // 100 while a tool is watched, 0 when none is.
    virtual void SetTimerInterval(int milliseconds) = 0;
};

// A handle to a tool's window; 0 for none.
using ToolWindow = std::int64_t;

// Writes `text` into `file` (named in the temporary folder when empty, and
// handed back), marking line ends for the tool when `plainText`, and starts
// the tool on it; the tool's window, or 0 after a failure, which is reported
// under "mHTMLEditor", "OpenHtmlEditor".
ToolWindow OpenHtmlEditor(HtmlEditorHost& form, std::string& text, std::string& file, bool plainText,
                          const std::string& arguments, bool noConvert);
// Finds the tool beside the program or in the tools folder, starts it with
// the switches and waits for its window (error 30065 after the time-out);
// on success the form is disabled and watches the tool.
ToolWindow OpenHtmlEditorOnTop(const std::string& commandArguments, HtmlEditorHost& form);
// The folder of the first database's Location with "tools" appended
// (Windows data: joined with a backslash); empty without a database.
std::string GetToolsFolder(const Processes* processes);

// The name of a fresh exchange file in the temporary folder: "vlk", the
// last 9 characters of the present day number with ten decimals, ".htm".
std::string HtmlEditorTempFile();
// The three line-end replacements that mark a plain text's lines for the tool.
std::string MarkLineEnds(std::string text);
// The switches of the tool, in their order.
std::string ToolSwitches(const std::string& file, bool plainText, const std::string& arguments, bool noConvert);
// The text the tool left in `file`: a closing CR LF dropped, then blanks
// trimmed. Empty when the file cannot be read.
std::string ReadToolResult(const std::string& file);

}  // namespace flowloom::editor
