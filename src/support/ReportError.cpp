#include "support/ReportError.h"

#include "support/ErrorHandler.h"

#include <string>

namespace flowloom {

int ReportError(const VbError& error, std::string_view module, std::string_view procedure,
                ReportFlags flags) noexcept {
    try {
        return ErrorHandler::Shared().ErrorMessage(
            error.Number(), 0, error.Description(), {}, std::string(module), std::string(procedure),
            true, flags.handledByCallingProcedure, flags.pickLinesFromErrorlog, error.HelpFile(),
            error.HelpContext());
    } catch (...) {
        return 0;  // reporting must never raise a second error
    }
}

int ReportPendingError(std::string_view module, std::string_view procedure, ReportFlags flags) noexcept {
    try {
        return ReportError(PendingError(), module, procedure, flags);
    } catch (...) {
        return 0;
    }
}

}  // namespace flowloom
