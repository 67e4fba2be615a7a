#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace flowloom::designer {

// The user guide shipped with the program: a folder of HTML pages beside the
// executable ("help"), or where an installation puts it. Empty when none is found.
std::filesystem::path HelpGuideFolder();

// The address of the guide's page for a help context; the contents page for
// context 0 and for a context the guide does not know. Empty without a guide.
std::string HelpPageUrl(std::int32_t context);

// Help contexts of the window and of each sheet kind (1, 6, 8, 10 to 16).
inline constexpr std::int32_t kDesignerHelpContext = 1000;
std::int32_t SheetHelpContext(int kind);

}  // namespace flowloom::designer
