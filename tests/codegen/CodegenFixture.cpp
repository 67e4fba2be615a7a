#include "CodegenFixture.h"

#include <algorithm>

namespace flowloom::test {

std::vector<std::string> Lines(const std::string& macro) {
    std::vector<std::string> lines;
    std::size_t start = 0;
    for (std::size_t end; (end = macro.find("\r\n", start)) != std::string::npos; start = end + 2)
        lines.push_back(macro.substr(start, end - start));
    if (start < macro.size()) lines.push_back(macro.substr(start));
    return lines;
}

bool HasLine(const std::string& macro, const std::string& line) {
    const auto lines = Lines(macro);
    return std::find(lines.begin(), lines.end(), line) != lines.end();
}

}  // namespace flowloom::test
