#pragma once

#include <ctime>
#include <string>

namespace flowloom {

// The present local time (or `when`) in a strftime format.
std::string FormatLocalTime(const char* format, std::time_t when = std::time(nullptr));

}  // namespace flowloom
