#pragma once

#include "support/UniqueFd.h"

#include <filesystem>
#include <optional>
#include <string>
#include <system_error>

namespace flowloom {

// The whole file; nullopt when it cannot be opened or read.
std::optional<std::string> ReadFileBytes(const std::filesystem::path& path);
// As above, with the system's reason in `error` when it cannot.
std::optional<std::string> ReadFileBytes(const std::filesystem::path& path, std::error_code& error);

// Opens a file to read it whole: the descriptor and the size the file claims
// (0 for none); an empty descriptor, with the system's reason, when it cannot.
UniqueFd OpenToReadWhole(const std::filesystem::path& path, std::size_t& claimedSize, std::error_code& error);

}  // namespace flowloom
