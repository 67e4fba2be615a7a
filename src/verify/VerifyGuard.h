#pragma once

#include "support/ReportError.h"
#include "support/VbError.h"
#include "verify/ProcessVerifier.h"

#include <string_view>

namespace flowloom::verify_detail {

// The error handler of a rule: a failure is reported under the rule's name
// and the verification goes on with the next rule; only the stop of the
// stop-at-first-error mode passes through.
template <typename Rule>
void Guarded(std::string_view procedure, Rule&& rule) {
    try {
        rule();
    } catch (const VbError& e) {
        if (e.Number() == kVerifyStopped) throw;
        ReportError(e, "modVerify", procedure);
    } catch (...) {
        ReportPendingError("modVerify", procedure);
    }
}

}  // namespace flowloom::verify_detail
