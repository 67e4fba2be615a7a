#pragma once

#include "app/CDictionary.h"
#include "app/KeyedCollection.h"

#include <pugixml.hpp>

#include <memory>
#include <string>

namespace flowloom {

using DictionaryCollection = KeyedCollection<CDictionary>;

// One group of options: its name (the element's name) and its values
// (attributes), with optional details per attribute from child elements.
class OptionItem {
public:
    std::string name;
    std::shared_ptr<DictionaryCollection> Attributes = std::make_shared<DictionaryCollection>();
    std::shared_ptr<KeyedCollection<DictionaryCollection>> Properties =
        std::make_shared<KeyedCollection<DictionaryCollection>>();

    void LoadElement(const pugi::xml_node& node);
};

// Named groups of named values, as they stand in a file's Options element.
class Options {
public:
    // Ignores an empty item (false); an empty key adds without a key; a key
    // that exists is error 457 for the caller's handler.
    bool Add(const std::shared_ptr<OptionItem>& item, const std::string& key);
    std::shared_ptr<OptionItem> Item(const CollectionPosition& position) const { return items_.ItemAt(position); }
    std::shared_ptr<OptionItem> Find(std::string_view name) const { return items_.Find(name); }
    std::int32_t Count() const noexcept { return items_.Count(); }
    // False when the position names no group.
    bool Remove(const CollectionPosition& position) { return items_.TryRemoveAt(position); }

    auto begin() const { return items_.begin(); }
    auto end() const { return items_.end(); }

    void Dispose() { items_.Clear(); }
    void LoadElement(const pugi::xml_node& node);

private:
    KeyedCollection<OptionItem> items_;
};

}  // namespace flowloom
