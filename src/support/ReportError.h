#pragma once

#include "support/VbError.h"

#include <cstdint>
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

// The error handler of a procedure that reports and lets its caller go on:
// runs `body`; a failure is reported under module and procedure. Whether the
// body ran through.
template <typename Body>
bool Guarded(std::string_view module, std::string_view procedure, Body&& body, ReportFlags flags = {}) noexcept {
    try {
        body();
        return true;
    } catch (...) {
        ReportPendingError(module, procedure, flags);
        return false;
    }
}

// The error handler of a procedure with a result: the body's result, or
// `fallback` after a failure was reported.
template <typename Result, typename Body>
Result GuardedOr(std::string_view module, std::string_view procedure, Result fallback, Body&& body) noexcept {
    try {
        return body();
    } catch (...) {
        ReportPendingError(module, procedure);
        return fallback;
    }
}

// As Guarded, but the error numbered `passOn` goes on to the caller
// unreported (a stop that an outer handler waits for).
template <typename Body>
bool GuardedPassing(std::int32_t passOn, std::string_view module, std::string_view procedure, Body&& body) {
    try {
        body();
        return true;
    } catch (const VbError& e) {
        if (e.Number() == passOn) throw;
        ReportError(e, module, procedure);
        return false;
    } catch (...) {
        ReportPendingError(module, procedure);
        return false;
    }
}

}  // namespace flowloom
