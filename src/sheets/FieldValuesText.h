#pragma once

#include "model/Forward.h"
#include "sheets/SheetHost.h"

#include <optional>
#include <string>
#include <vector>

namespace flowloom::sheets {

// The lines a FieldValues row edits. With the table's field list, one line
// per field, "field = value" where a value is fixed and the bare name
// elsewhere; a value whose field is not in the list is not shown. Without a
// list, one "field = value" line per value.
std::vector<std::string> FieldValueLines(const FieldValues& values,
                                         std::optional<std::vector<std::string>> fieldList);

// The field list read last, when it belongs to the process's main datasource
// (same object name and type, no subform); nothing otherwise.
std::optional<std::vector<std::string>> KeptFieldList(const FieldListMemo& memo, const Process& process);

// The lines joined with a carriage return and line feed.
std::string JoinLines(const std::vector<std::string>& lines);

}  // namespace flowloom::sheets
