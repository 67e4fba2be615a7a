// What the activity sheets (kinds 10 to 16) share: the "Description" row
// that begins each of them, and the document names they offer and check.
#include "sheets/SheetTables.h"

#include "app/Common.h"
#include "app/ErrorNumbers.h"
#include "grid/Properties.h"
#include "model/Documents.h"
#include "model/MailMerge.h"
#include "model/Process.h"
#include "support/TextCompare.h"

namespace flowloom::sheets {

void SetActivityDescription(SheetHost& host, grid::Properties& rows, const GuardedSteps& step) {
    const auto activity = host.SelectedActivity();
    if (!activity) return;
    step([&] { SetIfNotEmpty(rows.Item(1), activity->Description()); });
}

void ChangeDescription(SheetEdit& edit, Activity& activity) {
    activity.SetDescription(edit.text);
    const std::string caption = edit.text.empty() ? SpacedName(activity.ActivityType()) : edit.text;
    edit.host.SetSelectedCellCaption(CaptionStrip::Activity, caption);
}

void ChangeInputDocument(SheetEdit& edit, FileActivity& activity, int kind) {
    if (edit.text == activity.InputDocumentName()) return;
    activity.SetInputDocumentName(edit.text);
    edit.host.RebuildSheet(kind);
    if (grid::Property* row = edit.rows.Item(SpacedName("InputDocumentName"))) edit.host.SelectRow(*row);
}

std::vector<std::string> GetDocumentNames(const SheetHost& host) {
    std::vector<std::string> names{std::string()};  // choosing none stays possible
    const auto process = host.CurrentProcess();
    if (!process || !process->Documents()) return names;
    // A mail merge is not offered its own output as a document before or after it.
    std::string ownOutput;
    bool hasOwnOutput = false;
    if (const auto mailMerge = SelectedActivityOf<MailMerge>(host)) {
        ownOutput = mailMerge->OutputDocumentName();
        hasOwnOutput = true;
    }
    for (const auto& document : *process->Documents()) {
        if (document->name.empty() || (hasOwnOutput && EqualsNoCase(document->name, ownOutput))) continue;
        names.push_back(document->name);
    }
    return names;
}

void CheckNewOutputDocument(const SheetHost& host, const std::string& name) {
    const auto process = host.CurrentProcess();
    if (process && process->Documents() && process->Documents()->Contains(name))
        errnum::Raise(errnum::DocumentAlreadyExists, {},
                      errnum::Description(errnum::DocumentAlreadyExists, {name}));
}

}  // namespace flowloom::sheets
