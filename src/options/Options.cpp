#include "options/Options.h"

#include "support/ReportError.h"

#include <cstring>

namespace flowloom {

namespace {

std::shared_ptr<DictionaryCollection> AttributesOf(const pugi::xml_node& element) {
    auto attributes = std::make_shared<DictionaryCollection>();
    for (const pugi::xml_attribute& a : element.attributes())
        attributes->Add(std::make_shared<CDictionary>(CDictionary{a.name(), std::string(a.value())}), a.name());
    return attributes;
}

// The element's name without a namespace prefix. The reader takes only
// qualified names, so what follows a prefix is a name of its own.
std::string BaseName(const char* name) {
    const char* colon = std::strchr(name, ':');
    return colon ? std::string(colon + 1) : std::string(name);
}

}  // namespace

void OptionItem::LoadElement(const pugi::xml_node& node) {
    for (const pugi::xml_attribute& a : node.attributes()) {
        Guarded("OptionItem", "LoadElement", [&] {
            Attributes->Add(std::make_shared<CDictionary>(CDictionary{a.name(), std::string(a.value())}), a.name());
            // Details of the value, if the element has a child of its name.
            if (pugi::xml_node details = node.child(a.name())) Properties->Add(AttributesOf(details), a.name());
        });
    }
}

bool Options::Add(const std::shared_ptr<OptionItem>& item, const std::string& key) {
    if (!item) return false;
    items_.Add(item, key);
    return true;
}

void Options::LoadElement(const pugi::xml_node& node) {
    for (const pugi::xml_node& child : node.children()) {
        if (child.type() != pugi::node_element) continue;
        Guarded("Options", "LoadElement", [&] {
            auto item = std::make_shared<OptionItem>();
            item->name = BaseName(child.name());
            item->LoadElement(child);
            Add(item, item->name);
        });
    }
}

}  // namespace flowloom
