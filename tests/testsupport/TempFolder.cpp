#include "TempFolder.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>

namespace flowloom::test {

namespace fs = std::filesystem;

TempFolder::TempFolder() {
    std::random_device rd;
    for (int attempt = 0; attempt < 100; ++attempt) {
        fs::path candidate = fs::temp_directory_path() / ("flowloom-test-" + std::to_string(rd()));
        if (fs::create_directory(candidate)) {
            path_ = candidate;
            return;
        }
    }
    throw std::runtime_error("cannot create a temporary folder");
}

TempFolder::~TempFolder() {
    std::error_code ec;
    fs::permissions(path_, fs::perms::owner_all, fs::perm_options::add, ec);
    fs::remove_all(path_, ec);
}

std::string ReadAll(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
}

void WriteAll(const fs::path& path, std::string_view text) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(text.data(), static_cast<std::streamsize>(text.size()));
}

fs::path SourceDir() {
    if (const char* dir = std::getenv("FLOWLOOM_SOURCE_DIR"); dir && *dir) return dir;
    return fs::current_path();
}

}  // namespace flowloom::test
