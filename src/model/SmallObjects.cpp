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

void Document::Dispose() {
    if (object_.IsObject()) object_ = TaggedValue();
    pictures_.reset();
}

std::string List::ValueList() const {
    if (!text_.empty()) return text_;
    return vb::Join(values_, separator_);
}

void List::SetValueList(std::string text) {
    text_ = std::move(text);
    if (!text_.empty()) {
        values_.clear();
        datasource_.reset();
    }
}

void List::SetValues(std::vector<std::string> values) {
    values_ = std::move(values);
    ModelRevision::Bump();
    if (!values_.empty()) {
        text_.clear();
        datasource_.reset();
    }
}

void List::SetDatasource(std::shared_ptr<flowloom::Datasource> datasource) {
    datasource_ = std::move(datasource);
    ModelRevision::Bump();
    if (datasource_) {
        text_.clear();
        values_.clear();
    } else {
        fieldName_.clear();
    }
}

}  // namespace flowloom
