#include "app/XmlNamespaces.h"

#include "app/XmlChars.h"

#include <algorithm>
#include <tuple>

namespace flowloom {

namespace {

constexpr std::string_view kXmlNamespace = "http://www.w3.org/XML/1998/namespace";
constexpr std::string_view kXmlnsNamespace = "http://www.w3.org/2000/xmlns/";
constexpr const char* kDuplicate = "Duplicate attribute.";

bool IsDeclaration(std::string_view name) { return name == "xmlns" || name.substr(0, 6) == "xmlns:"; }

}  // namespace

const char* XmlNamespaceScope::Open(std::string_view element, const std::vector<XmlAttributeView>& attributes,
                                    std::vector<const char*>& faults) {
    opened_.push_back(bindings_.size());
    faults.assign(attributes.size(), nullptr);
    MarkDuplicates(attributes, faults);
    // Declarations hold for the element's own names, wherever they stand.
    for (std::size_t i = 0; i < attributes.size(); ++i) {
        const XmlAttributeView& a = attributes[i];
        if (faults[i] || !IsDeclaration(a.name)) continue;
        faults[i] = DeclarationFault(a.name, a.value);
        if (!faults[i]) bindings_.emplace_back(a.name.size() > 5 ? a.name.substr(6) : std::string_view(), a.value);
    }
    std::vector<std::tuple<std::string_view, std::string_view, std::size_t>> expanded;
    for (std::size_t i = 0; i < attributes.size(); ++i) {
        const XmlAttributeView& a = attributes[i];
        if (faults[i] || IsDeclaration(a.name)) continue;
        faults[i] = NameFault(a.name, true);
        const std::string_view prefix = xmlchars::PrefixOf(a.name);
        if (!faults[i] && !prefix.empty()) expanded.emplace_back(xmlchars::LocalPartOf(a.name), *Lookup(prefix), i);
    }
    // Two prefixes of one namespace make two names for one attribute.
    std::sort(expanded.begin(), expanded.end());
    for (std::size_t i = 1; i < expanded.size(); ++i)
        if (std::get<0>(expanded[i]) == std::get<0>(expanded[i - 1]) &&
            std::get<1>(expanded[i]) == std::get<1>(expanded[i - 1]))
            faults[std::max(std::get<2>(expanded[i]), std::get<2>(expanded[i - 1]))] = kDuplicate;
    return NameFault(element, false);
}

void XmlNamespaceScope::OpenUnprefixed(const std::vector<XmlAttributeView>& attributes,
                                       std::vector<const char*>& faults) {
    opened_.push_back(bindings_.size());
    faults.assign(attributes.size(), nullptr);
    MarkDuplicates(attributes, faults);
}

void XmlNamespaceScope::Close() {
    if (opened_.empty()) return;
    bindings_.resize(opened_.back());
    opened_.pop_back();
}

const char* XmlNamespaceScope::DeclarationFault(std::string_view name, std::string_view value) {
    if (name == "xmlns") {
        if (value == kXmlNamespace || value == kXmlnsNamespace)
            return "The xml and xmlns namespaces cannot be the default namespace.";
        return nullptr;
    }
    const std::string_view prefix = name.substr(6);
    if (!xmlchars::IsNCName(prefix)) return "A namespace prefix must be a name without a colon.";
    if (prefix == "xmlns") return "The prefix 'xmlns' cannot be declared.";
    if (prefix == "xml")
        return value == kXmlNamespace ? nullptr : "The prefix 'xml' cannot be bound to another namespace.";
    if (value == kXmlNamespace) return "Only the prefix 'xml' can be bound to the xml namespace.";
    if (value == kXmlnsNamespace) return "The xmlns namespace cannot be bound to a prefix.";
    if (value.empty()) return "A namespace prefix cannot be declared empty.";
    return nullptr;
}

const std::string* XmlNamespaceScope::Lookup(std::string_view prefix) const {
    static const std::string xml(kXmlNamespace);
    if (prefix == "xml") return &xml;
    for (auto it = bindings_.rbegin(); it != bindings_.rend(); ++it)
        if (it->first == prefix) return &it->second;
    return nullptr;
}

const char* XmlNamespaceScope::NameFault(std::string_view name, bool attribute) const {
    const xmlchars::NameShape shape = xmlchars::ShapeOf(name);
    if (shape == xmlchars::NameShape::NotName) return "A name contained an invalid character.";
    if (shape == xmlchars::NameShape::NotQName) return "A name with a colon must be a prefix and a local name.";
    const std::string_view prefix = xmlchars::PrefixOf(name);
    if (prefix.empty()) return nullptr;
    if (prefix == "xmlns" && !attribute) return "The prefix 'xmlns' is reserved.";
    return Lookup(prefix) ? nullptr : "Reference to undeclared namespace prefix.";
}

void XmlNamespaceScope::MarkDuplicates(const std::vector<XmlAttributeView>& attributes,
                                       std::vector<const char*>& faults) {
    constexpr std::size_t kFewAttributes = 32;
    if (attributes.size() <= kFewAttributes) {
        for (std::size_t i = 1; i < attributes.size(); ++i)
            for (std::size_t j = 0; j < i; ++j)
                if (attributes[i].name == attributes[j].name) faults[i] = kDuplicate;
        return;
    }
    sorted_.clear();
    for (std::size_t i = 0; i < attributes.size(); ++i) sorted_.emplace_back(attributes[i].name, i);
    std::sort(sorted_.begin(), sorted_.end());
    // Sorted by name and then by position: the later of two equal names is the duplicate.
    for (std::size_t i = 1; i < sorted_.size(); ++i)
        if (sorted_[i].first == sorted_[i - 1].first) faults[sorted_[i].second] = kDuplicate;
}

}  // namespace flowloom
