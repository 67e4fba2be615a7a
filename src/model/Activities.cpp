#include "model/Activities.h"

#include "support/ReportError.h"
#include "support/TextCompare.h"
#include "model/Process.h"

namespace flowloom {

void Activities::Add(const std::shared_ptr<Activity>& activity, const CollectionPosition& before,
                     const CollectionPosition& after) {
    if (!activity) return;
    try {
        ++typeCounts_[FoldCase(activity->ActivityType())];
        items_.Add(activity, activity->Key(), before, after);
        // A MailMerge's datasource would be registered with the process here,
        // but its Datasource read never gives an object, so there is nothing to do.
        if (auto process = process_.lock()) activity->SetParentProcess(process);
    } catch (...) {
        ReportPendingError("Activities", "Add");
    }
}

std::shared_ptr<Activity> Activities::Item(const CollectionPosition& position) const {
    try {
        return items_.ItemAt(position);
    } catch (...) {
        ReportPendingError("Activities", "Item");
        return nullptr;
    }
}

void Activities::Remove(const CollectionPosition& position) { items_.RemoveAt(position); }

std::int32_t Activities::TypeCount(const std::string& activityType) const {
    auto it = typeCounts_.find(FoldCase(activityType));
    return it == typeCounts_.end() ? 0 : it->second;
}

void Activities::Dispose() {
    process_.reset();
    for (const auto& activity : items_) activity->Dispose();
    items_.Clear();
    typeCounts_.clear();
}

void Activities::LoadElement(const pugi::xml_node& node, const std::shared_ptr<flowloom::Process>& process) {
    std::shared_ptr<Activity> previous;
    for (const pugi::xml_node& child : node.children()) {
        if (child.type() != pugi::node_element) continue;
        try {
            std::shared_ptr<Activity> activity = CreateActivity(child.name());
            // An element of an unknown name runs the previous activity's
            // reader over itself and adds that activity again, which fails
            // on its key and is reported; as the first child it does nothing.
            if (!activity) activity = previous;
            if (!activity) continue;
            activity->LoadElement(child, process);
            Add(activity);
            previous = activity;
        } catch (...) {
            ReportPendingError("Activities", "LoadElement");
        }
    }
}

}  // namespace flowloom
