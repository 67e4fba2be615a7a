#pragma once

#include <filesystem>
#include <string_view>

namespace flowloom {

// Replaces the file with `contents` so that a crash or a full disk at any
// moment leaves either the old file or the new one, never a part: the text
// goes to a temporary file in the same folder, is flushed to the disk, and is
// then renamed over the target. An existing target's permissions are kept,
// and a read-only target (no write bits) is refused.
// Throws VbError (61 disk full, 70 permission denied, 75 other failures).
void WriteFileAtomically(const std::filesystem::path& target, std::string_view contents);

}  // namespace flowloom
