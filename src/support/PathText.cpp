#include "support/PathText.h"

namespace flowloom::pathtext {

bool IsSeparator(char c) { return c == '/' || c == '\\'; }

char SeparatorOf(std::string_view path) {
    return path.find('\\') != std::string_view::npos ? '\\' : '/';
}

std::string BuildPath(std::string_view path, std::string_view name) {
    if (path.empty()) return std::string(name);
    if (IsSeparator(path.back()) || (!name.empty() && IsSeparator(name.front())))
        return std::string(path) + std::string(name);
    return std::string(path) + SeparatorOf(path) + std::string(name);
}

namespace {

std::string_view WithoutTrailingSeparators(std::string_view path) {
    while (path.size() > 1 && IsSeparator(path.back())) path.remove_suffix(1);
    return path;
}

std::size_t LastSeparator(std::string_view path) {
    for (std::size_t i = path.size(); i > 0; --i)
        if (IsSeparator(path[i - 1])) return i - 1;
    return std::string_view::npos;
}

}  // namespace

std::string GetParentFolderName(std::string_view raw) {
    const std::string_view path = WithoutTrailingSeparators(raw);
    const std::size_t last = LastSeparator(path);
    if (last == std::string_view::npos) return {};
    std::string parent(path.substr(0, last));
    if (parent.empty()) return std::string(1, path[last]);                       // "/x" gives "/"
    if (parent.size() == 2 && parent[1] == ':') return parent + path[last];      // "C:\x" gives "C:\"
    return std::string(WithoutTrailingSeparators(parent));
}

std::string GetFileName(std::string_view raw) {
    const std::string_view path = WithoutTrailingSeparators(raw);
    const std::size_t last = LastSeparator(path);
    if (last == std::string_view::npos) return std::string(path.size() == 2 && path[1] == ':' ? "" : path);
    return std::string(path.substr(last + 1));
}

std::string GetBaseName(std::string_view path) {
    const std::string name = GetFileName(path);
    const std::size_t dot = name.rfind('.');
    return dot == std::string::npos ? name : name.substr(0, dot);
}

std::string GetExtensionName(std::string_view path) {
    const std::string name = GetFileName(path);
    const std::size_t dot = name.rfind('.');
    return dot == std::string::npos ? std::string() : name.substr(dot + 1);
}

std::string GetDriveName(std::string_view path) {
    if (path.size() >= 2 && path[1] == ':') return std::string(path.substr(0, 2));
    if (path.size() > 2 && IsSeparator(path[0]) && IsSeparator(path[1])) {
        std::size_t server = path.find_first_of("/\\", 2);
        if (server == std::string_view::npos) return {};
        std::size_t share = path.find_first_of("/\\", server + 1);
        return std::string(path.substr(0, share == std::string_view::npos ? path.size() : share));
    }
    return {};
}

FolderLevels SplitFolderLevels(std::string_view path) {
    std::vector<std::string> parts;
    std::size_t start = 0;
    for (std::size_t i = 0; i <= path.size(); ++i) {
        if (i == path.size() || IsSeparator(path[i])) {
            parts.emplace_back(path.substr(start, i - start));
            start = i + 1;
        }
    }
    const char sep = SeparatorOf(path);
    FolderLevels result;
    std::size_t first = 0;
    if (parts.size() >= 4 && parts[0].empty() && parts[1].empty() && !parts[2].empty() && !parts[3].empty()) {
        result.root = std::string(2, sep) + parts[2] + sep + parts[3];
        first = 4;
    } else if (parts[0].size() == 2 && parts[0][1] == ':') {
        result.root = parts[0];
        first = 1;
    } else if (parts[0].empty() && parts.size() > 1) {
        result.root = std::string(1, sep);
        first = 1;
    }
    for (std::size_t i = first; i < parts.size(); ++i)
        if (!parts[i].empty()) result.levels.push_back(std::move(parts[i]));
    return result;
}

}  // namespace flowloom::pathtext
