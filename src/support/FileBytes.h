#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <system_error>

namespace flowloom {

// The whole file; nullopt when it cannot be opened or read.
std::optional<std::string> ReadFileBytes(const std::filesystem::path& path);
// As above, with the system's reason in `error` when it cannot.
std::optional<std::string> ReadFileBytes(const std::filesystem::path& path, std::error_code& error);

}  // namespace flowloom
