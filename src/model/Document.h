#pragma once

#include "app/Tracked.h"
#include "app/TaggedValue.h"

#include "app/XmlElements.h"

#include <memory>
#include <string>
#include <vector>

namespace flowloom {

// A document that an activity produces and a later one takes. Only the name
// is persisted; the rest is carried for a run.
class Document {
public:
    std::string name;  // renamed only through the collection (see RenameOutputDocument), which counts the edit
    std::string Template;
    std::string Contents;
    bool Show = false;

    const TaggedValue& Object() const noexcept { return object_; }
    void SetObject(TaggedValue value) { object_ = std::move(value); }
    // Created on first read.
    std::vector<std::string>& Pictures();

    void LoadElement(const XmlElementView& node);
    void Dispose();

private:
    TaggedValue object_;
    std::unique_ptr<std::vector<std::string>> pictures_;
};

}  // namespace flowloom
