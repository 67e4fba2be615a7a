#pragma once

#include "options/Options.h"

#include <memory>
#include <string_view>

namespace flowloom {

// The definitions of the option groups: which values a group has, the kind
// digit of each (see OptionKinds.h) and, in child elements, their details
// (defaults, file filters, list entries).
std::string_view DefaultOptionsXml();

// The definitions loaded as an Options object.
std::shared_ptr<Options> LoadDefaultOptions();

// The support address offered as the default of SupportContactEmail.
inline constexpr const char* kSupportEmail = "support@flowloom.example";

}  // namespace flowloom
