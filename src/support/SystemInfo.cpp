#include "support/SystemInfo.h"

#include "support/VbStrings.h"
#include "support/LocalTime.h"

#include <langinfo.h>
#include <sys/stat.h>
#include <sys/utsname.h>

#include <locale.h>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <memory>
#include <type_traits>

namespace flowloom {

namespace {

// "#,##0": thousands separated by commas.
std::string Grouped(unsigned long long value) { return vb::GroupDigits(std::to_string(value)); }

unsigned long long MemInfoKb(const std::string& key) {
    std::ifstream in("/proc/meminfo");
    std::string name;
    unsigned long long value = 0;
    std::string unit;
    while (in >> name >> value >> unit)
        if (name == key + ":") return value;
    return 0;
}

struct LocaleFree {
    void operator()(locale_t locale) const { freelocale(locale); }
};

// The locale's name as the environment gives it for messages, e.g. "de_DE.UTF-8".
std::string UserLanguage() {
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"})
        if (const char* value = std::getenv(name); value && *value) return value;
    return "C";
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
    // The user's locale from the environment, read without switching the
    // program's own (which stays "C" for number and date texts).
    const std::unique_ptr<std::remove_pointer_t<locale_t>, LocaleFree> user(newlocale(LC_ALL_MASK, "", nullptr));
    const locale_t locale = user ? user.get() : nullptr;
    auto item = [locale](nl_item what) { return std::string(locale ? nl_langinfo_l(what, locale) : nl_langinfo(what)); };
    const std::string decimal = item(RADIXCHAR);
    // POSIX has no list separator; the usual one is ";" where "," is the decimal separator.
    const std::string list = decimal == "," ? ";" : ",";
    return "[Locale information]\r\nLanguage: " + UserLanguage() + "\r\nList separator: " + list +
           "\r\nDecimal separator: " + decimal + "\r\nThousand separator: " + item(THOUSEP) +
           "\r\nShort date: " + item(D_FMT) + "\r\nLong date: " + item(D_T_FMT);
}

}  // namespace flowloom
