#pragma once

#include <unistd.h>

#include <utility>

namespace flowloom {

// Owns a file descriptor and closes it at the end of its life.
class UniqueFd {
public:
    UniqueFd() = default;
    explicit UniqueFd(int fd) noexcept : fd_(fd) {}
    ~UniqueFd() { Reset(); }
    UniqueFd(UniqueFd&& other) noexcept : fd_(std::exchange(other.fd_, -1)) {}
    UniqueFd& operator=(UniqueFd&& other) noexcept {
        if (this != &other) {
            Reset();
            fd_ = std::exchange(other.fd_, -1);
        }
        return *this;
    }
    UniqueFd(const UniqueFd&) = delete;
    UniqueFd& operator=(const UniqueFd&) = delete;

    explicit operator bool() const noexcept { return fd_ >= 0; }
    int Get() const noexcept { return fd_; }
    // Closes now; false (with errno) when the close reported an error, which
    // for a file just written can be the first sign of a full disk.
    bool Close() noexcept {
        if (fd_ < 0) return true;
        return ::close(std::exchange(fd_, -1)) == 0;
    }
    void Reset() noexcept {
        if (fd_ >= 0) ::close(std::exchange(fd_, -1));
    }

private:
    int fd_ = -1;
};

}  // namespace flowloom
