// Queries, names and folder creation of CFSO; the operations of a file
// manager are in CFSOOperations.cpp.
#include "support/CFSO.h"

#include "support/ReportError.h"
#include "support/FileErrors.h"
#include "support/FileHelpers.h"
#include "support/PathText.h"

#include <filesystem>

namespace flowloom {

namespace fs = std::filesystem;

namespace {

// The name with every character of `set` taken out.
std::string Filter(const std::string& name, const std::string& set) {
    std::string out;
    for (char c : name)
        if (set.find(c) == std::string::npos) out += c;
    return out;
}

}  // namespace

bool CFSO::FileExists(const std::string& path) const {
    std::error_code ec;
    return !path.empty() && fs::is_regular_file(path, ec);
}

bool CFSO::FolderExists(const std::string& path) const {
    std::error_code ec;
    return !path.empty() && fs::is_directory(path, ec);
}

bool CFSO::FolderIsEmpty(const std::string& path) const {
    std::error_code ec;
    for (const auto& entry : fs::directory_iterator(path, ec))
        if (entry.is_regular_file(ec)) return false;
    return true;
}

std::string CFSO::GetExtensionName(const std::string& path) const { return pathtext::GetExtensionName(path); }
std::string CFSO::GetBaseName(const std::string& path) const { return pathtext::GetBaseName(path); }

std::string CFSO::MakeValidBaseName(const std::string& name) const {
    std::string illegal = "\\/*?<>|:\"";
    for (char c = 0; c < 32; ++c) illegal += c;
    return Filter(name, illegal);
}

// Executables here carry no version resource.
std::string CFSO::GetFileVersion(const std::string&) const { return {}; }

std::string CFSO::GetParentFolderName(const std::string& path) const { return pathtext::GetParentFolderName(path); }

void CFSO::CreateFolder(const std::string& folder) {
    Guarded("CFSO", "CreateFolder", [&] {
        std::error_code ec;
        if (fs::create_directory(folder, ec)) return;
        RaiseFileError(ec ? ec : std::make_error_code(std::errc::file_exists), true);
    });
}

bool CFSO::CreateNewFolder(const std::string& path, std::string& newName) {
    return GuardedOr("CFSO", "CreateNewFolder", false, [&] {
        if (!FolderExists(path)) RaiseStandardError(vberr::PathNotFound);
        std::string name = "New folder";
        for (int n = 2; FileOrFolderExists(pathtext::BuildPath(path, name)); ++n)
            name = "New folder (" + std::to_string(n) + ")";
        CreateFolder(pathtext::BuildPath(path, name));
        if (!FolderExists(pathtext::BuildPath(path, name))) return false;  // already reported
        newName = name;
        return true;
    });
}

bool CFSO::CreateFolders(const std::string& folderName) {
    try {
        const char sep = pathtext::SeparatorOf(folderName);
        const pathtext::FolderLevels split = pathtext::SplitFolderLevels(folderName);
        std::string running = split.root;
        for (const std::string& level : split.levels) {
            if (!running.empty() && !pathtext::IsSeparator(running.back())) running += sep;
            running += level;
            if (FolderExists(running)) continue;
            if (FileOrFolderExists(running)) return false;  // a file stands in the way
            std::error_code ec;
            if (!fs::create_directory(running, ec)) return false;
        }
        return true;
    } catch (...) {
        return false;
    }
}

std::string CFSO::ObjectName(const std::string& fullName, bool) const { return pathtext::GetFileName(fullName); }

std::string CFSO::BuildPath(const std::string& path, const std::string& name) const {
    return pathtext::BuildPath(path, name);
}

std::string CFSO::FilePath(const std::string& fullPath, bool addSlash) const {
    std::string folder;
    if (FileExists(fullPath)) {
        folder = pathtext::GetParentFolderName(fullPath);
    } else {
        const std::size_t last = fullPath.find_last_of("/\\");
        if (last != std::string::npos) folder = fullPath.substr(0, last + (last == 0 ? 1 : 0));
    }
    if (addSlash && !folder.empty() && !pathtext::IsSeparator(folder.back())) folder += pathtext::SeparatorOf(fullPath);
    return folder;
}

std::string CFSO::FileName(const std::string& fullPath) const { return pathtext::GetFileName(fullPath); }
std::string CFSO::GetDriveName(const std::string& path) const { return pathtext::GetDriveName(path); }

}  // namespace flowloom
