#include "model/Activities.h"

#include "model/VisitActivity.h"

namespace flowloom {

std::shared_ptr<Activity> CreateActivity(ActivityKind kind) {
    switch (kind) {
    case ActivityKind::MailMerge: return std::make_shared<MailMerge>();
    case ActivityKind::SaveAs: return std::make_shared<SaveAs>();
    case ActivityKind::PrintOut: return std::make_shared<PrintOut>();
    case ActivityKind::Convert: return std::make_shared<Convert>();
    case ActivityKind::SendMail: return std::make_shared<SendMail>();
    case ActivityKind::SendFax: return std::make_shared<SendFax>();
    case ActivityKind::AddRecord: break;
    }
    return std::make_shared<AddRecord>();
}

std::shared_ptr<Activity> CreateActivity(std::string_view typeName) {
    const std::optional<ActivityKind> kind = ActivityKindOfName(typeName);
    return kind ? CreateActivity(*kind) : nullptr;
}

}  // namespace flowloom
