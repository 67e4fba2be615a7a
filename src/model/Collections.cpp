// Groups, Databases, Documents and Datasources: the keyed collections of the
// model with their readers.
#include "model/Databases.h"
#include "model/Datasources.h"
#include "model/Documents.h"
#include "model/Groups.h"

#include "support/ReportError.h"
#include "model/Process.h"
#include "model/xml/ElementCount.h"
#include "support/Prompts.h"

namespace flowloom {

namespace {

// Adds with a key, ignoring a key that exists; other failures are reported.
template <typename T>
bool AddIgnoringDuplicate(KeyedCollection<T>& items, const std::shared_ptr<T>& item, std::string_view key,
                          const CollectionPosition& before, const CollectionPosition& after,
                          std::string_view module) {
    if (!item) return false;
    bool added = false;
    Guarded(module, "Add", [&] { added = items.TryAdd(item, key, before, after); });
    return added;
}

template <typename T>
std::shared_ptr<T> ReportedItem(const KeyedCollection<T>& items, const CollectionPosition& position,
                                std::string_view module) {
    std::shared_ptr<T> item;
    Guarded(module, "Item", [&] { item = items.ItemAt(position); });
    return item;
}

}  // namespace

// --- Groups

bool Groups::Add(const std::shared_ptr<Group>& group, const std::string& key) {
    return AddIgnoringDuplicate(items_, group, key, {}, {}, "Groups");
}

std::shared_ptr<Group> Groups::Item(const CollectionPosition& position) const {
    return ReportedItem(items_, position, "Groups");
}

bool Groups::Remove(const CollectionPosition& position) { return items_.TryRemoveAt(position); }

void Groups::LoadElement(const XmlElementView& node) {
    for (const XmlElementView& child : node.children()) {
        auto group = std::make_shared<Group>();
        group->LoadElement(child);
        Add(group, group->name);
    }
}

// --- Databases

bool Databases::Add(const std::shared_ptr<Database>& database, const CollectionPosition& before,
                    const CollectionPosition& after) {
    if (!database) return false;
    if (!database->name.empty() && items_.Contains(database->name)) {
        MsgBox("Database " + database->name + " already exists.", msgbox::Exclamation);
        return false;
    }
    bool added = false;
    Guarded("Databases", "Add", [&] { added = items_.TryAdd(database, database->name, before, after); });
    return added;
}

std::shared_ptr<Database> Databases::Item(const CollectionPosition& position) const {
    return ReportedItem(items_, position, "Databases");
}

bool Databases::Remove(const CollectionPosition& position) { return items_.TryRemoveAt(position); }

void Databases::LoadElement(const XmlElementView& node) {
    for (const XmlElementView& child : node.children("Database")) {
        auto database = std::make_shared<Database>();
        database->LoadElement(child);
        Add(database);
    }
}

// --- Documents

bool Documents::Add(const std::shared_ptr<Document>& document, const std::string& key) {
    return AddIgnoringDuplicate(items_, document, key, {}, {}, "Documents");
}

std::shared_ptr<Document> Documents::Item(const CollectionPosition& position) const {
    return ReportedItem(items_, position, "Documents");
}

bool Documents::Remove(const CollectionPosition& position) { return items_.TryRemoveAt(position); }

void Documents::Dispose() {
    for (const auto& document : items_) document->Dispose();
    items_.Clear();
}

void Documents::LoadElement(const XmlElementView& node) {
    items_.Reserve(static_cast<std::size_t>(items_.Count()) + ElementCount(node, "Document"));
    for (const XmlElementView& child : node.children("Document")) {
        auto document = std::make_shared<Document>();
        document->LoadElement(child);
        Add(document, document->name);
    }
}

// --- Datasources

bool Datasources::Add(const std::shared_ptr<Datasource>& datasource, const CollectionPosition& before,
                      const CollectionPosition& after) {
    if (!datasource) return false;
    return AddIgnoringDuplicate(items_, datasource, datasource->name(), before, after, "Datasources");
}

std::shared_ptr<Datasource> Datasources::Item(const CollectionPosition& position) const {
    return ReportedItem(items_, position, "Datasources");
}

bool Datasources::Remove(const CollectionPosition& position) { return items_.TryRemoveAt(position); }

std::shared_ptr<Datasource> Datasources::GetMainDataSource(const std::string& name) const {
    if (items_.Empty()) return nullptr;
    std::shared_ptr<Datasource> main;
    if (!name.empty()) main = items_.Find(name);
    return main ? main : items_.Item(1);
}

void Datasources::SetMainDataSource(const std::shared_ptr<Datasource>& datasource) {
    if (!Holds(datasource.get())) Add(datasource);
}

void Datasources::Dispose() {
    for (const auto& datasource : items_) datasource->Dispose();
    items_.Clear();
}

void Datasources::LoadElement(const XmlElementView& node, const std::shared_ptr<Process>& process) {
    items_.Reserve(static_cast<std::size_t>(items_.Count()) + ElementCount(node, "Datasource"));
    for (const XmlElementView& child : node.children("Datasource")) {
        Guarded("Datasources", "LoadElement", [&] {
            auto datasource = std::make_shared<Datasource>();
            datasource->LoadElement(child, process);
            // Reading a main datasource registers it already: the first of a name wins.
            if (!items_.Contains(datasource->name())) Add(datasource);
        });
    }
}

}  // namespace flowloom
