#include "designer/Resources.h"

#include <algorithm>
#include <cctype>
#include <fstream>

#include "designer/EmbeddedFiles.h"

namespace flowloom::designer {

namespace {

// Blanks do not count, so that a toolbar key such as "Save As" finds the
// file "SaveAs.png"; letters compare without regard to case.
bool SameResourceName(std::string_view a, std::string_view b) {
    auto next = [](std::string_view text, std::size_t& i) {
        while (i < text.size() && text[i] == ' ') ++i;
        return i < text.size();
    };
    std::size_t i = 0;
    std::size_t j = 0;
    while (true) {
        const bool moreA = next(a, i);
        const bool moreB = next(b, j);
        if (!moreA || !moreB) return moreA == moreB;
        const auto lowerA = std::tolower(static_cast<unsigned char>(a[i++]));
        const auto lowerB = std::tolower(static_cast<unsigned char>(b[j++]));
        if (lowerA != lowerB) return false;
    }
}

}  // namespace

std::optional<std::string_view> LoadResourceData(std::string_view name, std::string_view type) {
    const auto files = EmbeddedFiles();
    const auto found = std::find_if(files.begin(), files.end(), [&](const EmbeddedFile& file) {
        return SameResourceName(file.type, type) && SameResourceName(file.name, name);
    });
    if (found == files.end()) return std::nullopt;
    return std::string_view(reinterpret_cast<const char*>(found->data), found->size);
}

bool ExtractResourceFile(const std::string& path, std::string_view name, std::string_view type) {
    const auto bytes = LoadResourceData(name, type);
    if (!bytes) return false;
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    if (!out) return false;
    out.write(bytes->data(), static_cast<std::streamsize>(bytes->size()));
    out.close();
    return static_cast<bool>(out);
}

}  // namespace flowloom::designer
