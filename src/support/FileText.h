#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string_view>
#include <system_error>

namespace flowloom {

// A file's bytes in memory of their own, which a reader that goes through
// them once can hand back to the system as it passes: a large file is then
// never held whole besides what is made of it.
class FileText {
public:
    // The whole file; nullopt, with the system's reason, when it cannot be read.
    static std::optional<FileText> Read(const std::filesystem::path& path, std::error_code& error);

    FileText(FileText&& other) noexcept;
    FileText& operator=(FileText&& other) noexcept;
    FileText(const FileText&) = delete;
    FileText& operator=(const FileText&) = delete;
    ~FileText();

    std::string_view View() const noexcept { return {static_cast<const char*>(base_), size_}; }
    // Gives back the whole pages before `offset`; the bytes there read as
    // zeros afterwards. Giving back less than before does nothing.
    void ReleaseBefore(std::size_t offset) noexcept;
    // How many bytes from the start have been given back.
    std::size_t Released() const noexcept { return released_; }

private:
    FileText() = default;
    bool Reserve(std::size_t capacity) noexcept;

    void* base_ = nullptr;
    std::size_t size_ = 0;
    std::size_t capacity_ = 0;  // mapped bytes, whole pages
    std::size_t released_ = 0;
};

}  // namespace flowloom
