// The SaveAs sheet (kind 11): its format list and the rows from 7 on follow
// the application that produced the input document.
#include "sheets/PropertySheets.h"
#include "sheets/SaveAsFormats.h"
#include "sheets/SheetTables.h"

#include "grid/Properties.h"
#include "model/Documents.h"
#include "model/Process.h"
#include "model/SaveAs.h"
#include "support/VbStrings.h"

#include <span>

namespace flowloom::sheets {

namespace {

enum Row : std::int32_t { Description = 1, InputDocumentName, Folder, File, OverwriteExistingFile, FileFormat };

// How a list row of the application's own rows maps to its stored number.
enum class ListStore { None, Position, PositionPlusOne };

// One row from 7 on: the key, its type, the argument it edits, and for a
// list the entries and how a choice is stored.
struct ArgumentRow {
    const char* key;
    int type;
    SaveAsArg arg;
    ListStore store = ListStore::None;
    std::vector<std::string> items = {};
};

const std::vector<ArgumentRow>& WordRows() {
    using namespace grid;
    static const std::vector<ArgumentRow> rows = {
        {"LockComments", ExPropBoolean, SaveAsArg::LockComments},
        {"Password", ExPropText, SaveAsArg::Password},
        {"AddToRecentFiles", ExPropBoolean, SaveAsArg::AddToRecentFiles},
        {"WritePassword", ExPropText, SaveAsArg::WritePassword},
        {"ReadOnlyRecommended", ExPropBoolean, SaveAsArg::ReadOnlyRecommended},
        {"EmbedTrueTypeFonts", ExPropBoolean, SaveAsArg::EmbedTrueTypeFonts},
        {"SaveNativePictureFormat", ExPropBoolean, SaveAsArg::SaveNativePictureFormat},
        {"SaveFormsData", ExPropBoolean, SaveAsArg::SaveFormsData},
        {"SaveAsAOCELetter", ExPropBoolean, SaveAsArg::SaveAsAOCELetter},
        {"Encoding", ExPropText, SaveAsArg::Encoding},
        {"InsertLineBreaks", ExPropBoolean, SaveAsArg::InsertLineBreaks},
        {"AllowSubstitutions", ExPropBoolean, SaveAsArg::AllowSubstitutions},
        {"LineEnding", ExPropCustomList, SaveAsArg::LineEnding, ListStore::Position, {"0 - wdCRLF", "1 - wdCROnly"}},
        {"AddBiDiMarks", ExPropBoolean, SaveAsArg::AddBiDiMarks},
    };
    return rows;
}

const std::vector<ArgumentRow>& ExcelRows() {
    using namespace grid;
    static const std::vector<ArgumentRow> rows = {
        {"Password", ExPropText, SaveAsArg::Password},
        // The key keeps Excel's own name for the write password.
        {"WriteResPassword", ExPropText, SaveAsArg::WritePassword},
        {"ReadOnlyRecommended", ExPropBoolean, SaveAsArg::ReadOnlyRecommended},
        {"CreateBackup", ExPropBoolean, SaveAsArg::CreateBackup},
        {"AccessMode", ExPropCustomList, SaveAsArg::AccessMode, ListStore::PositionPlusOne,
         {"1 - xlNoChange", "2 - xlShared", "3 - xlExclusive"}},
        {"ConflictResolution", ExPropCustomList, SaveAsArg::ConflictResolution, ListStore::PositionPlusOne,
         {"1 - xlUserResolution", "2 - xlLocalSessionChanges", "3 - xlOtherSessionChanges"}},
        {"AddToMru", ExPropBoolean, SaveAsArg::AddToMru},
        {"TextCodepage", ExPropText, SaveAsArg::TextCodepage},
        {"TextVisualLayout", ExPropCustomList, SaveAsArg::TextVisualLayout, ListStore::PositionPlusOne,
         {"1 - xlTextVisualLTR", "2 - xlTextVisualRTL"}},
        {"Local", ExPropBoolean, SaveAsArg::Local_},
    };
    return rows;
}

std::span<const ArgumentRow> ApplicationRows(std::int32_t application) {
    if (application == dockind::Word) return WordRows();
    if (application == dockind::Excel) return ExcelRows();
    return {};
}

constexpr std::int32_t kFirstApplicationRow = 7;

void AddSaveAsRows(SheetHost& host, grid::Properties& rows) {
    using namespace grid;
    AddRows(rows, {{"InputDocumentName", ExPropCustomList},
                   {"Folder", ExPropCustomList},
                   {"File", ExPropCustomList},
                   {"OverwriteExistingFile", ExPropCustomList},
                   {"FileFormat", ExPropCustomList}});
    rows.Item(InputDocumentName).SetListItems(GetDocumentNames(host));
    SetTargetLists(rows.Item(Folder), rows.Item(File));
    SetFixedList(rows.Item(OverwriteExistingFile),
                 {"0 - Ask for confirmation", "1 - Overwrite without confirmation", "2 - No overwrite"});
    const std::int32_t application = host.Memory().saveAsApplication;
    SetFixedList(rows.Item(FileFormat), FileFormatList(application));
    for (const ArgumentRow& def : ApplicationRows(application)) {
        Property& row = AddRow(rows, {def.key, def.type});
        if (def.store != ListStore::None) SetFixedList(row, def.items);
    }
    // Word adds a document to the recent files unless told otherwise.
    if (application == dockind::Word) rows.Item(kFirstApplicationRow + 2).SetValue(BoolText(true));
}

// The format row shows the stored format; a Word, mail or HTML format beyond
// the list is put back to the first.
void SetFileFormat(SaveAs& activity, std::int32_t application, grid::Property& row) {
    const TaggedValue& stored = activity.Argument(SaveAsArg::FileFormat);
    if (stored.IsEmpty() || !vb::IsNumeric(stored.Text())) return;
    const std::string text = stored.Text();
    if (application == dockind::Excel) {
        const auto position = vb::Val(text) == 0 ? std::optional<std::int32_t>(0) : ExcelFormatPosition(text);
        ShowListItem(row, position.value_or(-1));
        return;
    }
    std::int32_t number = vb::CLng(vb::Val(text));
    if (number > static_cast<std::int32_t>(row.ListItems()->size()) - 1) {
        activity.SetArgument(SaveAsArg::FileFormat, 0);
        number = 0;
    }
    ShowListItem(row, number);
}

void SetArgumentRow(const ArgumentRow& def, const TaggedValue& value, grid::Property& row) {
    if (value.IsEmpty() || value.Text().empty()) return;
    const std::string text = value.Text();
    if (def.store == ListStore::None) return row.SetValue(text);
    if (!vb::IsNumeric(text)) return;
    const std::int32_t offset = def.store == ListStore::PositionPlusOne ? 1 : 0;
    ShowListItem(row, vb::CLng(vb::Val(text)) - offset);
}

void SetSaveAsPropertiesValues(SheetHost& host, grid::Properties& rows, const GuardedSteps& step) {
    const auto activity = SelectedActivityOf<SaveAs>(host);
    if (!activity) return;
    step([&] {
        // A name that no document has any more is dropped by merely selecting the activity.
        const auto process = host.CurrentProcess();
        const std::string& name = activity->InputDocumentName();
        if (!name.empty() && process && process->Documents()->Contains(name))
            rows.Item(InputDocumentName).SetValue(name);
        else
            activity->SetInputDocumentName({});
    });
    step([&] { SetIfNotEmpty(rows.Item(Folder), activity->Folder()); });
    step([&] { SetIfNotEmpty(rows.Item(File), activity->File()); });
    step([&] {
        grid::Property& row = rows.Item(OverwriteExistingFile);
        ShowListItem(row, activity->OverwriteExistingFile());
    });
    const std::int32_t application = host.Memory().saveAsApplication;
    step([&] { SetFileFormat(*activity, application, rows.Item(FileFormat)); });
    SetActivityDescription(host, rows, step);
    std::int32_t index = kFirstApplicationRow;
    for (const ArgumentRow& def : ApplicationRows(application))
        step([&, i = index++] { SetArgumentRow(def, activity->Argument(def.arg), rows.Item(i)); });
}

void ChangeOverwrite(SheetEdit& edit, SaveAs& activity) {
    const auto position = ListPosition(edit.row, edit.text);
    if (!position) return;
    activity.SetOverwriteExistingFile(*position);
    // The default is left out of the file, as if it had never been set.
    if (*position == 0) activity.ForgetOverwriteSet();
}

void ChangeArgument(SheetEdit& edit, SaveAs& activity, std::int32_t application) {
    const auto defs = ApplicationRows(application);
    const auto at = static_cast<std::size_t>(edit.index - kFirstApplicationRow);
    if (edit.index < kFirstApplicationRow || at >= defs.size()) return;
    const ArgumentRow& def = defs[at];
    if (def.type == grid::ExPropBoolean) {
        activity.SetArgument(def.arg, BoolText(TextAsBool(edit.text)));
    } else if (def.store == ListStore::None) {
        activity.SetArgument(def.arg, edit.text);
    } else if (const auto position = ListPosition(edit.row, edit.text)) {
        activity.SetArgument(def.arg, *position + (def.store == ListStore::PositionPlusOne ? 1 : 0));
    }
}

bool SaveAsChange(SheetEdit& edit) {
    const auto activity = SelectedActivityOf<SaveAs>(edit.host);
    if (!activity) return true;
    const std::int32_t application = edit.host.Memory().saveAsApplication;
    switch (edit.index) {
    case Description: ChangeDescription(edit, *activity); break;
    case InputDocumentName: ChangeInputDocument(edit, *activity, 11); break;
    case Folder: activity->SetFolder(edit.text); break;
    case File: activity->SetFile(edit.text); break;
    case OverwriteExistingFile: ChangeOverwrite(edit, *activity); break;
    case FileFormat:
        if (const auto format = StoredFileFormat(application, ListPosition(edit.row, edit.text)))
            activity->SetArgument(SaveAsArg::FileFormat, *format);
        break;
    default: ChangeArgument(edit, *activity, application); break;
    }
    return true;
}

}  // namespace

void SetTargetLists(grid::Property& folder, grid::Property& file) {
    folder.SetLockedEdit(false);
    folder.SetListItems(std::vector<std::string>{"[function:CurrentProject.Path]",
                                                 "[function:CurrentProject.Path]\\[Template]", "[My Documents]",
                                                 "[My Documents]\\[Template]", "C:\\TEMP"});
    file.SetLockedEdit(false);
    file.SetListItems(std::vector<std::string>{"[Function:Date()]", "[Template]_[Function:Date()]",
                                               "[Function:Format(Now(),'mmddyy')]",
                                               "[Template]_[Function:Format(Now(),'mmddyy')]", "[RecordNumber]"});
}

const SheetTable& SaveAsSheetTable() {
    static constexpr SheetTable table{"SaveAs",       "SetSaveAsPropertiesValues", AddSaveAsRows,
                                      SetSaveAsPropertiesValues, "SaveAsChange", SaveAsChange};
    return table;
}

}  // namespace flowloom::sheets
