#include "support/FileBytes.h"

#include "support/UniqueFd.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace flowloom {

std::optional<std::string> ReadFileBytes(const std::filesystem::path& path) {
    std::error_code ignored;
    return ReadFileBytes(path, ignored);
}

UniqueFd OpenToReadWhole(const std::filesystem::path& path, std::size_t& claimedSize, std::error_code& error) {
    error.clear();
    claimedSize = 0;
    UniqueFd fd(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    struct stat st {};
    if (!fd || ::fstat(fd.Get(), &st) != 0) {
        error.assign(errno, std::generic_category());
        return {};
    }
    claimedSize = static_cast<std::size_t>(st.st_size > 0 ? st.st_size : 0);
    return fd;
}

std::optional<std::string> ReadFileBytes(const std::filesystem::path& path, std::error_code& error) {
    std::size_t claimed = 0;
    const UniqueFd fd = OpenToReadWhole(path, claimed, error);
    if (!fd) return std::nullopt;
    // One read for the size the file claims; files that claim none (or
    // grow) are read on until the end.
    std::string bytes(claimed + 1, '\0');
    std::size_t filled = 0;
    for (;;) {
        if (filled == bytes.size()) bytes.resize(bytes.size() * 2);
        const ssize_t n = ::read(fd.Get(), bytes.data() + filled, bytes.size() - filled);
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) {
            error.assign(errno, std::generic_category());
            return std::nullopt;
        }
        if (n == 0) break;
        filled += static_cast<std::size_t>(n);
    }
    bytes.resize(filled);
    return bytes;
}

}  // namespace flowloom
