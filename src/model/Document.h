#pragma once

#include "app/SparseMembers.h"
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
    SparseString Template;
    SparseString Contents;
    bool Show = false;

    const TaggedValue& Object() const noexcept;
    void SetObject(TaggedValue value);
    // Created on first read.
    std::vector<std::string>& Pictures();

    void LoadElement(const XmlElementView& node);
    void Dispose();

private:
    LazyPart<TaggedValue> object_;  // held during a run only
    std::unique_ptr<std::vector<std::string>> pictures_;
};

}  // namespace flowloom
