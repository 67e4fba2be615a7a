#pragma once

#include "support/ReportError.h"
#include "verify/ProcessVerifier.h"

#include <string_view>

namespace flowloom::verify_detail {

// The error handler of a rule: a failure is reported under the rule's name
// and the verification goes on with the next rule; only the stop of the
// stop-at-first-error mode passes through.
template <typename Rule>
void GuardedRule(std::string_view procedure, Rule&& rule) {
    GuardedPassing(kVerifyStopped, "modVerify", procedure, std::forward<Rule>(rule));
}

}  // namespace flowloom::verify_detail
