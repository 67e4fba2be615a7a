#pragma once

#include <cstdint>
#include <string>

namespace flowloom {

// Prepares a mail in the user's mail program through a mailto: link.
class CMailToProtocol {
public:
    static constexpr std::int32_t kSendFailed = static_cast<std::int32_t>(0x8003FE09);
    static constexpr std::size_t kMaxLinkLength = 2000;

    // The link: address, optional CC and BCC, subject and body with line ends
    // as %0d%0a and blanks as %20; cut to 2000 characters and "..." (with
    // truncateAtLineEnd, back to behind the last line end when there is one).
    static std::string BuildLink(const std::string& to, const std::string& subject, const std::string& body,
                                 const std::string& cc, const std::string& bcc, bool truncateAtLineEnd);

    // Opens the link; 0 on success, kSendFailed otherwise.
    std::int32_t Send(const std::string& to, const std::string& subject, const std::string& body,
                      const std::string& cc = {}, const std::string& bcc = {}, bool truncateAtLineEnd = true);
};

}  // namespace flowloom
