#include "model/xml/CProcessesXMLDoc.h"

#include "support/ReportError.h"
#include "support/VbStrings.h"
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
    Guarded(kModule, "Generate", [&] {
        document->AppendDeclaration();
        pugi::xml_node root = document->Native().append_child("Processes");
        if (processes.Version() > 0) xmlw::Always(root, "Version", std::to_string(processes.Version()));
        for (const auto& process : processes.Snapshot()) ProcessFragment(*process, root);
        if (auto databases = processes.Databases(); databases && databases->Count() > 0) {
            pugi::xml_node element = root.append_child("Databases");
            for (const auto& database : *databases) DatabaseFragment(*database, element);
        }
        if (processes.HasGroups() && processes.Groups()->Count() > 0) {
            pugi::xml_node element = root.append_child("Groups");
            for (const auto& group : *processes.Groups()) GroupFragment(*group, element);
        }
        if (auto options = processes.Options(); options && options->Count() > 0) {
            pugi::xml_node element = root.append_child("Options");
            for (const auto& option : *options) OptionFragment(*option, element);
        }
    });
    return document;
}

pugi::xml_node CProcessesXMLDoc::ProcessFragment(const Process& process, pugi::xml_node parent) {
    pugi::xml_node element = parent.append_child("Process");
    Guarded(kModule, "ProcessFragment", [&] {
        xmlw::Text(element, "Name", process.name());
        xmlw::Text(element, "MainDatasourceName", process.MainDataSourceName());
        xmlw::Always(element, "ProcessRecords", WordAt(kProcessRecordsWords, process.ProcessRecords()));
        if (process.AbortOnError() != Process::DefaultErrorSetting) xmlw::Bool(element, "AbortOnError", process.AbortOnError());
        if (process.OnErrorNotifyUser() != Process::DefaultErrorSetting)
            xmlw::Bool(element, "OnErrorNotifyUser", process.OnErrorNotifyUser());

        if (auto activities = process.Activities(); activities && activities->Count() > 0) {
            pugi::xml_node container = element.append_child("Activities");
            for (const auto& activity : *activities) ActivityFragment(*activity, container);
        }
        if (auto datasources = process.Datasources(); datasources && datasources->Count() > 0) {
            pugi::xml_node container = element.append_child("Datasources");
            for (const auto& datasource : *datasources) DatasourceFragment(*datasource, container);
        }
        if (auto documents = process.Documents(); documents && documents->Count() > 0) {
            pugi::xml_node container = element.append_child("Documents");
            for (const auto& document : *documents) DocumentFragment(*document, container);
        }
        if (process.HasGroups() && process.Groups()->Count() > 0) {
            // Only groups the file defines are written; the container stays
            // even when none of them is.
            pugi::xml_node container = element.append_child("Groups");
            auto owner = process.Parent();
            for (const auto& group : *process.Groups()) {
                std::shared_ptr<Group> known;
                if (owner && owner->HasGroups()) known = owner->Groups()->Find(group->name);
                if (known && !known->name.empty()) GroupFragment(*known, container);
            }
        }
        if (process.HasFieldValues() && process.FieldValues()->Count() > 0) {
            pugi::xml_node container = element.append_child("FieldValues");
            for (const auto& fieldValue : *process.FieldValues()) FieldValueFragment(*fieldValue, container);
        }
        // Read last: its fallback on the main datasource's name is kept by the read.
        xmlw::Text(element, "LogDatasourceName", process.LogDatasourceName());
    });
    return element;
}

pugi::xml_node CProcessesXMLDoc::DatasourceFragment(const Datasource& datasource, pugi::xml_node parent) {
    pugi::xml_node element = parent.append_child("Datasource");
    Guarded(kModule, "DatasourceFragment", [&] {
        xmlw::Text(element, "Name", datasource.name());
        xmlw::Text(element, "Type", datasource.Type_);
        xmlw::Text(element, "Database", datasource.Database);
        xmlw::Text(element, "ObjectName", datasource.ObjectName);
        if (datasource.Records > 0) xmlw::Always(element, "Records", WordAt(kProcessRecordsWords, datasource.Records));
        xmlw::Text(element, "SubformFullName", datasource.SubFormFullName);
        xmlw::Text(element, "SaveXmlToFolder", datasource.SaveXmlToFolder);
    });
    return element;
}

pugi::xml_node CProcessesXMLDoc::DocumentFragment(const Document& document, pugi::xml_node parent) {
    pugi::xml_node element = parent.append_child("Document");
    xmlw::Text(element, "Name", document.name);
    return element;
}

pugi::xml_node CProcessesXMLDoc::DatabaseFragment(const Database& database, pugi::xml_node parent) {
    pugi::xml_node element = parent.append_child("Database");
    xmlw::Text(element, "Name", database.name);
    xmlw::Text(element, "Location", database.Location);
    xmlw::Text(element, "Type", database.Type_);
    return element;
}

pugi::xml_node CProcessesXMLDoc::GroupFragment(const Group& group, pugi::xml_node parent) {
    pugi::xml_node element = parent.append_child("Group");
    xmlw::Text(element, "Name", group.name);
    return element;
}

pugi::xml_node CProcessesXMLDoc::FieldValueFragment(const FieldValue& fieldValue, pugi::xml_node parent) {
    pugi::xml_node element = parent.append_child("FieldValue");
    xmlw::Text(element, "Name", fieldValue.field);
    // The quote goes in as an entity of its own, which the XML layer escapes
    // once more: the run-time reads the value back the same way.
    xmlw::Text(element, "Value", vb::Replace(fieldValue.value, "\"", "&quot;"));
    return element;
}

pugi::xml_node CProcessesXMLDoc::OptionFragment(const OptionItem& option, pugi::xml_node parent) {
    pugi::xml_node element = parent.append_child(option.name.c_str());
    Guarded(kModule, "OptionFragment", [&] {
        if (option.Attributes)
            for (const auto& entry : *option.Attributes) xmlw::Always(element, entry->name.c_str(), entry->value.Text());
    });
    return element;
}

std::string ProcessFragmentXml(const Process& process) {
    pugi::xml_document document;
    CProcessesXMLDoc().ProcessFragment(process, document);
    return SerializeNode(document);
}

}  // namespace flowloom
