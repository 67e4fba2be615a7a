#include "designer/access/AccessFile.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <fstream>
#include <span>
#include <string_view>

namespace flowloom::access {

namespace {

constexpr std::size_t kHeaderBytes = 0x300;       // everything read of page 0
constexpr std::uint64_t kMaxFileSize = 1ull << 31;  // the engines' 2 GB limit
constexpr std::uint64_t kSystemTablePage = 2;     // the definition of MSysObjects

constexpr std::size_t kSignatureAt = 4;
constexpr std::string_view kJetSignature{"Standard Jet DB\0", 16};
constexpr std::string_view kAceSignature{"Standard ACE DB\0", 16};
constexpr std::size_t kVersionAt = 0x14;
// The header from here on is stored scrambled with RC4 under a fixed key.
constexpr std::size_t kMaskedAt = 0x18;
constexpr std::uint32_t kHeaderKey = 0x6b39dac7;
constexpr std::size_t kEncodingKeyAt = 0x3e;
constexpr std::size_t kPasswordAt = 0x42;
// Jet 4 and later mask the password with the creation date as well.
constexpr std::size_t kCreationDateAt = 0x72;
// .accdb: the flags of the Office encryption that a database password brings.
constexpr std::size_t kEncryptionFlagsAt = 0x298;
constexpr std::uint8_t kOfficeEncryption = 0x06;

std::uint32_t ReadUInt32(std::span<const std::uint8_t> bytes, std::size_t at) {
    return static_cast<std::uint32_t>(bytes[at]) | static_cast<std::uint32_t>(bytes[at + 1]) << 8 |
           static_cast<std::uint32_t>(bytes[at + 2]) << 16 | static_cast<std::uint32_t>(bytes[at + 3]) << 24;
}

// RC4 with a 32-bit key in its little-endian bytes, applied in place.
void Rc4(std::uint32_t key, std::span<std::uint8_t> bytes) {
    const std::array<std::uint8_t, 4> keyBytes{static_cast<std::uint8_t>(key), static_cast<std::uint8_t>(key >> 8),
                                               static_cast<std::uint8_t>(key >> 16),
                                               static_cast<std::uint8_t>(key >> 24)};
    std::array<std::uint8_t, 256> state{};
    for (std::size_t i = 0; i < state.size(); ++i) state[i] = static_cast<std::uint8_t>(i);
    std::uint8_t j = 0;
    for (std::size_t i = 0; i < state.size(); ++i) {
        j = static_cast<std::uint8_t>(j + state[i] + keyBytes[i % keyBytes.size()]);
        std::swap(state[i], state[j]);
    }
    std::uint8_t x = 0;
    std::uint8_t y = 0;
    for (auto& byte : bytes) {
        x = static_cast<std::uint8_t>(x + 1);
        y = static_cast<std::uint8_t>(y + state[x]);
        std::swap(state[x], state[y]);
        byte ^= state[static_cast<std::uint8_t>(state[x] + state[y])];
    }
}

// The password mask of Jet 4 and later: the whole days of the creation date.
std::array<std::uint8_t, 4> DateMask(std::span<const std::uint8_t> header) {
    double date = 0;
    std::uint64_t bits = ReadUInt32(header, kCreationDateAt) | std::uint64_t{ReadUInt32(header, kCreationDateAt + 4)} << 32;
    std::memcpy(&date, &bits, sizeof date);
    // Out-of-range dates (a damaged header) mask with nothing rather than overflow.
    const auto days = std::isfinite(date) && std::fabs(date) < 2147483647.0 ? static_cast<std::int32_t>(date) : 0;
    const auto value = static_cast<std::uint32_t>(days);
    return {static_cast<std::uint8_t>(value), static_cast<std::uint8_t>(value >> 8),
            static_cast<std::uint8_t>(value >> 16), static_cast<std::uint8_t>(value >> 24)};
}

bool HasPassword(std::span<const std::uint8_t> header, AccessFormat format) {
    if (format == AccessFormat::Jet3) {
        const auto password = header.subspan(kPasswordAt, 20);
        return std::any_of(password.begin(), password.end(), [](std::uint8_t b) { return b != 0; });
    }
    const auto mask = DateMask(header);
    const auto password = header.subspan(kPasswordAt, 40);
    for (std::size_t i = 0; i < password.size(); ++i)
        if ((password[i] ^ mask[i % mask.size()]) != 0) return true;
    return false;
}

std::optional<AccessFormat> FormatOf(std::span<const std::uint8_t> header) {
    const std::string_view signature(reinterpret_cast<const char*>(header.data()) + kSignatureAt, 16);
    const std::uint8_t version = header[kVersionAt];
    if (signature == kJetSignature && version == 0) return AccessFormat::Jet3;
    if (signature == kJetSignature && version == 1) return AccessFormat::Jet4;
    // 2 Access 2007, 3 2010, 4 2013, 5 2016, 6 2019.
    if (signature == kAceSignature && version >= 2 && version <= 6) return AccessFormat::Ace;
    return std::nullopt;
}

}  // namespace

std::optional<AccessFileInfo> ProbeAccessFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) return std::nullopt;
    std::array<std::uint8_t, kHeaderBytes> header{};
    if (!in.read(reinterpret_cast<char*>(header.data()), header.size())) return std::nullopt;
    in.seekg(0, std::ios::end);
    const auto end = in.tellg();
    if (end < 0) return std::nullopt;
    const auto size = static_cast<std::uint64_t>(end);

    if (header[0] != 0) return std::nullopt;  // page 0 is of type 0
    const auto format = FormatOf(header);
    if (!format) return std::nullopt;
    AccessFileInfo info;
    info.format = *format;
    info.pageSize = *format == AccessFormat::Jet3 ? 2048 : 4096;
    if (size % info.pageSize != 0 || size > kMaxFileSize) return std::nullopt;
    info.pageCount = size / info.pageSize;
    if (info.pageCount <= kSystemTablePage) return std::nullopt;

    const std::size_t maskedBytes = *format == AccessFormat::Jet3 ? 126 : 128;
    Rc4(kHeaderKey, std::span(header).subspan(kMaskedAt, maskedBytes));
    info.encodingKey = ReadUInt32(header, kEncodingKeyAt);
    info.passwordProtected = HasPassword(header, *format) ||
                             (*format == AccessFormat::Ace && (header[kEncryptionFlagsAt] & kOfficeEncryption) != 0);
    return info;
}

}  // namespace flowloom::access
