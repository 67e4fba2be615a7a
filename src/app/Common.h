#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// Small helpers shared across the program (modCommon, basGlobalVars,
// mDirTemporary).
namespace flowloom {

// A label from an identifier: "OnErrorNotifyUser" gives "On Error Notify
// User", "SMTPServer" "SMTP Server". The first and the last character stay as
// they are; a blank goes before each character in between that equals its
// upper case (digits count) when its next or its previous one does not.
std::string SpacedName(std::string_view identifier);

// Whether the 1-based byte position lies inside double quotes (else single
// quotes): an odd number of quotes up to and including it, and at least one
// from it on. Positions below 1 are outside.
bool IsInsideQuotes(std::string_view text, long position);

// The upper bound of the text split at the separator, or 0 for an empty text.
long CountOccurrences(std::string_view text, std::string_view separator);

// Strips repeats of `chars` from the start (mode 0), the end (mode 2) or both
// (mode 1). The start goes only when the first other character comes before
// the last character, the end only when some other character is left; so a
// text made only of repeats, such as two double quotes, comes back unchanged.
std::string TrimChars(std::string_view text, std::string_view chars, int mode);

// Trims blanks and ensures one closing backslash.
std::string AddBackslash(std::string_view path);

// The text's conversion to a truth value; false when it does not convert.
bool SafeBool(std::string_view text);

// The whole file as bytes; throws VbError when it cannot be read (53 for a
// missing file, 75 for a folder or a failed read).
std::string ReadFileText(const std::string& path);
// Replaces the file with the text followed by a line end, as the host's
// Print statement writes it. Throws VbError when it cannot be written (76 for
// a missing folder, 75 when the file cannot be opened, 61 when writing fails).
void WriteFileText(const std::string& path, std::string_view text);

// Both "<html" and "</html>" appear, without regard to case.
bool IsHtmlText(std::string_view text);

// The system's temporary folder; empty when there is none.
std::string GetTemporaryFolder();

// "Microsoft Word", "Microsoft Excel", "HTML", "Text", in this order.
const std::vector<std::string>& GetInvokedApplications();
// ".doc", ".xls", ".htm", ".txt" for the four names (compared exactly), else "".
std::string InvokedApplicationExtension(std::string_view application);

// The executable's file name with ".chm", and that file in the program's folder.
std::string HelpFileName();
std::string HelpFilePath();

// Opens a path or an address with the desktop's handler; true on success.
bool ShellOpen(const std::string& target);

}  // namespace flowloom
