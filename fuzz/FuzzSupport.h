#pragma once

#include "support/AppPaths.h"

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace flowloom::fuzz {

// A folder of this run, made the program folder so that errorlog.txt and
// default files stay in it.
inline const std::filesystem::path& WorkFolder(const std::string& target) {
    static const std::filesystem::path folder = [&] {
        auto path = std::filesystem::temp_directory_path() / (target + "-" + std::to_string(::getpid()));
        std::filesystem::create_directories(path);
        SetProgramFolder(path);
        return path;
    }();
    return folder;
}

inline void WriteFile(const std::filesystem::path& file, std::string_view bytes) {
    std::ofstream out(file, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

// Backups of the version step would pile up over a run.
inline void RemoveBackups(const std::filesystem::path& folder) {
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        if (entry.path().extension() == ".bak") std::filesystem::remove(entry.path());
}

}  // namespace flowloom::fuzz
