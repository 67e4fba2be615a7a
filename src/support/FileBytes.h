#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace flowloom {

// The whole file in one read; nullopt when it cannot be opened or read.
std::optional<std::string> ReadFileBytes(const std::filesystem::path& path);

}  // namespace flowloom
