#pragma once

// The Access databases of the shared test data, damaged or renamed copies of
// them, and mdbtools' own command-line programs as a second reader.
#include "testsupport/TempFolder.h"

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace flowloom::test {

// The shared test data beside the checkout when it is there, else the
// copies the repository keeps of it.
inline std::filesystem::path AccessTestData() {
    const auto shared = (SourceDir() / ".." / "shared" / "testdata" / "access").lexically_normal();
    if (std::filesystem::is_directory(shared)) return shared;
    return SourceDir() / "tests" / "data" / "access";
}
inline std::string Nwind() { return (AccessTestData() / "nwind.mdb").string(); }          // Jet 3, pages of 2048
inline std::string Sample() { return (AccessTestData() / "ASampleDatabase.accdb").string(); }  // ACE, pages of 4096

inline std::string CopyTo(const std::string& file, const std::filesystem::path& target) {
    std::filesystem::copy_file(file, target, std::filesystem::copy_options::overwrite_existing);
    std::filesystem::permissions(target, std::filesystem::perms::owner_write, std::filesystem::perm_options::add);
    return target.string();
}

// Writes `bytes` over the file from `offset` on, in place.
inline void Overwrite(const std::string& file, std::uint64_t offset, std::string_view bytes) {
    std::fstream io(file, std::ios::binary | std::ios::in | std::ios::out);
    io.seekp(static_cast<std::streamoff>(offset));
    io.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

inline std::string ReadBytes(const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    std::ostringstream bytes;
    bytes << in.rdbuf();
    return bytes.str();
}

// Gives object names of the system table new names of the same length, by
// rewriting their UTF-16 text on the data pages of MSysObjects (definition
// page 2) of an .accdb; returns how many places changed.
inline int RenameSystemObjects(const std::string& file, const std::vector<std::pair<std::string, std::string>>& renames) {
    constexpr std::size_t kPage = 4096;
    std::string bytes = ReadBytes(file);
    const auto utf16 = [](std::string_view ascii) {
        std::string text;
        for (const char c : ascii) text += {c, '\0'};
        return text;
    };
    int changed = 0;
    for (std::size_t page = 0; page + kPage <= bytes.size(); page += kPage) {
        const bool systemTableData = bytes[page] == 1 && bytes[page + 4] == 2 && bytes[page + 5] == 0 &&
                                     bytes[page + 6] == 0 && bytes[page + 7] == 0;
        if (!systemTableData) continue;
        for (const auto& [from, to] : renames) {
            const std::string find = utf16(from), put = utf16(to);
            for (auto at = bytes.find(find, page); at != std::string::npos && at < page + kPage;
                 at = bytes.find(find, at + 1)) {
                bytes.replace(at, put.size(), put);
                ++changed;
            }
        }
    }
    std::ofstream(file, std::ios::binary | std::ios::trunc) << bytes;
    return changed;
}

// A copy of the .accdb whose objects test the rules for system and hidden
// names. Lists then: forms frmAssetItemsDataForm, MSysSTCalculations; table
// msyst Items; queries qryComputerHardwareInOwnerOrder, ~SQ_STCalculations;
// no reports.
inline std::string RenamedSample(const std::filesystem::path& target) {
    const std::string file = CopyTo(Sample(), target);
    RenameSystemObjects(file, {{"frmGSTCalculations", "MSysSTCalculations"},
                               {"frmAssetInventory", "USyssetInventory"},
                               {"Asset Items", "msyst Items"},
                               {"qryGSTCalculations", "~SQ_STCalculations"},
                               {"qryCostsSummedByOwner", "USysostsSummedByOwner"},
                               {"rptAssetListingInNumberOrder", "USyssetListingInNumberOrder"},
                               {"rptAssetsGroupedByOwners", "USyssetsGroupedByOwners"},
                               {"rptGSTPaidByMonth", "USysSTPaidByMonth"}});
    return file;
}

// The standard output of a shell command, run under a UTF-8 locale (mdbtools'
// programs write names in the locale's character set); nullopt when it could
// not run or failed (a program that is not installed).
inline std::optional<std::string> CommandOutput(const std::string& command) {
    FILE* pipe = ::popen(("LC_ALL=C.UTF-8 " + command + " 2>/dev/null").c_str(), "r");
    if (!pipe) return std::nullopt;
    std::string output;
    char buffer[4096];
    for (std::size_t n; (n = std::fread(buffer, 1, sizeof buffer, pipe)) > 0;) output.append(buffer, n);
    return ::pclose(pipe) == 0 ? std::optional(output) : std::nullopt;
}

inline std::string Quoted(const std::string& text) {
    std::string quoted = "'";
    for (const char c : text) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return quoted + "'";
}

inline std::vector<std::string> Lines(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);)
        if (!line.empty()) lines.push_back(line);
    return lines;
}

}  // namespace flowloom::test
