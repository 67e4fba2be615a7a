#include "designer/access/SystemObjects.h"

#include <initializer_list>

namespace flowloom::access {

namespace {

bool StartsWithAny(std::string_view name, std::initializer_list<std::string_view> prefixes) {
    const std::string_view first = name.substr(0, 4);
    for (const auto prefix : prefixes)
        if (first == prefix) return true;
    return false;
}

}  // namespace

ObjectList ClassifyObject(int type, std::string_view name) {
    switch (type) {
    case 1:
    case 6: return StartsWithAny(name, {"USys", "MSys"}) ? ObjectList::None : ObjectList::Tables;
    case 5: return StartsWithAny(name, {"~sq_", "USys"}) ? ObjectList::None : ObjectList::Queries;
    case -32768: return StartsWithAny(name, {"USys"}) ? ObjectList::None : ObjectList::Forms;
    case -32764: return StartsWithAny(name, {"USys"}) ? ObjectList::None : ObjectList::Reports;
    default: return ObjectList::None;
    }
}

}  // namespace flowloom::access
