#include "support/FileBytes.h"

#include <fstream>

namespace flowloom {

std::optional<std::string> ReadFileBytes(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary | std::ios::ate);
    if (!in) return std::nullopt;
    const std::streamoff size = in.tellg();
    if (size < 0) return std::nullopt;
    std::string bytes(static_cast<std::size_t>(size), '\0');
    in.seekg(0);
    if (size > 0 && !in.read(bytes.data(), size)) return std::nullopt;
    return bytes;
}

}  // namespace flowloom
