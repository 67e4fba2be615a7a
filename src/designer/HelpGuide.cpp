#include "designer/HelpGuide.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <string_view>
#include <system_error>

#include "support/AppPaths.h"

namespace flowloom::designer {

namespace fs = std::filesystem;

namespace {

constexpr std::int32_t kSheetContextBase = 2000;

struct HelpTopic {
    std::string_view page;    // file name inside the guide's folder
    std::string_view anchor;  // empty for the top of the page
};

constexpr std::array<std::pair<int, std::string_view>, 10> kSheetAnchors{{
    {1, "process"}, {6, "database"}, {8, "datasource"}, {10, "mailmerge"}, {11, "saveas"},
    {12, "printout"}, {13, "convert"}, {14, "sendmail"}, {15, "sendfax"}, {16, "addrecord"},
}};

// The contexts that the error numbers carry, each with a section of its own.
constexpr std::array<std::pair<std::int32_t, std::string_view>, 9> kErrorAnchors{{
    {30000, ""}, {30001, "e30001"}, {30006, "e30006"}, {30013, "e30013"}, {30014, "e30014"},
    {30017, "e30017"}, {30027, "e30027"}, {30076, "e30076"}, {30082, "e30082"},
}};

HelpTopic TopicOf(std::int32_t context) {
    if (context == kDesignerHelpContext) return {"window.html", ""};
    for (const auto& [kind, anchor] : kSheetAnchors) {
        if (context == kSheetContextBase + kind) return {"sheets.html", anchor};
    }
    for (const auto& [errorContext, anchor] : kErrorAnchors) {
        if (context == errorContext) return {"errors.html", anchor};
    }
    return {"index.html", ""};
}

bool IsGuide(const fs::path& folder) {
    std::error_code ec;
    return fs::is_regular_file(folder / "index.html", ec);
}

// A file address: every byte outside the unreserved characters and "/" is
// written as %XX, so that blanks and non-ASCII names survive.
std::string FileUrl(const fs::path& file) {
    static constexpr std::string_view kHex = "0123456789ABCDEF";
    std::string url = "file://";
    for (const unsigned char c : file.generic_string()) {
        const bool plain = std::isalnum(c) != 0 || c == '/' || c == '-' || c == '_' || c == '.' || c == '~';
        if (plain) {
            url += static_cast<char>(c);
        } else {
            url += '%';
            url += kHex[c >> 4];
            url += kHex[c & 0x0F];
        }
    }
    return url;
}

}  // namespace

fs::path HelpGuideFolder() {
    const fs::path program = ProgramFolder();
    // Beside the executable in a build tree; under share/ once installed.
    for (const fs::path& folder : {program / "help", program / ".." / "share" / "flowloom" / "help"}) {
        if (IsGuide(folder)) return folder.lexically_normal();
    }
    return {};
}

std::string HelpPageUrl(std::int32_t context) {
    const fs::path folder = HelpGuideFolder();
    if (folder.empty()) return {};
    const HelpTopic topic = TopicOf(context);
    std::error_code ec;
    fs::path page = folder / topic.page;
    if (!fs::is_regular_file(page, ec)) page = folder / "index.html";
    std::string url = FileUrl(fs::absolute(page, ec).lexically_normal());
    if (!topic.anchor.empty() && page.filename() == topic.page) {
        url += '#';
        url += topic.anchor;
    }
    return url;
}

std::int32_t SheetHelpContext(int kind) {
    const bool known = std::any_of(kSheetAnchors.begin(), kSheetAnchors.end(),
                                   [kind](const auto& entry) { return entry.first == kind; });
    return known ? kSheetContextBase + kind : 0;
}

}  // namespace flowloom::designer
