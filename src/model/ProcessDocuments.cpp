// How a process finds the activity that produces a document.
#include "model/Process.h"
#include "app/XmlDocument.h"

#include "support/TextCompare.h"
#include "model/Activities.h"
#include "model/Documents.h"
#include "model/VisitActivity.h"

namespace flowloom {

namespace {

std::int32_t KindOf(const Activity& producer, bool wide) {
    if (const auto* mailMerge = ActivityAs<MailMerge>(&producer)) {
        const std::string& application = mailMerge->InvokedApplication();
        if (NameIs(application, "Microsoft Word")) return dockind::Word;
        if (NameIs(application, "Microsoft Excel")) return dockind::Excel;
        if (wide && NameIs(application, "HTML")) return dockind::Html;
        if (wide && NameIs(application, "Text")) return dockind::Text;
        return dockind::Other;
    }
    if (wide && producer.Kind() == ActivityKind::SendMail) return dockind::MailBody;
    return dockind::Other;
}

}  // namespace

std::pair<std::int32_t, std::shared_ptr<Activity>> Process::ActivityForDocument(const std::string& name,
                                                                                bool wide) const {
    if (name.empty() || !activities_) return {dockind::Other, nullptr};
    for (const auto& activity : *activities_) {
        try {
            const std::string* produced = activity->ProducedDocumentName();
            if (!produced || produced->empty() || !NameIs(*produced, name)) continue;
            return {KindOf(*activity, wide), activity};
        } catch (...) {
            // failures along the way are ignored
        }
    }
    return {dockind::Other, nullptr};
}

bool Process::HasPrecedingOrSucceedingDocument() const {
    if (!activities_ || !documents_) return false;
    for (const auto& activity : *activities_) {
        const auto* mailMerge = ActivityAs<MailMerge>(activity.get());
        if (!mailMerge) continue;
        if (!mailMerge->PrecededBy().empty() && documents_->Contains(mailMerge->PrecededBy())) return true;
        if (!mailMerge->SucceededBy().empty() && documents_->Contains(mailMerge->SucceededBy())) return true;
    }
    return false;
}

}  // namespace flowloom
