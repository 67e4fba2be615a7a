#include "support/FileErrors.h"

#include "support/VbError.h"

#include <cerrno>

namespace flowloom {

namespace fs = std::filesystem;

namespace {

bool IsFolder(const fs::path& path) {
    std::error_code ec;
    return fs::is_directory(path, ec);
}

}  // namespace

std::int32_t FileErrorNumber(const std::error_code& error, bool folderMeant) {
    if (error == std::errc::file_exists || error == std::errc::directory_not_empty) return 58;
    if (error == std::errc::no_such_file_or_directory) return folderMeant ? vberr::PathNotFound : vberr::FileNotFound;
    if (error == std::errc::no_space_on_device || error.value() == EDQUOT) return 61;
    if (error == std::errc::io_error) return 57;
    if (error == std::errc::permission_denied || error == std::errc::operation_not_permitted ||
        error == std::errc::read_only_file_system)
        return 70;
    return 75;
}

void RaiseFileError(const std::error_code& error, bool folderMeant) {
    const std::int32_t number = FileErrorNumber(error, folderMeant);
    if (number == 58) throw VbError(58, "File already exists");
    if (number == 75) throw VbError(75, StandardErrorText(75) + ": " + error.message());
    RaiseStandardError(number);
}

void MovePath(const fs::path& from, const fs::path& to) {
    std::error_code ec;
    fs::rename(from, to, ec);
    if (!ec) return;
    if (ec != std::errc::cross_device_link) RaiseFileError(ec, IsFolder(from));
    // A rename cannot leave its file system: copy, then remove the source only
    // when the copy is complete.
    fs::copy(from, to, fs::copy_options::recursive | fs::copy_options::copy_symlinks, ec);
    if (ec) {
        std::error_code ignored;
        fs::remove_all(to, ignored);
        RaiseFileError(ec, IsFolder(from));
    }
    fs::remove_all(from, ec);
    if (ec) RaiseFileError(ec, true);
}

}  // namespace flowloom
