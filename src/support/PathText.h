#pragma once

#include <string>
#include <string_view>
#include <vector>

// Path texts of either platform: the program's own paths use '/', the
// processes file holds Windows paths with '\' for the run-time. Both count
// as separators; joining uses the style the path already has.
namespace flowloom::pathtext {

bool IsSeparator(char c);
// '\' for a path that holds a backslash, else '/'.
char SeparatorOf(std::string_view path);

std::string BuildPath(std::string_view path, std::string_view name);
std::string GetParentFolderName(std::string_view path);
std::string GetFileName(std::string_view path);
std::string GetBaseName(std::string_view path);
std::string GetExtensionName(std::string_view path);
// "C:" for a drive path, "\\server\share" for a network path, else "".
std::string GetDriveName(std::string_view path);

// A folder path split into the part that is never created (a network share
// "\\server\share", a drive "C:", the file system's root) and the levels
// below it, empty components left out.
struct FolderLevels {
    std::string root;
    std::vector<std::string> levels;
};
FolderLevels SplitFolderLevels(std::string_view path);

}  // namespace flowloom::pathtext
