#pragma once

#include "app/KeyedCollection.h"
#include "model/Datasource.h"

#include <memory>

namespace flowloom {

class Process;

// The datasources of a process, keyed by name; the first of a name wins.
class Datasources {
public:
    // Whether the datasource was added.
    // Adds under the datasource's name (no key when empty). A name that
    // exists is ignored without a word; other failures are reported.
    bool Add(const std::shared_ptr<Datasource>& datasource, const CollectionPosition& before = {},
             const CollectionPosition& after = {});
    std::shared_ptr<Datasource> Item(const CollectionPosition& position) const;
    std::int32_t Count() const noexcept { return items_.Count(); }
    bool Remove(const CollectionPosition& position);
    bool Contains(std::string_view name) const { return items_.Contains(name); }
    bool Holds(const Datasource* datasource) const noexcept { return items_.IndexOf(datasource) != 0; }

    // The named datasource, else the first; nothing when empty.
    std::shared_ptr<Datasource> GetMainDataSource(const std::string& name) const;
    // Adds the very object unless it is already here; changes no order.
    void SetMainDataSource(const std::shared_ptr<Datasource>& datasource);

    auto begin() const { return items_.begin(); }
    auto end() const { return items_.end(); }

    void Dispose();
    void LoadElement(const XmlElementView& node, const std::shared_ptr<Process>& process);

private:
    KeyedCollection<Datasource> items_;
};

}  // namespace flowloom
