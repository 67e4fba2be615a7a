#pragma once

#include <string>

namespace flowloom {

// The information sections of an error report, each a block of label and
// value lines joined by line ends.
std::string CurrentStatusInfo(const std::string& project, const std::string& version);
std::string SystemInformation();
std::string LocaleInformation();

}  // namespace flowloom
