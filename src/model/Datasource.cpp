#include "model/Datasource.h"

#include "support/ReportError.h"
#include "support/TextCompare.h"
#include "model/Process.h"
#include "app/XmlDocument.h"

namespace flowloom {

const std::string& Datasource::name() const {
    if (name_.empty()) name_ = ObjectName;
    return name_;
}

void Datasource::LoadElement(const XmlElementView& node, const std::shared_ptr<Process>& process) {
    parent_ = process;
    bool recordsRead = false;
    for (const MeasuredAttribute a : MeasuredAttributes(node)) {
        Guarded("Datasource", "LoadElement", [&] {
            if (NameIs(a, "Name")) name_ = a.value();
            else if (NameIs(a, "Type")) Type_ = a.value();
            else if (NameIs(a, "Database")) Database = a.value();
            else if (NameIs(a, "ObjectName")) ObjectName = a.value();
            else if (NameIs(a, "SubformFullName")) SubFormFullName = a.value();
            else if (NameIs(a, "SaveXmlToFolder")) SaveXmlToFolder = a.value();
            else if (NameIs(a, "Records")) {
                if (auto records = ReadProcessRecords(a.value())) {
                    Records = *records;
                    recordsRead = true;
                }
            }
        });
    }
    // Only a name that stands in the file makes a main datasource; one derived
    // from ObjectName does not take part.
    if (!process || name_.empty() || !EqualsNoCase(name_, process->MainDataSourceName())) return;
    Guarded("Datasource", "LoadElement", [&] {
        process->SetMainDataSource(weak_from_this().lock());
        if (recordsRead) process->SetProcessRecords(Records);
    });
}

void Datasource::Dispose() { parent_.reset(); }

}  // namespace flowloom
