#pragma once

#include "app/KeyedCollection.h"
#include "model/Group.h"

#include <memory>

namespace flowloom {

// Groups, keyed by name: those a file knows, or those that may use a process.
class Groups {
public:
    // Adds under the key when it is not empty; a key that exists is ignored.
    bool Add(const std::shared_ptr<Group>& group, const std::string& key);
    std::shared_ptr<Group> Item(const CollectionPosition& position) const;
    std::int32_t Count() const noexcept { return items_.Count(); }
    bool Remove(const CollectionPosition& position);
    bool Contains(std::string_view name) const { return items_.Contains(name); }
    std::shared_ptr<Group> Find(std::string_view name) const { return items_.Find(name); }

    auto begin() const { return items_.begin(); }
    auto end() const { return items_.end(); }

    void Dispose() { items_.Clear(); }
    void LoadElement(const XmlElementView& node);

private:
    KeyedCollection<Group> items_;
};

}  // namespace flowloom
