#include "support/FileHelpers.h"

#include "support/CFSO.h"

#include <filesystem>

namespace flowloom {

CFSO& SharedFSO() {
    static CFSO fso;
    return fso;
}

bool FileExists(const std::string& path) { return SharedFSO().FileExists(path); }
bool FolderExists(const std::string& path) { return SharedFSO().FolderExists(path); }

bool FileOrFolderExists(const std::string& path) {
    std::error_code ec;
    return !path.empty() && std::filesystem::exists(std::filesystem::symlink_status(path, ec));
}

std::string BuildPath(const std::string& path, const std::string& name) { return SharedFSO().BuildPath(path, name); }
std::string GetParentFolderName(const std::string& path) { return SharedFSO().GetParentFolderName(path); }
std::string FilePath(const std::string& fullPath, bool addSlash) { return SharedFSO().FilePath(fullPath, addSlash); }

}  // namespace flowloom
