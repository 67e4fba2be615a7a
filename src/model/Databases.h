#pragma once

#include "app/KeyedCollection.h"
#include "model/Database.h"

#include <memory>

namespace flowloom {

// The databases a file knows, keyed by name.
class Databases {
public:
    // A name that exists gives the message "Database <name> already exists."
    // and the database is not added.
    bool Add(const std::shared_ptr<Database>& database, const CollectionPosition& before = {},
             const CollectionPosition& after = {});
    std::shared_ptr<Database> Item(const CollectionPosition& position) const;
    std::int32_t Count() const noexcept { return items_.Count(); }
    bool Remove(const CollectionPosition& position);

    auto begin() const { return items_.begin(); }
    auto end() const { return items_.end(); }

    void Dispose() { items_.Clear(); }
    void LoadElement(const XmlElementView& node);

private:
    KeyedCollection<Database> items_;
};

}  // namespace flowloom
