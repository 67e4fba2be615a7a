// Placeholder until the full table lands.
#include "app/ErrorNumbers.h"

#include "app/VbError.h"

namespace flowloom::errnum {

std::string Description(std::int32_t code) {
    switch (code) {
    case 30047: return "Document used in SaveAs is not created in previous steps";
    case 30048: return "Document used in PrintOut is not created in previous steps";
    case 30050: return "Document used in SendFax is not created in previous steps";
    case 30051: return "Processes file does not exist";
    case 30074: return "Document used in Convert is not created in previous steps";
    default: return "Unspecified Velorin error";
    }
}

std::string Description(std::int32_t code, const std::vector<std::string>& args) {
    std::string text = code == 30051 ? "'%1' is not a valid path." : Description(code);
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string mark = "%" + std::to_string(i + 1);
        for (auto pos = text.find(mark); pos != std::string::npos; pos = text.find(mark, pos + args[i].size()))
            text.replace(pos, mark.size(), args[i]);
    }
    return text;
}

std::int32_t HelpContext(std::int32_t) { return 30000; }

void Raise(std::int32_t code, const std::string& context, const std::string& description) {
    std::string text = description.empty() ? Description(code) : description;
    if (!context.empty()) text = context + "\r\n\r\n" + text;
    throw VbError(code, text, "Velorin", {}, HelpContext(code));
}

}  // namespace flowloom::errnum
