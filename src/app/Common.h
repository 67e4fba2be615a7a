#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// Small helpers shared across the program (modCommon, basGlobalVars,
// mDirTemporary).
namespace flowloom {

// "OnErrorNotifyUser" gives "On Error Notify User", "SMTPServer" "SMTP Server".
std::string SpacedName(std::string_view identifier);

// Whether the 1-based position lies inside double quotes (else single quotes):
// an odd number of quotes up to it and at least one from it on.
bool IsInsideQuotes(std::string_view text, long position);

// The upper bound of the text split at the separator, or 0 for an empty text.
long CountOccurrences(std::string_view text, std::string_view separator);

// Strips repeats of `chars` from the start (mode 0), the end (mode 2) or both
// (mode 1). A text made only of repeats comes back unchanged.
std::string TrimChars(std::string_view text, std::string_view chars, int mode);

// Trims blanks and ensures one closing backslash.
std::string AddBackslash(std::string_view path);

// The text's conversion to a truth value; false when it does not convert.
bool SafeBool(std::string_view text);

// The whole file as bytes; throws VbError when it cannot be read.
std::string ReadFileText(const std::string& path);
// Replaces the file with the text followed by a line end, as the host's
// Print statement writes it; throws VbError when it cannot be written.
void WriteFileText(const std::string& path, std::string_view text);

// Both "<html" and "</html>" appear, without regard to case.
bool IsHtmlText(std::string_view text);

// The system's temporary folder; empty when there is none.
std::string GetTemporaryFolder();

// "Microsoft Word", "Microsoft Excel", "HTML", "Text", in this order.
const std::vector<std::string>& GetInvokedApplications();
// ".doc", ".xls", ".htm", ".txt" for the four names (compared exactly), else "".
std::string InvokedApplicationExtension(std::string_view application);

// The executable's name with ".chm", and that file in the program's folder.
std::string HelpFileName();
std::string HelpFilePath();

// Opens a path or an address with the desktop's handler.
bool ShellOpen(const std::string& target);

}  // namespace flowloom
