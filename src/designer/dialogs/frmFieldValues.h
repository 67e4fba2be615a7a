#pragma once

#include "model/Forward.h"
#include "support/ModalDialog.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace flowloom::dialogs {

// Edits the fixed field values of a process or of an AddRecord as lines
// "field = value": a field is typed or picked from the fields offered, a
// value typed or picked from the suggestions (expressions and the names of
// the documents the process makes). The caller parses the result.
//
// Use: construct, set the inputs, init(), show; on OK() read Result().
class frmFieldValues : public ModalDialog {
public:
    // The fields of a table of a database, for an AddRecord's table.
    using TableFieldsReader =
        std::function<std::vector<std::string>(const std::string& table, const Database* database)>;

    frmFieldValues();

    // The fields to offer, ";" between them; when empty, those of the
    // AddRecord's table (through TableFields), else none.
    std::string Fields;
    std::shared_ptr<flowloom::Processes> Processes;
    std::shared_ptr<flowloom::Process> Process;
    // When set, its values are edited rather than the process's.
    std::shared_ptr<flowloom::AddRecord> AddRecord;
    // Null: no table fields are offered.
    TableFieldsReader TableFields;
    // Run by cmdHelp.
    std::function<void()> OnHelp;

    // Fills the fields, the present values and the document suggestions.
    void init();
    // The lines with "\r\n" between them, as cmdOK left them.
    std::string Result() const { return result_; }

protected:
    void Changed(DialogControl& control) override;
    void Picked(DialogControl& control) override;
    void Clicked(DialogControl& button) override;

private:
    void FillFields();
    void ShowPresentValues();
    void AddDocumentSuggestions();
    void AddLine();
    void EditLine();
    void RemoveLine();
    void UpdateEnabling();

    std::string result_;
};

}  // namespace flowloom::dialogs
