#pragma once

#include <string>

namespace flowloom {

class CFSO;

// modCFSO: thin free functions in front of the one shared CFSO.
CFSO& SharedFSO();

bool FileExists(const std::string& path);
bool FolderExists(const std::string& path);
// Anything of that name: a file, a folder, or a link (even a broken one).
bool FileOrFolderExists(const std::string& path);
// The folder and the name joined with one separator, in the style the folder
// already uses ('\' when it holds a backslash, else '/').
std::string BuildPath(const std::string& path, const std::string& name);
// The folder of a path, for '/' and '\' alike: "C:\data\db.mdb" gives "C:\data".
std::string GetParentFolderName(const std::string& path);
// The folder of a full name, with a closing separator when addSlash.
std::string FilePath(const std::string& fullPath, bool addSlash);

}  // namespace flowloom
