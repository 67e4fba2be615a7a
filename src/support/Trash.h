#pragma once

#include <filesystem>

namespace flowloom {

// Moves a file or folder into the desktop's trash ($XDG_DATA_HOME/Trash,
// ~/.local/share/Trash by default) with its .trashinfo record, so that the
// file manager can restore it. Throws VbError on failure.
void MoveToTrash(const std::filesystem::path& path);

// The trash folder in use (for tests and for telling the user).
std::filesystem::path TrashFolder();

}  // namespace flowloom
