#include "sheets/FieldValuesText.h"

#include "model/Datasource.h"
#include "model/FieldValue.h"
#include "model/Process.h"
#include "sheets/SheetRows.h"
#include "support/TextCompare.h"
#include "support/VbStrings.h"

#include <algorithm>

namespace flowloom::sheets {

namespace {

std::string Line(const FieldValue& value) { return value.field + " = " + value.value; }

}  // namespace

std::vector<std::string> FieldValueLines(const FieldValues& values, std::optional<std::vector<std::string>> fieldList) {
    if (!fieldList) {
        std::vector<std::string> lines;
        for (const auto& value : values) lines.push_back(Line(*value));
        return lines;
    }
    for (const auto& value : values) {
        auto field = std::find_if(fieldList->begin(), fieldList->end(),
                                  [&](const std::string& name) { return EqualsNoCase(name, value->field); });
        if (field != fieldList->end()) *field = Line(*value);
    }
    return std::move(*fieldList);
}

std::optional<std::vector<std::string>> KeptFieldList(const FieldListMemo& memo, const Process& process) {
    const auto main = process.MainDataSource();
    // A memo never filled holds no fields: the values are then listed alone.
    if (!main || memo.fields.empty()) return std::nullopt;
    if (!EqualsNoCase(main->ObjectName, memo.objectName) || !EqualsNoCase(main->Type_, memo.type) ||
        !main->SubFormFullName.empty())
        return std::nullopt;
    return SplitList(memo.fields);
}

std::string JoinLines(const std::vector<std::string>& lines) { return vb::Join(lines, "\r\n"); }

void FillFieldValues(flowloom::FieldValues& values, std::string_view text) {
    for (const std::string& line : vb::Split(text, "\r\n")) {
        if (line.find('=') == std::string::npos) continue;
        const std::vector<std::string> parts = vb::Split(line, "=");
        auto value = std::make_shared<FieldValue>(FieldValue{vb::Trim(parts[0]), vb::Trim(parts[1])});
        if (value->value.empty()) continue;
        const std::string key = value->field;
        values.Add(std::move(value), key);
    }
}

}  // namespace flowloom::sheets
