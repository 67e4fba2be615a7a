#pragma once

#include <string>

namespace flowloom {

// The one object for file operations: tests, path splitting, and the
// operations of a file manager with the questions and messages that go with
// them (through the current prompts). Failures are reported under "CFSO"
// and the operation's name, unless the operation is told to stay silent.
class CFSO {
public:
    bool FileExists(const std::string& vstrFileFullName) const;
    bool FolderExists(const std::string& vstrFolderFullName) const;
    bool FolderIsEmpty(const std::string& path) const;  // no files in it
    std::string GetExtensionName(const std::string& vstrFileFullName) const;
    std::string GetBaseName(const std::string& vstrFileFullName) const;
    // Removes \ / * ? < > | : " and the characters 0 to 31.
    std::string MakeValidBaseName(const std::string& vstrFileBaseName) const;
    std::string GetFileVersion(const std::string& vstrFileFullName) const;
    std::string GetParentFolderName(const std::string& vstrFullname) const;
    // Creates one folder; a failure (also an existing one) is reported.
    void CreateFolder(const std::string& vstrFolderName);

    bool RenameFile(const std::string& vstrOldFullName, const std::string& vstrNewName);
    bool MoveFile(const std::string& vstrOldFullName, const std::string& vstrTargetPath, std::string& rstrNewName);
    bool CopyFile(const std::string& vstrOldFullName, const std::string& vstrTargetPath, std::string& rstrNewName);
    bool DeleteFile(const std::string& vstrFullname, bool vfUseRecycleBin, bool AscConfirmation, bool vfSilentOnError);
    bool RenameFolder(const std::string& vstrOldFullName, const std::string& vstrNewName);
    bool MoveFolder(const std::string& vstrOldFullName, const std::string& vstrTargetPath, std::string& rstrNewName);
    bool CopyFolder(const std::string& vstrOldFullName, const std::string& vstrTargetPath, std::string& rstrNewName);
    bool DeleteFolder(const std::string& vstrFullname, bool vfUseRecycleBin, bool AscConfirmation, bool vfSilentOnError);

    std::string ObjectName(const std::string& vstrObjectFullName, bool IsFolder) const;
    // A new folder "New folder", "New folder (2)", ... in the path.
    bool CreateNewFolder(const std::string& vstrPath, std::string& rstrNewName);
    // To the desktop's trash; true when nothing of that name is left.
    bool RemoveToRecycleBin(const std::string& vstrFullname, bool vfSilentOnError);
    // Creates every missing level; false (without a message) when one fails.
    bool CreateFolders(const std::string& vstrFolderName);
    std::string BuildPath(const std::string& vstrPath, const std::string& vstrName) const;
    // The folder of a full name, with a closing separator when AddSlash (a
    // bare name has no folder, and gets none: "" rather than the root).
    std::string FilePath(const std::string& strFileFullPath, bool AddSlash) const;
    std::string FileName(const std::string& strFileFullPath) const;
    std::string GetDriveName(const std::string& vstrPath) const;

private:
    enum class Kind { File, Folder };
    bool Rename(Kind kind, const std::string& oldFullName, const std::string& newName, const char* procedure);
    bool Transfer(Kind kind, bool copy, const std::string& oldFullName, const std::string& targetPath,
                  std::string& newName, const char* procedure);
    bool Delete(Kind kind, const std::string& fullName, bool useRecycleBin, bool askConfirmation, bool silentOnError,
                const char* procedure);
};

}  // namespace flowloom
