#include "support/FileText.h"

#include "support/FileBytes.h"

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>

namespace flowloom {

namespace {

std::size_t PageSize() noexcept {
    static const std::size_t size = static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
    return size;
}

std::size_t WholePages(std::size_t bytes) noexcept {
    const std::size_t page = PageSize();
    return (bytes + page - 1) / page * page;
}

}  // namespace

std::optional<FileText> FileText::Read(const std::filesystem::path& path, std::error_code& error) {
    std::size_t claimed = 0;
    const UniqueFd fd = OpenToReadWhole(path, claimed, error);
    if (!fd) return std::nullopt;
    FileText text;
    // Room for the size the file claims; files that claim none (or grow)
    // are read on until the end.
    if (!text.Reserve(claimed + 1)) {
        error.assign(errno, std::generic_category());
        return std::nullopt;
    }
    for (;;) {
        if (text.size_ == text.capacity_ && !text.Reserve(text.capacity_ * 2)) {
            error.assign(errno, std::generic_category());
            return std::nullopt;
        }
        char* end = static_cast<char*>(text.base_) + text.size_;
        const ssize_t n = ::read(fd.Get(), end, text.capacity_ - text.size_);
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) {
            error.assign(errno, std::generic_category());
            return std::nullopt;
        }
        if (n == 0) break;
        text.size_ += static_cast<std::size_t>(n);
    }
    return text;
}

bool FileText::Reserve(std::size_t capacity) noexcept {
    capacity = WholePages(capacity);
    void* grown = base_ ? ::mremap(base_, capacity_, capacity, MREMAP_MAYMOVE)
                        : ::mmap(nullptr, capacity, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (grown == MAP_FAILED) return false;
    // Large pages where the system offers them: a large file then costs a
    // few page faults instead of one per 4 KB.
    ::madvise(grown, capacity, MADV_HUGEPAGE);
    base_ = grown;
    capacity_ = capacity;
    return true;
}

FileText::FileText(FileText&& other) noexcept
    : base_(std::exchange(other.base_, nullptr)),
      size_(std::exchange(other.size_, 0)),
      capacity_(std::exchange(other.capacity_, 0)),
      released_(std::exchange(other.released_, 0)) {}

FileText& FileText::operator=(FileText&& other) noexcept {
    if (this != &other) {
        if (base_) ::munmap(base_, capacity_);
        base_ = std::exchange(other.base_, nullptr);
        size_ = std::exchange(other.size_, 0);
        capacity_ = std::exchange(other.capacity_, 0);
        released_ = std::exchange(other.released_, 0);
    }
    return *this;
}

FileText::~FileText() {
    if (base_) ::munmap(base_, capacity_);
}

void FileText::ReleaseBefore(std::size_t offset) noexcept {
    const std::size_t end = std::min(offset, size_) / PageSize() * PageSize();
    if (end <= released_) return;
    // Private anonymous pages given back read as zeros when touched again.
    ::madvise(static_cast<char*>(base_) + released_, end - released_, MADV_DONTNEED);
    released_ = end;
}

}  // namespace flowloom
