#include "model/Activities.h"

#include "support/ReportError.h"
#include "support/TextCompare.h"
#include "model/Process.h"
#include "model/xml/ElementCount.h"

namespace flowloom {

bool Activities::Add(const std::shared_ptr<Activity>& activity, const CollectionPosition& before,
                     const CollectionPosition& after) {
    if (!activity) return false;
    return Guarded("Activities", "Add", [&] {
        ++typeCounts_[static_cast<std::size_t>(activity->Kind())];
        Activity::KeyRoom room;
        items_.Add(activity, activity->KeyIn(room), before, after);
        // A MailMerge's datasource would be registered with the process here,
        // but its Datasource read never gives an object, so there is nothing to do.
        if (auto process = process_.lock()) activity->SetParentProcess(process);
    });
}

std::shared_ptr<Activity> Activities::Item(const CollectionPosition& position) const {
    std::shared_ptr<Activity> activity;
    Guarded("Activities", "Item", [&] { activity = items_.ItemAt(position); });
    return activity;
}

bool Activities::Remove(const CollectionPosition& position) { return items_.TryRemoveAt(position); }

std::int32_t Activities::TypeCount(ActivityKind kind) const noexcept {
    return typeCounts_[static_cast<std::size_t>(kind)];
}

void Activities::Dispose() {
    process_.reset();
    for (const auto& activity : items_) activity->Dispose();
    items_.Clear();
    typeCounts_ = {};
}

void Activities::LoadElement(const XmlElementView& node, const std::shared_ptr<flowloom::Process>& process) {
    std::shared_ptr<Activity> previous;
    items_.Reserve(static_cast<std::size_t>(items_.Count()) + ElementCount(node));
    for (const XmlElementView& child : node.children()) {
        Guarded("Activities", "LoadElement", [&] {
            std::shared_ptr<Activity> activity = CreateActivity(child.name());
            // An element of an unknown name runs the previous activity's
            // reader over itself and adds that activity again, which fails
            // on its key and is reported; as the first child it does nothing.
            if (!activity) activity = previous;
            if (!activity) return;
            activity->LoadElement(child, process);
            Add(activity);
            previous = activity;
        });
    }
}

}  // namespace flowloom
