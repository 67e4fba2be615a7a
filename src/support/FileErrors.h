#pragma once

#include <cstdint>
#include <filesystem>
#include <system_error>

namespace flowloom {

// A failed file operation as the host's numbered error: 53 "File not found"
// (76 "Path not found" when a folder was meant), 57 "Device I/O error",
// 58 "File already exists", 61 "Disk full", 70 "Permission denied",
// 75 "Path/File access error" for anything else.
std::int32_t FileErrorNumber(const std::error_code& error, bool folderMeant);
[[noreturn]] void RaiseFileError(const std::error_code& error, bool folderMeant);

// Moves a file or folder; across file systems, where a rename cannot, it is
// copied and the source removed afterwards. Raises as RaiseFileError does.
void MovePath(const std::filesystem::path& from, const std::filesystem::path& to);

}  // namespace flowloom
