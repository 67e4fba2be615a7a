#include "model/AddRecord.h"

#include "support/ReportError.h"
#include "support/VbStrings.h"
#include "model/FieldValue.h"
#include "model/Process.h"
#include "app/XmlDocument.h"

namespace flowloom {

const std::string& AddRecord::DatasourceName() const {
    if (datasourceName_.empty())
        if (auto process = ParentProcess()) datasourceName_ = process->MainDataSourceName();
    return datasourceName_;
}

std::shared_ptr<flowloom::FieldValues> AddRecord::FieldValues() const {
    if (!fieldValues_) fieldValues_ = std::make_shared<flowloom::FieldValues>();
    return fieldValues_;
}

void AddRecord::Dispose() {
    fieldValues_.reset();
    datasource_.reset();
    Activity::Dispose();
}

void AddRecord::LoadElement(const XmlElementView& node, const std::shared_ptr<Process>& process) {
    SetParentProcess(process);
    for (const MeasuredAttribute a : MeasuredAttributes(node)) {
        if (NameIs(a, "Database")) database_ = a.value();
        else if (NameIs(a, "TableName")) tablename_ = a.value();
        else if (NameIs(a, "Description")) SetDescription(std::string(a.value()));
        else if (NameIs(a, "DatasourceName")) datasourceName_ = a.value();
    }
    XmlElementView values = node.child("FieldValues");
    if (!values) return;
    fieldValues_ = std::make_shared<flowloom::FieldValues>();
    for (const XmlElementView& child : values.children()) {
        Guarded("AddRecord", "LoadElement", [&] {
            auto fieldValue = ReadFieldValue(child);
            fieldValues_->Add(fieldValue, fieldValue->field);  // a second of one name is reported
        });
    }
}

std::string EncloseInBrackets(const std::string& name) {
    std::string text = vb::Trim(name);
    if (text.empty() || text.front() != '[') text.insert(text.begin(), '[');
    if (text.back() != ']') text.push_back(']');
    return text;
}

}  // namespace flowloom
