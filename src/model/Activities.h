#pragma once

#include "app/KeyedCollection.h"
#include "model/Activity.h"

#include <array>
#include <memory>
#include <string>

namespace flowloom {

class Process;

// The activities of a process in order, keyed by Key, with a count per type
// name of the activities ever added.
class Activities {
public:
    // Adds under the activity's Key (before wins over after); counts its type;
    // gives it the process, if this collection knows one. Failures, also a
    // key that exists, are reported and end the call. Whether it was added.
    bool Add(const std::shared_ptr<Activity>& activity, const CollectionPosition& before = {},
             const CollectionPosition& after = {});
    // Unknown index or key is reported; the result is then empty.
    std::shared_ptr<Activity> Item(const CollectionPosition& position) const;
    std::int32_t Count() const noexcept { return items_.Count(); }
    // False when the position names no activity.
    bool Remove(const CollectionPosition& position);
    // How many activities of the kind were ever added.
    std::int32_t TypeCount(ActivityKind kind) const noexcept;
    std::int32_t IndexOf(const Activity* activity) const noexcept { return items_.IndexOf(activity); }

    auto begin() const { return items_.begin(); }
    auto end() const { return items_.end(); }
    std::vector<std::shared_ptr<Activity>> Snapshot() const { return items_.Snapshot(); }

    std::shared_ptr<flowloom::Process> Process() const { return process_.lock(); }
    void SetProcess(const std::shared_ptr<flowloom::Process>& process) { process_ = process; }

    void Dispose();
    // Creates one activity per child element by its name; a child of another
    // name runs the previous activity's reader again and adds it once more.
    void LoadElement(const XmlElementView& node, const std::shared_ptr<flowloom::Process>& process);

private:
    KeyedCollection<Activity> items_;
    std::array<std::int32_t, kActivityKinds.size()> typeCounts_{};
    std::weak_ptr<flowloom::Process> process_;
};

// A new activity of the given kind.
std::shared_ptr<Activity> CreateActivity(ActivityKind kind);
// A new activity of the given type name (compared without regard to case),
// or nothing for an unknown name.
std::shared_ptr<Activity> CreateActivity(std::string_view typeName);

}  // namespace flowloom
