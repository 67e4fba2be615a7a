// New, Open, Save and Save As of the processes file, and the question about
// unsaved changes.
#include "designer/FrmDesignerParts.h"

#include "model/Process.h"
#include "model/Processes.h"
#include "support/AppPaths.h"
#include "support/FileHelpers.h"
#include "support/Prompts.h"
#include "support/ReportError.h"
#include "support/TextCompare.h"


namespace flowloom::designer {

namespace {

constexpr const char* kFileFilter = "XML files (*.xml)|*.xml|All Files (*.*)|*.*";
// What Save raises when there is no model to write.
constexpr std::int32_t kNothingToSave = static_cast<std::int32_t>(0x80040201u);

}  // namespace

int frmDesigner::SaveChanges() {
    return GuardedOr("frmDesigner", "SaveChanges", 0, [&] {
        // Leaving the grid stores an edit in progress before the model is read.
        MoveFocus(Control::Info, true);
        grid_.CommitPendingEdit();
        AskNameIfNewProcess();
        if (!HasUnsavedChanges()) return 0;
        const int answer = MsgBox("The changes have not been saved!\r\nDo you want to save them?",
                                  msgbox::YesNoCancel | msgbox::Question);
        if (answer == msgbox::Cancel) return msgbox::Cancel;
        if (answer == msgbox::Yes && !SaveXMLFile(false)) return msgbox::Cancel;
        return 0;
    });
}

bool frmDesigner::SaveXMLFile(bool saveAs) {
    bool ok = false;
    try {
        AskNameIfNewProcess();
        std::string file = mFileName;
        if (file.empty() || saveAs) {
            FileDialogRequest request;
            request.save = true;
            request.title = "Save";
            request.defaultExtension = ".xml";
            request.folder = mFileDialogFolder;
            request.filter = kFileFilter;
            file = CurrentPrompts().SelectFile(request).value_or(std::string());
        }
        if (!file.empty()) Processes_->Save(file);
        if (FileExists(file)) {
            ok = true;
            mSavedXML = Processes_->XML();
            mFileName = file;
        }
    } catch (const VbError& e) {
        if (e.Number() == kNothingToSave) MsgBox("There is nothing to save!", msgbox::Exclamation);
        else ReportError(e, "frmDesigner", "SaveXMLFile");
    } catch (...) {
        ReportPendingError("frmDesigner", "SaveXMLFile");
    }
    return ok;
}

void frmDesigner::NewXMLFile() {
    mNewProcessChanged = false;
    mProcess.reset();
    Processes_ = Processes::Create();
    mProcess = Process::Create();
    mFileName.clear();
    mSavedXML = Processes_->XML();
    ShowProcesses();
    ShowProcess();
    SetCaption(AppTitle() + " - New XML file");
}

void frmDesigner::LoadXMLFileDialog() {
    Guarded("frmDesigner", "LoadXMLFileDialog", [&] {
        FileDialogRequest request;
        request.title = "Load";
        request.folder = mFileDialogFolder;
        request.filter = kFileFilter;
        const std::string file = CurrentPrompts().SelectFile(request).value_or(std::string());
        if (FileExists(file)) LoadXMLFile(file);
    });
}

bool frmDesigner::LoadXMLFile(const std::string& file) {
    Processes_ = Processes::Create();
    Processes_->Load(file);
    mFileName = file;
    SetCaption(AppTitle() + " - " + file);
    // Taken after any conversion of an older file, which then does not count as a change.
    mSavedXML = Processes_->XML();
    ShowProcesses();
    return true;
}

void frmDesigner::AskNameIfNewProcess() {
    if (list_.ListIndex() == 0 && mNewProcessChanged) AskNameOfProcess();
}

}  // namespace flowloom::designer
