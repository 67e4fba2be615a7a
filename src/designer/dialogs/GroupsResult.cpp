#include "designer/dialogs/GroupsResult.h"

#include "model/Group.h"
#include "model/Groups.h"
#include "model/Process.h"
#include "support/VbStrings.h"

namespace flowloom::dialogs {

void ReplaceProcessGroups(Process& process, const std::string& result) {
    // The collection is emptied in place: it may be shared, and each removal
    // and addition counts as an edit of the model.
    auto groups = process.Groups();
    while (groups->Count() > 0) groups->Remove(std::int32_t{1});
    for (const std::string& line : vb::Split(result, "\r\n")) {
        const std::string name = vb::Trim(line);
        if (name.empty()) continue;
        auto group = std::make_shared<Group>();
        group->name = name;
        groups->Add(group, name);
    }
}

}  // namespace flowloom::dialogs
