#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace flowloom::test {

// A fresh folder under the system's temporary folder, removed with its
// contents at the end of the scope.
class TempFolder {
public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::filesystem::path& Path() const noexcept { return path_; }
    std::filesystem::path operator/(std::string_view name) const { return path_ / name; }

private:
    std::filesystem::path path_;
};

std::string ReadAll(const std::filesystem::path& path);
void WriteAll(const std::filesystem::path& path, std::string_view text);
// The repository's root (for examples/ and the shared test data).
std::filesystem::path SourceDir();

}  // namespace flowloom::test
