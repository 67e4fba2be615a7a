#include "designer/DesignerClipboard.h"

#include "model/Activity.h"
#include "model/Datasource.h"
#include "model/Process.h"
#include "model/VisitActivity.h"

namespace flowloom::designer {

std::string Clipboard::TypeName() const {
    return std::visit(Overloaded{[](std::monostate) { return std::string(); },
                                 [](const std::shared_ptr<Process>&) { return std::string("Process"); },
                                 [](const std::shared_ptr<Datasource>&) { return std::string("Datasource"); },
                                 [](const std::shared_ptr<Activity>& a) { return a->ActivityType(); }},
                      content_);
}

std::string Clipboard::Name() const {
    return std::visit(Overloaded{[](std::monostate) { return std::string(); },
                                 [](const std::shared_ptr<Process>& p) { return p->name(); },
                                 [](const std::shared_ptr<Datasource>& d) { return d->name(); },
                                 [](const std::shared_ptr<Activity>& a) { return a->Description(); }},
                      content_);
}

}  // namespace flowloom::designer
