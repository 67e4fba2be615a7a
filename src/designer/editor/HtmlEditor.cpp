// The exchange file between the designer and the mail-body tool.
#include "designer/editor/HtmlEditor.h"

#include "app/Common.h"
#include "support/FileHelpers.h"
#include "support/ReportError.h"
#include "support/VbError.h"
#include "support/VbStrings.h"

#include <filesystem>
#include <system_error>

namespace flowloom::editor {

namespace {

constexpr std::int32_t kPathFileAccessError = 75;

// Removes a file left over under the same name, so that the tool never sees
// an older text.
void RemoveExisting(const std::string& file) {
    if (!FileExists(file)) return;
    std::error_code ec;
    if (!std::filesystem::remove(file, ec) || ec) RaiseStandardError(kPathFileAccessError);
}

}  // namespace

std::string HtmlEditorTempFile() {
    const std::string name = "vlk" + vb::Right(vb::SerialNowText(), 9) + ".htm";
    const std::string folder = GetTemporaryFolder();
    return folder.empty() ? name : BuildPath(folder, name);
}

std::string MarkLineEnds(std::string text) {
    // Each replacement works on the result of the one before: a CR LF pair
    // thus carries three marks, which the tool reads back as one line end.
    text = vb::Replace(text, "\r\n", "\r\n<P>");
    text = vb::Replace(text, "\r", "\r<P>");
    return vb::Replace(text, "\n", "\n<P>");
}

std::string ToolSwitches(const std::string& file, bool plainText, const std::string& arguments, bool noConvert) {
    std::string switches;
    if (plainText) switches += " /p";
    switches += " /file \"" + file + "\"";
    if (!arguments.empty()) switches += " /args \"" + arguments + "\"";
    if (noConvert) switches += " /noconvert";
    return switches;
}

ToolWindow OpenHtmlEditor(HtmlEditorHost& form, std::string& text, std::string& file, bool plainText,
                          const std::string& arguments, bool noConvert) {
    return GuardedOr<ToolWindow>("mHTMLEditor", "OpenHtmlEditor", 0, [&] {
        if (file.empty()) file = HtmlEditorTempFile();
        RemoveExisting(file);
        if (plainText) text = MarkLineEnds(std::move(text));
        WriteFileText(file, text);
        return OpenHtmlEditorOnTop(ToolSwitches(file, plainText, arguments, noConvert), form);
    });
}

std::string ReadToolResult(const std::string& file) {
    try {
        return vb::Trim(TrimChars(ReadFileText(file), "\r\n", 1));
    } catch (const VbError&) {
        return {};
    }
}

}  // namespace flowloom::editor
