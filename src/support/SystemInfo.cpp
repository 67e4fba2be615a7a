#include "support/SystemInfo.h"

#include "support/LocalTime.h"

#include <langinfo.h>
#include <sys/stat.h>
#include <sys/utsname.h>
#include <unistd.h>

#include <chrono>
#include <clocale>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace flowloom {

namespace {

// "#,##0": thousands separated by commas.
std::string Grouped(unsigned long long value) {
    std::string digits = std::to_string(value);
    for (int i = static_cast<int>(digits.size()) - 3; i > 0; i -= 3) digits.insert(static_cast<std::size_t>(i), ",");
    return digits;
}

unsigned long long MemInfoKb(const std::string& key) {
    std::ifstream in("/proc/meminfo");
    std::string name;
    unsigned long long value = 0;
    std::string unit;
    while (in >> name >> value >> unit)
        if (name == key + ":") return value;
    return 0;
}

std::string ExecutablePath() {
    std::error_code ec;
    return std::filesystem::read_symlink("/proc/self/exe", ec).string();
}

}  // namespace

std::string CurrentStatusInfo(const std::string& project, const std::string& version) {
    std::string fileDate;
    const auto exe = ExecutablePath();
    struct stat st {};
    if (::stat(exe.c_str(), &st) == 0) fileDate = FormatLocalTime("%Y-%m-%d %H:%M:%S", st.st_mtime);
    return "[Current Status Info]\r\nDate: " + FormatLocalTime("%Y-%m-%d %H:%M:%S") + "\r\nProject: " + project +
           "\r\nVersion: " + version + "\r\nFullname: " + exe + "\r\nFileDate: " + fileDate;
}

std::string SystemInformation() {
    utsname un{};
    std::string os = "<unknown>";
    std::string processor = "Unknown CPU";
    if (uname(&un) == 0) {
        os = std::string(un.sysname) + " " + un.release + " (Build " + un.version + ")";
        processor = un.machine;
    }
    const auto total = MemInfoKb("MemTotal");
    const auto available = MemInfoKb("MemAvailable");
    const auto inUse = total ? (total - available) * 100 / total : 0;
    return "[System Information]\r\nOS: " + os + "\r\nProcessor: " + processor + "\r\nPhysical memory: \r\n  total: " +
           Grouped(total) + " KB\r\n  available: " + Grouped(available) + " KB\r\n  in use: " + std::to_string(inUse) + "%";
}

std::string LocaleInformation() {
    const char* language = std::setlocale(LC_MESSAGES, nullptr);
    const std::lconv* conv = std::localeconv();
    return std::string("[Locale information]\r\nLanguage: ") + (language ? language : "") +
           "\r\nList separator: ;\r\nDecimal separator: " + (conv && conv->decimal_point ? conv->decimal_point : ".") +
           "\r\nThousand separator: " + (conv && conv->thousands_sep ? conv->thousands_sep : "") +
           "\r\nShort date: " + nl_langinfo(D_FMT) + "\r\nLong date: " + nl_langinfo(D_T_FMT);
}

}  // namespace flowloom
