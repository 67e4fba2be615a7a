#pragma once

#include "app/KeyedCollection.h"
#include "model/Document.h"

#include <memory>

namespace flowloom {

// The documents of a process, keyed by name.
class Documents {
public:
    // Nothing for an empty reference; a key that exists is ignored without a
    // word; other failures are reported.
    bool Add(const std::shared_ptr<Document>& document, const std::string& key);
    std::shared_ptr<Document> Item(const CollectionPosition& position) const;
    std::int32_t Count() const noexcept { return items_.Count(); }
    bool Remove(const CollectionPosition& position);
    bool Contains(std::string_view name) const { return items_.Contains(name); }
    std::shared_ptr<Document> Find(std::string_view name) const { return items_.Find(name); }

    auto begin() const { return items_.begin(); }
    auto end() const { return items_.end(); }

    void Dispose();
    void LoadElement(const XmlElementView& node);

private:
    KeyedCollection<Document> items_;
};

}  // namespace flowloom
