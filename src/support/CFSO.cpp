#include "support/CFSO.h"

#include "app/ReportError.h"
#include "app/VbError.h"
#include "support/PathText.h"
#include "support/Prompts.h"
#include "support/Trash.h"

#include <filesystem>
#include <vector>

namespace flowloom {

namespace fs = std::filesystem;

namespace {

bool Exists(const std::string& path) {
    std::error_code ec;
    return !path.empty() && fs::exists(fs::symlink_status(path, ec));
}

bool IsFile(const std::string& path) {
    std::error_code ec;
    return !path.empty() && fs::is_regular_file(path, ec);
}

bool IsFolder(const std::string& path) {
    std::error_code ec;
    return !path.empty() && fs::is_directory(path, ec);
}

// The name with every character of `set` taken out.
std::string Filter(const std::string& name, const std::string& set) {
    std::string out;
    for (char c : name)
        if (set.find(c) == std::string::npos) out += c;
    return out;
}

// "Copy of NAME", then "Copy (2) of NAME", ... for a copy into the same folder.
std::string CopyName(const std::string& folder, const std::string& name) {
    const std::string pattern = "Copy () of";
    auto candidate = [&](const std::string& number) {
        const std::size_t mark = pattern.find(" ()");
        return pattern.substr(0, mark) + number + pattern.substr(mark + 3) + " " + name;
    };
    std::string result = candidate("");
    for (int n = 2; Exists(pathtext::BuildPath(folder, result)) && n <= 32767; ++n)
        result = candidate(" (" + std::to_string(n) + ")");
    return result;
}

bool IsInside(const std::string& target, const std::string& folder) {
    std::error_code ec;
    const auto t = fs::weakly_canonical(target, ec);
    const auto f = fs::weakly_canonical(folder, ec);
    auto ti = t.begin();
    for (auto fi = f.begin(); fi != f.end(); ++fi, ++ti)
        if (ti == t.end() || *ti != *fi) return false;
    return true;
}

}  // namespace

bool CFSO::FileExists(const std::string& path) const { return IsFile(path); }
bool CFSO::FolderExists(const std::string& path) const { return IsFolder(path); }

bool CFSO::FolderIsEmpty(const std::string& path) const {
    std::error_code ec;
    for (const auto& entry : fs::directory_iterator(path, ec))
        if (entry.is_regular_file()) return false;
    return true;
}

std::string CFSO::GetExtensionName(const std::string& path) const { return pathtext::GetExtensionName(path); }
std::string CFSO::GetBaseName(const std::string& path) const { return pathtext::GetBaseName(path); }

std::string CFSO::MakeValidBaseName(const std::string& name) const {
    std::string illegal = "\\/*?<>|:\"";
    for (char c = 0; c < 32; ++c) illegal += c;
    return Filter(name, illegal);
}

std::string CFSO::GetFileVersion(const std::string&) const { return {}; }  // no version resources here
std::string CFSO::GetParentFolderName(const std::string& path) const { return pathtext::GetParentFolderName(path); }

void CFSO::CreateFolder(const std::string& folder) {
    try {
        std::error_code ec;
        if (!fs::create_directory(folder, ec) || ec) RaiseStandardError(vberr::PathNotFound);
    } catch (...) {
        ReportPendingError("CFSO", "CreateFolder");
    }
}

bool CFSO::RenameFile(const std::string& oldFullName, const std::string& newName) {
    return Rename(Kind::File, oldFullName, newName, "RenameFile");
}
bool CFSO::RenameFolder(const std::string& oldFullName, const std::string& newName) {
    return Rename(Kind::Folder, oldFullName, newName, "RenameFolder");
}

bool CFSO::Rename(Kind, const std::string& oldFullName, const std::string& newName, const char* procedure) {
    try {
        const std::string target = pathtext::BuildPath(pathtext::GetParentFolderName(oldFullName), newName);
        if (newName == pathtext::GetFileName(oldFullName)) return true;
        if (Exists(target)) {
            MsgBox("Cannot rename '" + pathtext::GetFileName(oldFullName) +
                       "': A file or folder with the name you specified already exists. Specify a different name.",
                   msgbox::Exclamation);
            return false;
        }
        fs::rename(oldFullName, target);
        return true;
    } catch (...) {
        ReportPendingError("CFSO", procedure);
        return false;
    }
}

bool CFSO::MoveFile(const std::string& o, const std::string& t, std::string& n) {
    return Transfer(Kind::File, false, o, t, n, "MoveFile");
}
bool CFSO::CopyFile(const std::string& o, const std::string& t, std::string& n) {
    return Transfer(Kind::File, true, o, t, n, "CopyFile");
}
bool CFSO::MoveFolder(const std::string& o, const std::string& t, std::string& n) {
    return Transfer(Kind::Folder, false, o, t, n, "MoveFolder");
}
bool CFSO::CopyFolder(const std::string& o, const std::string& t, std::string& n) {
    return Transfer(Kind::Folder, true, o, t, n, "CopyFolder");
}

bool CFSO::Transfer(Kind kind, bool copy, const std::string& oldFullName, const std::string& targetPath,
                    std::string& newName, const char* procedure) {
    try {
        const std::string sourceFolder = pathtext::GetParentFolderName(oldFullName);
        const std::string folder = targetPath.empty() ? sourceFolder : targetPath;
        std::string name = newName.empty() ? pathtext::GetFileName(oldFullName) : newName;
        const bool sameFolder = IsFolder(folder) && IsFolder(sourceFolder) && fs::equivalent(folder, sourceFolder);
        if (copy && sameFolder) name = CopyName(folder, name);
        const std::string target = pathtext::BuildPath(folder, name);
        if (kind == Kind::Folder && !copy && IsInside(target, oldFullName)) {
            MsgBox("It is impssible.", msgbox::Exclamation);
            return false;
        }
        if (IsFile(target)) {
            MsgBox("The destination is an existing file.", msgbox::Exclamation);
            return false;
        }
        if (IsFolder(target)) {
            MsgBox("The destination is an existing folder.", msgbox::Exclamation);
            return false;
        }
        if (!copy) fs::rename(oldFullName, target);
        else if (kind == Kind::File) fs::copy_file(oldFullName, target);
        else fs::copy(oldFullName, target, fs::copy_options::recursive);
        newName = name;
        return true;
    } catch (...) {
        ReportPendingError("CFSO", procedure);
        return false;
    }
}

bool CFSO::DeleteFile(const std::string& path, bool recycle, bool ask, bool silent) {
    return Delete(Kind::File, path, recycle, ask, silent, "DeleteFile");
}
bool CFSO::DeleteFolder(const std::string& path, bool recycle, bool ask, bool silent) {
    return Delete(Kind::Folder, path, recycle, ask, silent, "DeleteFolder");
}

bool CFSO::Delete(Kind kind, const std::string& fullName, bool useRecycleBin, bool askConfirmation,
                  bool silentOnError, const char* procedure) {
    try {
        const std::string name = pathtext::GetFileName(fullName);
        if (askConfirmation) {
            const std::string question =
                kind == Kind::File ? "Are you sure you want to delete '" + name + "'?"
                                   : "Are you sure you want to remove the folder '" + name + "' and all its contents?";
            if (MsgBox(question, msgbox::YesNo | msgbox::Question) != msgbox::Yes) return false;
        }
        if (useRecycleBin) return RemoveToRecycleBin(fullName, silentOnError);
        if (kind == Kind::File) {
            if (!IsFile(fullName)) RaiseStandardError(vberr::FileNotFound);
            fs::remove(fullName);
        } else {
            if (!IsFolder(fullName)) RaiseStandardError(vberr::PathNotFound);
            fs::remove_all(fullName);
        }
        return true;
    } catch (...) {
        if (!silentOnError) ReportPendingError("CFSO", procedure);
        return false;
    }
}

std::string CFSO::ObjectName(const std::string& fullName, bool) const { return pathtext::GetFileName(fullName); }

bool CFSO::CreateNewFolder(const std::string& path, std::string& newName) {
    try {
        std::string name = "New folder";
        for (int n = 2; Exists(pathtext::BuildPath(path, name)); ++n) name = "New folder (" + std::to_string(n) + ")";
        fs::create_directory(pathtext::BuildPath(path, name));
        newName = name;
        return true;
    } catch (...) {
        ReportPendingError("CFSO", "CreateNewFolder");
        return false;
    }
}

bool CFSO::RemoveToRecycleBin(const std::string& fullName, bool silentOnError) {
    try {
        MoveToTrash(fullName);
    } catch (...) {
        if (!silentOnError) ReportPendingError("CFSO", "RemoveToRecycleBin");
    }
    return !Exists(fullName);
}

bool CFSO::CreateFolders(const std::string& folderName) {
    try {
        const char sep = pathtext::SeparatorOf(folderName);
        std::vector<std::string> parts;
        std::size_t start = 0;
        for (std::size_t i = 0; i <= folderName.size(); ++i)
            if (i == folderName.size() || pathtext::IsSeparator(folderName[i])) {
                parts.push_back(folderName.substr(start, i - start));
                start = i + 1;
            }
        // The root is not created: a network share (\\server\share), a drive
        // (C:), or the root of the file system.
        std::size_t first = 0;
        std::string running;
        if (parts.size() >= 4 && parts[0].empty() && parts[1].empty()) {
            running = std::string(2, sep) + parts[2] + sep + parts[3];
            first = 4;
        } else if (!parts.empty() && parts[0].size() == 2 && parts[0][1] == ':') {
            running = parts[0];
            first = 1;
        } else if (!parts.empty() && parts[0].empty()) {
            first = 1;
        }
        for (std::size_t i = first; i < parts.size(); ++i) {
            if (parts[i].empty()) continue;
            running += (running.empty() && first == 0 ? "" : std::string(1, sep)) + parts[i];
            if (IsFolder(running)) continue;
            if (Exists(running)) return false;  // a file stands in the way
            if (!fs::create_directory(running)) return false;
        }
        return true;
    } catch (...) {
        return false;
    }
}

std::string CFSO::BuildPath(const std::string& path, const std::string& name) const {
    return pathtext::BuildPath(path, name);
}

std::string CFSO::FilePath(const std::string& fullPath, bool addSlash) const {
    std::string folder;
    if (IsFile(fullPath)) {
        folder = pathtext::GetParentFolderName(fullPath);
    } else {
        const std::size_t last = fullPath.find_last_of("/\\");
        folder = last == std::string::npos ? std::string() : fullPath.substr(0, last);
    }
    if (addSlash && (folder.empty() || !pathtext::IsSeparator(folder.back()))) folder += pathtext::SeparatorOf(fullPath);
    return folder;
}

std::string CFSO::FileName(const std::string& fullPath) const { return pathtext::GetFileName(fullPath); }
std::string CFSO::GetDriveName(const std::string& path) const { return pathtext::GetDriveName(path); }

CFSO& SharedFSO() {
    static CFSO fso;
    return fso;
}

bool FileExists(const std::string& path) { return SharedFSO().FileExists(path); }
bool FolderExists(const std::string& path) { return SharedFSO().FolderExists(path); }
std::string BuildPath(const std::string& path, const std::string& name) { return SharedFSO().BuildPath(path, name); }
std::string GetParentFolderName(const std::string& path) { return SharedFSO().GetParentFolderName(path); }

}  // namespace flowloom
