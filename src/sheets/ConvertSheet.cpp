// The Convert sheet (kind 13): a fixed part, and below it the PDF rows,
// which come and go with the output format and the conversion method.
#include "sheets/SheetTables.h"

#include "app/Common.h"
#include "grid/Properties.h"
#include "model/Convert.h"

namespace flowloom::sheets {

namespace {

enum Row : std::int32_t {
    Description = 1,
    InputDocumentName,
    OutputDocumentName,
    OutputConvertFormat,
    Folder,
    File,
    Show,
    PdfHeader,
    PDFConvertingMethod,
    PostscriptToPDFConverter,
};

constexpr const char* kPdfHeaderCaption = "PDF Converting Properties";
constexpr grid::OleColor kPdfHeaderColour = 0xFFC0C0;
constexpr std::int32_t kPdfFormat = 1;
constexpr std::int32_t kPostScriptMethod = 2;

void AddConvertRows(SheetHost& host, grid::Properties& rows) {
    using namespace grid;
    AddRows(rows, {{"InputDocumentName", ExPropCustomList},
                   {"OutputDocumentName", ExPropText},
                   {"OutputConvertFormat", ExPropCustomList},
                   {"Folder", ExPropCustomList},
                   {"File", ExPropCustomList},
                   {"Show", ExPropBoolean}});
    rows.Item(InputDocumentName).SetListItems(GetDocumentNames(host));
    SetFixedList(rows.Item(OutputConvertFormat), {"1 - PDF"});
    SetTargetLists(rows.Item(Folder), rows.Item(File));
}

// Builds the PDF rows below `lastRow` again: the header, the method, and
// the converter when the method goes through PostScript.
void SetPdfProperties(const Convert& activity, grid::Properties& rows, std::int32_t lastRow) {
    GuardedSteps("SetPdfProperties")([&] {
        while (rows.Count() > lastRow) rows.Remove(rows.Count());
        if (lastRow < PdfHeader) {
            grid::Property& header = rows.Add(kPdfHeaderCaption, grid::ExPropHeader, "");
            header.SetBackColor(kPdfHeaderColour);
            header.SetBorderStyle(2);
        }
        if (lastRow < PDFConvertingMethod) {
            grid::Property& method = AddRow(rows, {"PDFConvertingMethod", grid::ExPropCustomList});
            method.SetListItems(
                std::vector<std::string>{"0 - Default", "1 - Microsoft Save as PDF", "2 - PostScript to PDF"});
            ShowListItem(method, activity.PDFConvertingMethod());
        }
        if (activity.PDFConvertingMethod() == kPostScriptMethod && lastRow < PostscriptToPDFConverter) {
            grid::Property& converter = AddRow(rows, {"PostscriptToPDFConverter", grid::ExPropCustomList});
            converter.SetListItems(std::vector<std::string>{"1 - Acrobat Distiller", "2 - Ghostscript"});
            ShowListItem(converter, activity.Postscript2PDFConverter() - 1);
        }
    });
}

void SetConvertPropertiesValues(SheetHost& host, grid::Properties& rows, const GuardedSteps& step) {
    const auto activity = SelectedActivityOf<Convert>(host);
    if (!activity) return;
    SetActivityDescription(host, rows, step);
    step([&] { SetIfNotEmpty(rows.Item(InputDocumentName), activity->InputDocumentName()); });
    step([&] { SetIfNotEmpty(rows.Item(OutputDocumentName), activity->OutputDocumentName()); });
    step([&] {
        grid::Property& row = rows.Item(OutputConvertFormat);
        const std::int32_t format = activity->OutputFileFormat();
        ShowListItem(row, format != 0 ? format - 1 : 0);
    });
    step([&] { SetIfNotEmpty(rows.Item(Folder), activity->Folder()); });
    step([&] { SetIfNotEmpty(rows.Item(File), activity->File()); });
    step([&] { rows.Item(Show).SetValue(BoolText(activity->ShowDocument())); });
    // PDF is the one format there is: a fresh Convert takes it on selection.
    if (activity->OutputFileFormat() == 0) activity->SetOutputFileFormat(kPdfFormat);
    if (activity->OutputFileFormat() == kPdfFormat) SetPdfProperties(*activity, rows, Show);
}

void ChangeFormat(SheetEdit& edit, Convert& activity) {
    if (edit.text == ListItemAt(edit.row, 0)) {
        SetPdfProperties(activity, edit.rows, Show);
        activity.SetOutputFileFormat(kPdfFormat);
        return;
    }
    activity.SetOutputFileFormat(0);
    for (const std::string& caption :
         {std::string(kPdfHeaderCaption), SpacedName("PDFConvertingMethod"), SpacedName("PostscriptToPDFConverter")})
        if (edit.rows.Item(caption)) edit.rows.Remove(caption);
}

void ChangePdfRow(SheetEdit& edit, Convert& activity) {
    if (activity.OutputFileFormat() != kPdfFormat) return;
    const std::string tag = RowTag(edit.row);
    const auto position = ListPosition(edit.row, edit.text);
    if (!position) return;
    if (tag == "PDFConvertingMethod") {
        activity.SetPDFConvertingMethod(*position);
        SetPdfProperties(activity, edit.rows, edit.index);
    } else if (tag == "PostscriptToPDFConverter") {
        activity.SetPostscript2PDFConverter(*position + 1);
    }
}

bool ConvertChange(SheetEdit& edit) {
    const auto activity = SelectedActivityOf<Convert>(edit.host);
    if (!activity) return true;
    switch (edit.index) {
    case Description: ChangeDescription(edit, *activity); break;
    case InputDocumentName: activity->SetInputDocumentName(edit.text); break;
    case OutputDocumentName:
        CheckNewOutputDocument(edit.host, edit.text);
        activity->SetOutputDocumentName(edit.text);
        break;
    case OutputConvertFormat: ChangeFormat(edit, *activity); break;
    case Folder: activity->SetFolder(edit.text); break;
    case File: activity->SetFile(edit.text); break;
    case Show: activity->SetShowDocument(TextAsBool(edit.text)); break;
    default: ChangePdfRow(edit, *activity); break;
    }
    return true;
}

}  // namespace

const SheetTable& ConvertSheetTable() {
    static constexpr SheetTable table{"Convert",       "SetConvertPropertiesValues", AddConvertRows,
                                      SetConvertPropertiesValues, "ConvertChange", ConvertChange};
    return table;
}

}  // namespace flowloom::sheets
