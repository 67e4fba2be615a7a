#pragma once

#include "support/VbError.h"

#include <string_view>

namespace flowloom {

struct ReportFlags {
    bool handledByCallingProcedure = false;
    bool pickLinesFromErrorlog = false;
};

// The one call of every error handler: hands the pending error and the names
// of the module and the procedure to the shared ErrorHandler. Returns the
// answer of the box that was shown. Never throws.
int ReportError(const VbError& error, std::string_view module, std::string_view procedure,
                ReportFlags flags = {}) noexcept;

// Inside a catch block: ReportError(PendingError(), module, procedure).
int ReportPendingError(std::string_view module, std::string_view procedure, ReportFlags flags = {}) noexcept;

}  // namespace flowloom
