#include "app/TaggedValue.h"

#include "support/VbError.h"
#include "support/VbStrings.h"

namespace flowloom {

TaggedValue TaggedValue::FromObject(std::shared_ptr<void> object) {
    TaggedValue v;
    v.value_ = std::move(object);
    return v;
}

std::string TaggedValue::Text() const {
    struct Visitor {
        std::string operator()(std::monostate) const { return {}; }
        std::string operator()(const std::string& s) const { return s; }
        std::string operator()(double d) const { return vb::NumberText(d); }
        std::string operator()(bool b) const { return b ? "True" : "False"; }
        std::string operator()(const std::shared_ptr<void>&) const {
            RaiseStandardError(vberr::TypeMismatch);
        }
    };
    return std::visit(Visitor{}, value_);
}

std::shared_ptr<void> TaggedValue::Object() const {
    if (auto* p = std::get_if<std::shared_ptr<void>>(&value_)) return *p;
    return nullptr;
}

}  // namespace flowloom
