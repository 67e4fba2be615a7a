#include "model/xml/CProcessesXMLDoc.h"

#include "support/ReportError.h"
#include "model/Activities.h"
#include "model/Databases.h"
#include "model/Datasources.h"
#include "model/Documents.h"
#include "model/FieldValue.h"
#include "model/Groups.h"
#include "model/Process.h"
#include "model/Processes.h"
#include "model/xml/AttributeWriter.h"
#include "options/Options.h"

namespace flowloom {

namespace {
constexpr const char* kModule = "CProcessesXMLDoc";
}

std::unique_ptr<XmlDocument> CProcessesXMLDoc::Generate(const Processes& processes) {
    auto document = std::make_unique<XmlDocument>();
    document->AppendDeclaration();
    PugiXmlSink sink(document->Native());
    WriteRoot(processes, sink);
    return document;
}

template <typename Sink>
void CProcessesXMLDoc::WriteRoot(const Processes& processes, Sink& out) {
    XmlElement root(out, "Processes");
    Guarded(kModule, "Generate", [&] {
        if (processes.Version() > 0) xmlw::Always(out, "Version", std::to_string(processes.Version()));
        for (const auto& process : processes) {
            if (out.Stopped()) return;
            WriteProcess(*process, out);
        }
        if (auto databases = processes.Databases(); databases && databases->Count() > 0) {
            XmlElement element(out, "Databases");
            for (const auto& database : *databases) DatabaseFragment(*database, out);
        }
        if (processes.HasGroups() && processes.Groups()->Count() > 0) {
            XmlElement element(out, "Groups");
            for (const auto& group : *processes.Groups()) GroupFragment(*group, out);
        }
        if (auto options = processes.Options(); options && options->Count() > 0) {
            XmlElement element(out, "Options");
            for (const auto& option : *options) {
                // Option names come from the file: the layer's serialiser
                // checks them, as it does for any element.
                pugi::xml_document fragment;
                OptionFragment(*option, fragment);
                out.Subtree(fragment.first_child());
            }
        }
    });
}

pugi::xml_node CProcessesXMLDoc::ProcessFragment(const Process& process, pugi::xml_node parent) {
    PugiXmlSink sink(parent);
    WriteProcess(process, sink);
    return parent.last_child();
}

template <typename Sink>
void CProcessesXMLDoc::WriteProcess(const Process& process, Sink& out) {
    XmlElement element(out, "Process");
    Guarded(kModule, "ProcessFragment", [&] {
        xmlw::Text(out, "Name", process.name());
        xmlw::Text(out, "MainDatasourceName", process.MainDataSourceName());
        xmlw::Word<kProcessRecordsWords>(out, "ProcessRecords", process.ProcessRecords());
        if (process.AbortOnError() != Process::DefaultErrorSetting) xmlw::Bool(out, "AbortOnError", process.AbortOnError());
        if (process.OnErrorNotifyUser() != Process::DefaultErrorSetting)
            xmlw::Bool(out, "OnErrorNotifyUser", process.OnErrorNotifyUser());
        // An attribute, so before the children; nothing they write changes
        // the main datasource's name it falls back on.
        xmlw::Text(out, "LogDatasourceName", process.LogDatasourceName());

        if (const auto& activities = process.Activities(); activities && activities->Count() > 0) {
            XmlElement container(out, "Activities");
            for (const auto& activity : *activities) WriteActivity(*activity, out);
        }
        if (const auto& datasources = process.Datasources(); datasources && datasources->Count() > 0) {
            XmlElement container(out, "Datasources");
            for (const auto& datasource : *datasources) DatasourceFragment(*datasource, out);
        }
        if (const auto& documents = process.Documents(); documents && documents->Count() > 0) {
            XmlElement container(out, "Documents");
            for (const auto& document : *documents) DocumentFragment(*document, out);
        }
        if (process.HasGroups() && process.Groups()->Count() > 0) {
            // Only groups the file defines are written; the container stays
            // even when none of them is.
            XmlElement container(out, "Groups");
            auto owner = process.Parent();
            for (const auto& group : *process.Groups()) {
                std::shared_ptr<Group> known;
                if (owner && owner->HasGroups()) known = KnownGroup(owner->Groups(), group->name);
                if (known && !known->name.empty()) GroupFragment(*known, out);
            }
        }
        if (process.HasFieldValues() && process.FieldValues()->Count() > 0) {
            XmlElement container(out, "FieldValues");
            for (const auto& fieldValue : *process.FieldValues()) FieldValueFragment(*fieldValue, out);
        }
    });
}

std::shared_ptr<Group> CProcessesXMLDoc::KnownGroup(const std::shared_ptr<Groups>& groups, const std::string& name) {
    // Kept while the model is unchanged (every edit counts a revision); the
    // collection is held, so that no other one can take its place meanwhile.
    const std::uint64_t revision = ModelRevision::Current();
    if (groups != lastGroup_.groups || name != lastGroup_.name || revision != lastGroup_.revision)
        lastGroup_ = {groups, name, revision, groups->Find(name)};
    return lastGroup_.found;
}

template <typename Sink>
void CProcessesXMLDoc::DatasourceFragment(const Datasource& datasource, Sink& out) {
    XmlElement element(out, "Datasource");
    Guarded(kModule, "DatasourceFragment", [&] {
        xmlw::Text(out, "Name", datasource.name());
        xmlw::Text(out, "Type", datasource.Type_);
        xmlw::Text(out, "Database", datasource.Database);
        xmlw::Text(out, "ObjectName", datasource.ObjectName);
        if (datasource.Records > 0) xmlw::Word<kProcessRecordsWords>(out, "Records", datasource.Records);
        xmlw::Text(out, "SubformFullName", datasource.SubFormFullName);
        xmlw::Text(out, "SaveXmlToFolder", datasource.SaveXmlToFolder);
    });
}

template <typename Sink>
void CProcessesXMLDoc::DocumentFragment(const Document& document, Sink& out) {
    XmlElement element(out, "Document");
    xmlw::Text(out, "Name", document.name);
}

template <typename Sink>
void CProcessesXMLDoc::DatabaseFragment(const Database& database, Sink& out) {
    XmlElement element(out, "Database");
    xmlw::Text(out, "Name", database.name);
    xmlw::Text(out, "Location", database.Location);
    xmlw::Text(out, "Type", database.Type_);
}

template <typename Sink>
void CProcessesXMLDoc::GroupFragment(const Group& group, Sink& out) {
    XmlElement element(out, "Group");
    xmlw::Text(out, "Name", group.name);
}

template <typename Sink>
void CProcessesXMLDoc::FieldValueFragment(const FieldValue& fieldValue, Sink& out) {
    XmlElement element(out, "FieldValue");
    xmlw::Text(out, "Name", fieldValue.field);
    // The quote goes in as an entity of its own, which the XML layer escapes
    // once more: the run-time reads the value back the same way.
    const std::string& value = fieldValue.value;
    std::size_t quote = value.find('"');
    if (quote == std::string::npos) return xmlw::Text(out, "Value", value);
    quoted_.clear();
    std::size_t start = 0;
    for (; quote != std::string::npos; start = quote + 1, quote = value.find('"', start))
        quoted_.append(value, start, quote - start).append("&quot;");
    quoted_.append(value, start);
    xmlw::Text(out, "Value", quoted_);
}

pugi::xml_node CProcessesXMLDoc::OptionFragment(const OptionItem& option, pugi::xml_node parent) {
    pugi::xml_node element = parent.append_child(option.name.c_str());
    Guarded(kModule, "OptionFragment", [&] {
        if (option.Attributes)
            for (const auto& entry : *option.Attributes)
            {
                const std::string value = entry->value.Text();
                element.append_attribute(entry->name.c_str()).set_value(value.data(), value.size());
            }
    });
    return element;
}

std::string ProcessFragmentXml(const Process& process) {
    TextXmlSink sink;
    CProcessesXMLDoc().WriteProcess(process, sink);
    return sink.Finish();
}

std::string ProcessesFileXml(const Processes& processes, std::size_t sizeHint, TextXmlSink::Consumer consumer) {
    TextXmlSink sink(sizeHint, std::move(consumer));
    sink.Declaration();
    CProcessesXMLDoc().WriteRoot(processes, sink);
    return sink.Finish();
}

// The writers for both sinks; the activities' fragments take FieldValueFragment.
template void CProcessesXMLDoc::WriteRoot(const Processes&, TextXmlSink&);
template void CProcessesXMLDoc::WriteRoot(const Processes&, PugiXmlSink&);
template void CProcessesXMLDoc::WriteProcess(const Process&, TextXmlSink&);
template void CProcessesXMLDoc::WriteProcess(const Process&, PugiXmlSink&);
template void CProcessesXMLDoc::FieldValueFragment(const FieldValue&, TextXmlSink&);
template void CProcessesXMLDoc::FieldValueFragment(const FieldValue&, PugiXmlSink&);

}  // namespace flowloom
