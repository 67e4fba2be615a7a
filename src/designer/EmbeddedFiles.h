#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace flowloom::designer {

// One file compiled into the program: its type (the folder it came from),
// its name (the file name without the extension) and its bytes.
struct EmbeddedFile {
    std::string_view type;
    std::string_view name;
    const unsigned char* data;
    std::size_t size;
};

// Every embedded file, ordered by type, then name. Defined by the source that
// cmake/EmbedFiles.cmake generates; Resources.h is the interface to use.
std::span<const EmbeddedFile> EmbeddedFiles();

}  // namespace flowloom::designer
