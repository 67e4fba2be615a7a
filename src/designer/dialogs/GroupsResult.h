#pragma once

#include "model/Forward.h"

#include <string>

namespace flowloom::dialogs {

// The process's groups become one new Group per trimmed, non-empty line of
// a groups dialog's result, in order; a name given twice counts once.
void ReplaceProcessGroups(Process& process, const std::string& result);

}  // namespace flowloom::dialogs
