// Readers and helpers of the small value objects: Group, Database, Document, List.
#include "model/Database.h"
#include "model/Document.h"
#include "model/Group.h"
#include "model/List.h"

#include "support/VbStrings.h"
#include "app/XmlDocument.h"

namespace flowloom {

void Group::LoadElement(const XmlElementView& node) {
    for (const MeasuredAttribute a : MeasuredAttributes(node))
        if (NameIs(a, "Name")) name = a.value();
}

void Database::LoadElement(const XmlElementView& node) {
    for (const MeasuredAttribute a : MeasuredAttributes(node)) {
        if (NameIs(a, "Name")) name = a.value();
        else if (NameIs(a, "Location")) Location = a.value();
        else if (NameIs(a, "Type")) Type_ = a.value();
    }
}

std::vector<std::string>& Document::Pictures() {
    if (!pictures_) pictures_ = std::make_unique<std::vector<std::string>>();
    return *pictures_;
}

void Document::LoadElement(const XmlElementView& node) {
    for (const MeasuredAttribute a : MeasuredAttributes(node))
        if (NameIs(a, "Name")) name = a.value();
}

const TaggedValue& Document::Object() const noexcept {
    static const TaggedValue none;
    const TaggedValue* object = object_.Find();
    return object ? *object : none;
}

void Document::SetObject(TaggedValue value) {
    if (value.IsEmpty() && !object_.Find()) return;
    object_.Get() = std::move(value);
}

void Document::Dispose() {
    if (Object().IsObject()) object_.Reset();
    pictures_.reset();
}

const std::vector<std::string>& List::Values() const noexcept {
    static const std::vector<std::string> none;
    const auto* values = values_.Find();
    return values ? *values : none;
}

std::string List::ValueList() const {
    if (!text_.empty()) return text_;
    return vb::Join(Values(), separator_);
}

void List::SetValueList(std::string text) {
    text_ = std::move(text);
    if (!text_.empty()) {
        values_.Reset();
        datasource_.reset();
    }
}

void List::SetValues(std::vector<std::string> values) {
    if (values.empty()) values_.Reset();
    else values_.Get() = std::move(values);
    ModelRevision::Bump();
    if (!Values().empty()) {
        text_.clear();
        datasource_.reset();
    }
}

void List::SetDatasource(std::shared_ptr<flowloom::Datasource> datasource) {
    datasource_ = std::move(datasource);
    ModelRevision::Bump();
    if (datasource_) {
        text_.clear();
        values_.Reset();
    } else {
        fieldName_.clear();
    }
}

}  // namespace flowloom
