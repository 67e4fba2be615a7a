// The MailMerge sheet (kind 10): its template filter, merge types and the
// rows of the documents before and after it follow the invoked application.
#include "sheets/PropertySheets.h"
#include "sheets/SheetTables.h"

#include "app/Common.h"
#include "grid/Properties.h"
#include "model/MailMerge.h"

#include <array>

namespace flowloom::sheets {

namespace {

enum Row : std::int32_t {
    Description = 1,
    InvokedApplication,
    Template,
    DatasourceName,
    Iteration,
    OutputDocumentName,
    ShowDocument,
    MailMergeType,
    InsertPagebreak,
    PrecededBy,
    SucceededBy,
};

constexpr std::int32_t kRowsWithoutDocuments = InsertPagebreak;

// Every merge type; a stored number shows its label from here, whether or
// not the application offers it.
const std::array<const char*, 6> kAllMergeTypes = {"0 - Document", "1 - Listing",   "2 - Labels",
                                                   "3 - Email",    "4 - Directory", "5 - Envelope"};

struct ApplicationRows {
    const char* application;
    const char* filterDescription;
    const char* filterPattern;
    std::vector<std::string> mergeTypes;
};

const ApplicationRows* RowsOfApplication(const std::string& application) {
    static const std::array<ApplicationRows, 4> table = {{
        {"Microsoft Word", "Microsoft Word Templates (*.dot, *.dotx, *.dotm)", "*.dot;*.dotx;*.dotm",
         {kAllMergeTypes.begin(), kAllMergeTypes.end()}},
        {"Microsoft Excel", "Microsoft Excel Templates (*.xlt, *.xltx, *.xltm)", "*.xlt;*.xltx;*.xltm",
         {"0 - Document", "1 - Listing", "3 - Email", "4 - Directory"}},
        {"HTML", "HTML files (*.htm, *.html)", "*.htm;*.html", {"0 - Document", "1 - Listing"}},
        {"Text", "Text files (*.txt)", "*.txt", {"0 - Document"}},
    }};
    for (const ApplicationRows& rows : table)
        if (application == rows.application) return &rows;
    return nullptr;
}

bool IsWord(const std::string& application) { return application == "Microsoft Word"; }

// The documents before and after the merge, a choice of the process's
// documents that a name still to come can be typed over.
void AddDocumentRows(SheetHost& host, grid::Properties& rows) {
    for (const char* key : {"PrecededBy", "SucceededBy"}) {
        grid::Property& row = AddRow(rows, {key, grid::ExPropCustomList});
        row.SetLockedEdit(false);
        row.SetListItems(GetDocumentNames(host));
    }
}

// Fits the template filter, the merge types and the document rows to the
// application. The template row is emptied so that a template of another
// application does not stay on show; loading the sheet sets it again.
void ApplyInvokedApplication(SheetHost& host, grid::Properties& rows, const std::string& application) {
    if (const ApplicationRows* fit = RowsOfApplication(application)) {
        rows.Item(Template).SetDialogFilter(std::string(fit->filterDescription) + '\0' + fit->filterPattern + '\0' +
                                            "All Files (*.*)" + '\0' + "*.*" + '\0');
        grid::Property& types = rows.Item(MailMergeType);
        types.SetListItems(fit->mergeTypes);
        if (application == "Text" || !ListPosition(types, types.value())) types.SetValue(fit->mergeTypes.front());
    }
    rows.Item(Template).SetValue({});
    if (application == "Microsoft Excel" && rows.Count() > kRowsWithoutDocuments)
        RemoveRowsQuietly(rows, {SucceededBy, PrecededBy});
    else if (IsWord(application) && rows.Count() == kRowsWithoutDocuments)
        AddDocumentRows(host, rows);
}

void AddMailMergeRows(SheetHost& host, grid::Properties& rows) {
    using namespace grid;
    AddRows(rows, {{"InvokedApplication", ExPropCustomList},
                   {"Template", ExPropFile},
                   {"DatasourceName", ExPropCustomList},
                   {"Iteration", ExPropCustomList},
                   {"OutputDocumentName", ExPropText},
                   {"ShowDocument", ExPropBoolean},
                   {"MailMergeType", ExPropCustomList},
                   {"InsertPagebreak", ExPropBoolean}});
    SetFixedList(rows.Item(InvokedApplication), GetInvokedApplications());
    rows.Item(Template).SetLockedEdit(false);
    for (const Row row : {DatasourceName, Iteration}) {
        rows.Item(row).SetLockedEdit(false);
        rows.Item(row).SetListItems(GetDatasourceNames(host));
    }
}

void SetMailMergePropertiesValues(SheetHost& host, grid::Properties& rows, const GuardedSteps& step) {
    const auto activity = SelectedActivityOf<MailMerge>(host);
    if (!activity) return;
    step([&] { SetIfNotEmpty(rows.Item(InvokedApplication), activity->InvokedApplication()); });
    step([&] { ApplyInvokedApplication(host, rows, rows.Item(InvokedApplication).value()); });
    step([&] { SetIfNotEmpty(rows.Item(Template), activity->Template()); });
    step([&] { SetIfNotEmpty(rows.Item(DatasourceName), activity->DatasourceName()); });
    step([&] { SetIfNotEmpty(rows.Item(Iteration), activity->Iteration()); });
    step([&] { SetIfNotEmpty(rows.Item(OutputDocumentName), activity->OutputDocumentName()); });
    step([&] { rows.Item(ShowDocument).SetValue(BoolText(activity->ShowDocument())); });
    step([&] {
        const std::int32_t type = activity->MailMergeType();
        if (type < 0 || type >= static_cast<std::int32_t>(kAllMergeTypes.size()))
            RaiseStandardError(vberr::SubscriptOutOfRange);
        rows.Item(MailMergeType).SetValue(kAllMergeTypes[static_cast<std::size_t>(type)]);
    });
    step([&] { rows.Item(InsertPagebreak).SetValue(BoolText(activity->InsertPagebreak())); });
    SetActivityDescription(host, rows, step);
    step([&] {
        if (rows.Count() >= PrecededBy) SetIfNotEmpty(rows.Item(PrecededBy), activity->PrecededBy());
    });
    step([&] {
        if (rows.Count() >= SucceededBy) SetIfNotEmpty(rows.Item(SucceededBy), activity->SucceededBy());
    });
}

// A new application refits the sheet. Word gets its document rows once from
// the refit and once more here, so that a change to Word from another
// application shows them twice until the next selection; the others lose
// the documents before and after.
void ChangeApplication(SheetEdit& edit, MailMerge& activity) {
    if (edit.text == activity.InvokedApplication()) return;
    activity.SetInvokedApplication(edit.text);
    ApplyInvokedApplication(edit.host, edit.rows, edit.text);
    if (IsWord(edit.text)) {
        AddDocumentRows(edit.host, edit.rows);
    } else {
        activity.SetPrecededBy({});
        activity.SetSucceededBy({});
        RemoveRowsQuietly(edit.rows, {SucceededBy, PrecededBy});
    }
}

bool MailMergeChange(SheetEdit& edit) {
    const auto activity = SelectedActivityOf<MailMerge>(edit.host);
    if (!activity) return true;
    const std::string& text = edit.text;
    switch (edit.index) {
    case Description: ChangeDescription(edit, *activity); break;
    case InvokedApplication: ChangeApplication(edit, *activity); break;
    case Template: activity->SetTemplate(text); break;
    case DatasourceName: activity->SetDatasourceName(text); break;
    case Iteration: activity->SetIteration(text); break;
    case OutputDocumentName:
        CheckNewOutputDocument(edit.host, text);
        activity->SetOutputDocumentName(text);
        break;
    case ShowDocument: activity->SetShowDocument(TextAsBool(text)); break;
    case MailMergeType: activity->SetMailMergeType(NumberInFront(text)); break;
    case InsertPagebreak: activity->SetInsertPagebreak(TextAsBool(text)); break;
    case PrecededBy: activity->SetPrecededBy(text); break;
    case SucceededBy: activity->SetSucceededBy(text); break;
    default: break;  // the second pair of document rows edits nothing
    }
    return true;
}

}  // namespace

const SheetTable& MailMergeSheetTable() {
    static constexpr SheetTable table{"MailMerge",       "SetMailMergePropertiesValues", AddMailMergeRows,
                                      SetMailMergePropertiesValues, "MailMergeChange", MailMergeChange};
    return table;
}

}  // namespace flowloom::sheets
