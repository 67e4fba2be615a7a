#pragma once

#include "model/Forward.h"
#include "sheets/SheetHost.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
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

// Reads the lines of a FieldValues text back into `values`: each line with
// "=" gives the field before it and the value after it, both trimmed (what
// follows a second "=" is lost); lines without "=" and empty values give
// nothing. A field given twice raises the collection's error 457.
void FillFieldValues(flowloom::FieldValues& values, std::string_view text);

// The owner (a process or an AddRecord) takes a new collection first, then
// the values of the text, so that a failure leaves those read until then.
template <typename Owner>
void ParseFieldValues(Owner& owner, std::string_view text) {
    auto values = std::make_shared<flowloom::FieldValues>();
    owner.SetFieldValues(values);
    FillFieldValues(*values, text);
}

}  // namespace flowloom::sheets
