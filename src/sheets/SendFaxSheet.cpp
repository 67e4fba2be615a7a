// The SendFax sheet (kind 15): the document to send, where and with what subject.
#include "sheets/SheetTables.h"

#include "grid/Properties.h"
#include "model/SendFax.h"

namespace flowloom::sheets {

namespace {

enum Row : std::int32_t { Description = 1, InputDocumentName, Address, Subject };

void AddSendFaxRows(SheetHost& host, grid::Properties& rows) {
    using namespace grid;
    AddRows(rows, {{"InputDocumentName", ExPropCustomList}, {"Address", ExPropText}, {"Subject", ExPropText}});
    rows.Item(InputDocumentName).SetListItems(GetDocumentNames(host));
}

void SetSendFaxPropertiesValues(SheetHost& host, grid::Properties& rows, const GuardedSteps& step) {
    const auto activity = SelectedActivityOf<SendFax>(host);
    if (!activity) return;
    SetActivityDescription(host, rows, step);
    step([&] { SetIfNotEmpty(rows.Item(InputDocumentName), activity->InputDocumentName()); });
    step([&] { SetIfNotEmpty(rows.Item(Address), activity->Address()); });
    step([&] { SetIfNotEmpty(rows.Item(Subject), activity->Subject()); });
}

bool SendFaxChange(SheetEdit& edit) {
    const auto activity = SelectedActivityOf<SendFax>(edit.host);
    if (!activity) return true;
    switch (edit.index) {
    case Description: ChangeDescription(edit, *activity); break;
    case InputDocumentName: activity->SetInputDocumentName(edit.text); break;
    case Address: activity->SetAddress(edit.text); break;
    case Subject: activity->SetSubject(edit.text); break;
    default: break;
    }
    return true;
}

}  // namespace

const SheetTable& SendFaxSheetTable() {
    static constexpr SheetTable table{"SendFax",       "SetSendFaxPropertiesValues", AddSendFaxRows,
                                      SetSendFaxPropertiesValues, "SendFaxChange", SendFaxChange};
    return table;
}

}  // namespace flowloom::sheets
