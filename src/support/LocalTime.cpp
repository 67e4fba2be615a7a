#include "support/LocalTime.h"

namespace flowloom {

std::string FormatLocalTime(const char* format, std::time_t when) {
    std::tm local{};
    localtime_r(&when, &local);
    char buf[128];
    const std::size_t n = std::strftime(buf, sizeof buf, format, &local);
    return std::string(buf, n);
}

}  // namespace flowloom
