#include "support/CMailToProtocol.h"

#include "support/VbStrings.h"
#include "support/Prompts.h"

namespace flowloom {

namespace {

std::string Encode(const std::string& text) {
    return vb::Replace(vb::Replace(text, "\r\n", "%0d%0a"), " ", "%20");
}

}  // namespace

std::string CMailToProtocol::BuildLink(const std::string& to, const std::string& subject, const std::string& body,
                                       const std::string& cc, const std::string& bcc, bool truncateAtLineEnd) {
    std::string link = "mailto:" + to + "?";
    if (!cc.empty()) link += "CC=" + cc + "&";
    if (!bcc.empty()) link += "BCC=" + bcc + "&";
    link += "Subject=" + Encode(subject) + "&" + "Body=" + Encode(body);
    if (link.size() <= kMaxLinkLength) return link;
    std::string cut = link.substr(0, kMaxLinkLength);
    if (truncateAtLineEnd) {
        const std::size_t lineEnd = cut.rfind("%0d%0a");
        if (lineEnd != std::string::npos) cut = cut.substr(0, lineEnd + 6);
    }
    return cut + "...";
}

std::int32_t CMailToProtocol::Send(const std::string& to, const std::string& subject, const std::string& body,
                                   const std::string& cc, const std::string& bcc, bool truncateAtLineEnd) {
    const std::string link = BuildLink(to, subject, body, cc, bcc, truncateAtLineEnd);
    return CurrentPrompts().OpenUrl(link) ? 0 : kSendFailed;
}

}  // namespace flowloom
