#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace flowloom {

// One attribute as a namespace check sees it: its name and its value with
// references already replaced.
struct XmlAttributeView {
    std::string_view name;
    std::string_view value;
};

// The namespace declarations in force while a document is walked from element
// to element, and the rules of Namespaces in XML 1.0 on the names of each
// element: qualified names, declared prefixes, the reserved prefixes "xml"
// and "xmlns", and attributes unique by name and by namespace. The reader
// refuses an element that breaks them; the writer leaves out what breaks them.
class XmlNamespaceScope {
public:
    // Opens an element: adds its declarations (the xmlns attributes that are
    // allowed) to the scope until Close, and judges its names. `faults` gets
    // one entry per attribute, the reason it cannot stand or nullptr. The
    // result is the reason the element's own name cannot stand, or nullptr.
    const char* Open(std::string_view element, const std::vector<XmlAttributeView>& attributes,
                     std::vector<const char*>& faults);
    // Opens an element whose names are known to be names without a colon
    // and none of whose attributes is a declaration (as the reader finds
    // most): only duplicates can be at fault, and no name has to be read again.
    void OpenUnprefixed(const std::vector<XmlAttributeView>& attributes, std::vector<const char*>& faults);
    // Closes the element opened last, with its declarations.
    void Close();

private:
    static const char* DeclarationFault(std::string_view name, std::string_view value);
    const std::string* Lookup(std::string_view prefix) const;
    const char* NameFault(std::string_view name, bool attribute) const;
    void MarkDuplicates(const std::vector<XmlAttributeView>& attributes, std::vector<const char*>& faults);

    std::vector<std::pair<std::string, std::string>> bindings_;  // prefix, namespace
    std::vector<std::size_t> opened_;                            // size of bindings_ at each open element
    std::vector<std::pair<std::string_view, std::size_t>> sorted_;  // scratch: names in order
};

}  // namespace flowloom
