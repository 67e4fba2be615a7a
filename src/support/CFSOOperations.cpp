// The operations of a file manager: rename, move, copy, delete and the trash,
// with the questions and messages that go with them.
#include "support/CFSO.h"

#include "support/ReportError.h"
#include "support/VbError.h"
#include "support/FileErrors.h"
#include "support/FileHelpers.h"
#include "support/PathText.h"
#include "support/Prompts.h"
#include "support/Trash.h"

#include <filesystem>

namespace flowloom {

namespace fs = std::filesystem;

namespace {

constexpr int kLastCopyNumber = 32767;

// "Copy of NAME", then "Copy (2) of NAME", ... for a copy into the same folder.
std::string CopyName(const std::string& folder, const std::string& name) {
    const std::string pattern = "Copy () of";
    const std::size_t mark = pattern.find(" ()");
    auto candidate = [&](const std::string& number) {
        return pattern.substr(0, mark) + number + pattern.substr(mark + 3) + " " + name;
    };
    std::string result = candidate("");
    for (int n = 2; FileOrFolderExists(pathtext::BuildPath(folder, result)) && n <= kLastCopyNumber; ++n)
        result = candidate(" (" + std::to_string(n) + ")");
    return result;
}

bool IsSameFolder(const std::string& a, const std::string& b) {
    std::error_code ec;
    return fs::equivalent(a.empty() ? "." : a, b.empty() ? "." : b, ec) && !ec;
}

// Whether `target` is `folder` itself or lies somewhere below it.
bool IsInside(const std::string& target, const std::string& folder) {
    std::error_code ec;
    const auto t = fs::weakly_canonical(target, ec);
    const auto f = fs::weakly_canonical(folder, ec);
    auto ti = t.begin();
    for (auto fi = f.begin(); fi != f.end(); ++fi, ++ti)
        if (ti == t.end() || *ti != *fi) return false;
    return true;
}

void RequireSource(const CFSO& fso, const std::string& path, bool folder) {
    if (folder ? !fso.FolderExists(path) : !fso.FileExists(path))
        RaiseStandardError(folder ? vberr::PathNotFound : vberr::FileNotFound);
}

void CopyPath(const std::string& from, const std::string& to, bool folder) {
    std::error_code ec;
    if (folder) fs::copy(from, to, fs::copy_options::recursive, ec);
    else fs::copy_file(from, to, ec);
    if (ec) RaiseFileError(ec, folder);
}

}  // namespace

bool CFSO::RenameFile(const std::string& oldFullName, const std::string& newName) {
    return Rename(Kind::File, oldFullName, newName, "RenameFile");
}

bool CFSO::RenameFolder(const std::string& oldFullName, const std::string& newName) {
    return Rename(Kind::Folder, oldFullName, newName, "RenameFolder");
}

bool CFSO::Rename(Kind kind, const std::string& oldFullName, const std::string& newName, const char* procedure) {
    return GuardedOr("CFSO", procedure, false, [&] {
        const std::string oldName = pathtext::GetFileName(oldFullName);
        if (newName == oldName) return true;
        const std::string target = pathtext::BuildPath(pathtext::GetParentFolderName(oldFullName), newName);
        if (FileOrFolderExists(target)) {
            MsgBox("Cannot rename '" + oldName +
                       "': A file or folder with the name you specified already exists. Specify a different name.",
                   msgbox::Exclamation);
            return false;
        }
        RequireSource(*this, oldFullName, kind == Kind::Folder);
        MovePath(oldFullName, target);
        return true;
    });
}

bool CFSO::MoveFile(const std::string& oldFullName, const std::string& targetPath, std::string& newName) {
    return Transfer(Kind::File, false, oldFullName, targetPath, newName, "MoveFile");
}

bool CFSO::CopyFile(const std::string& oldFullName, const std::string& targetPath, std::string& newName) {
    return Transfer(Kind::File, true, oldFullName, targetPath, newName, "CopyFile");
}

bool CFSO::MoveFolder(const std::string& oldFullName, const std::string& targetPath, std::string& newName) {
    return Transfer(Kind::Folder, false, oldFullName, targetPath, newName, "MoveFolder");
}

bool CFSO::CopyFolder(const std::string& oldFullName, const std::string& targetPath, std::string& newName) {
    return Transfer(Kind::Folder, true, oldFullName, targetPath, newName, "CopyFolder");
}

bool CFSO::Transfer(Kind kind, bool copy, const std::string& oldFullName, const std::string& targetPath,
                    std::string& newName, const char* procedure) {
    return GuardedOr("CFSO", procedure, false, [&] {
        const bool folder = kind == Kind::Folder;
        const std::string sourceFolder = pathtext::GetParentFolderName(oldFullName);
        const std::string targetFolder = targetPath.empty() ? sourceFolder : targetPath;
        std::string name = newName.empty() ? pathtext::GetFileName(oldFullName) : newName;
        if (copy && IsSameFolder(targetFolder, sourceFolder)) name = CopyName(targetFolder, name);
        const std::string target = pathtext::BuildPath(targetFolder, name);
        if (folder && !copy && IsInside(target, oldFullName)) {
            MsgBox("It is impssible.", msgbox::Exclamation);
            return false;
        }
        if (FileExists(target) || FolderExists(target)) {
            MsgBox(FileExists(target) ? "The destination is an existing file." : "The destination is an existing folder.",
                   msgbox::Exclamation);
            return false;
        }
        RequireSource(*this, oldFullName, folder);
        if (copy) CopyPath(oldFullName, target, folder);
        else MovePath(oldFullName, target);
        newName = name;
        return true;
    });
}

bool CFSO::DeleteFile(const std::string& path, bool useRecycleBin, bool askConfirmation, bool silentOnError) {
    return Delete(Kind::File, path, useRecycleBin, askConfirmation, silentOnError, "DeleteFile");
}

bool CFSO::DeleteFolder(const std::string& path, bool useRecycleBin, bool askConfirmation, bool silentOnError) {
    return Delete(Kind::Folder, path, useRecycleBin, askConfirmation, silentOnError, "DeleteFolder");
}

bool CFSO::Delete(Kind kind, const std::string& fullName, bool useRecycleBin, bool askConfirmation,
                  bool silentOnError, const char* procedure) {
    try {
        const bool folder = kind == Kind::Folder;
        const std::string name = pathtext::GetFileName(fullName);
        if (askConfirmation) {
            const std::string question =
                folder ? "Are you sure you want to remove the folder '" + name + "' and all its contents?"
                       : "Are you sure you want to delete '" + name + "'?";
            if (MsgBox(question, msgbox::YesNo | msgbox::Question) != msgbox::Yes) return false;
        }
        if (useRecycleBin) return RemoveToRecycleBin(fullName, silentOnError);
        RequireSource(*this, fullName, folder);
        std::error_code ec;
        fs::remove_all(fullName, ec);
        if (ec) RaiseFileError(ec, folder);
        return true;
    } catch (...) {
        if (!silentOnError) ReportPendingError("CFSO", procedure);
        return false;
    }
}

bool CFSO::RemoveToRecycleBin(const std::string& fullName, bool silentOnError) {
    try {
        MoveToTrash(fullName);
    } catch (...) {
        if (!silentOnError) ReportPendingError("CFSO", "RemoveToRecycleBin");
    }
    return !FileOrFolderExists(fullName);
}

}  // namespace flowloom
