// What can be done to a process as a whole: name it, start one from
// another, delete, move, copy and paste it.
#include "designer/FrmDesignerParts.h"

#include "designer/ItemCopies.h"
#include "model/Process.h"
#include "model/Processes.h"
#include "model/xml/CProcessesXMLDoc.h"
#include "support/AppPaths.h"
#include "support/Prompts.h"
#include "support/ReportError.h"
#include "support/TextCompare.h"


namespace flowloom::designer {

void frmDesigner::AskNameOfProcess() {
    Guarded("frmDesigner", "AskNameOfProcess", [&] {
        std::string prompt = "The New Process is changed but has no name.\r\nGive name for New Process";
        for (;;) {
            const std::string name = CurrentPrompts().InputBox(prompt, AppTitle(), {}).value_or(std::string());
            if (name.empty()) return;
            if (!Processes_->Contains(name)) return AddProcess(name, true);
            prompt = "Process '" + name + "' already exists.\r\nPlease give another name";
        }
    });
}

void frmDesigner::AddProcess(const std::string& name, bool select) {
    // The name goes into the list only: the process keeps the name it has.
    mIgnoreProcessClick = true;
    Processes_->Add(mProcess);
    list_.AddItem(name);
    if (select) {
        list_.SetListIndex(list_.ListCount() - 1);
        mLastProcessIndex = list_.ListIndex();
    }
    mIgnoreProcessClick = false;
}

bool frmDesigner::SelectProcess(const std::string& name) {
    for (int i = 0; i < list_.ListCount(); ++i) {
        if (EqualsNoCase(list_.List(i), name)) {
            list_.SetListIndex(i);
            return true;
        }
    }
    return false;
}

void frmDesigner::NewFromExisting() {
    Guarded("frmDesigner", "NewFromExisting", [&] {
        // The copy goes through the file format, with everything it holds.
        const std::string fragment = ProcessFragmentXml(*mProcess);
        XmlElements elements;
        if (!elements.Read(fragment)) RaiseStandardError(vberr::ObjectRequired);
        list_.SetListIndex(0);
        mProcess->LoadElement(elements.Root(), Processes_);
        mProcess->SetName({});
        mNewProcessChanged = true;
        ShowProcess();
    });
}

void frmDesigner::DeleteProcess() {
    const std::string name = mProcess ? mProcess->name() : std::string();
    const int answer = MsgBox("Do you want to delete " + name + "?",
                              msgbox::OKCancel | msgbox::Question | msgbox::DefaultButton2);
    if (answer != msgbox::OK) return;
    Processes_->Remove(list_.ListIndex());
    ShowProcesses();
}

void frmDesigner::ProcessMoveForward() {
    Guarded("frmDesigner", "ProcessMoveForward", [&] {
        const int i = list_.ListIndex();
        Processes_->Remove(i);
        Processes_->Add(mProcess, i - 1);
        ShowProcesses();
        list_.SetListIndex(i - 1);
    });
}

void frmDesigner::ProcessMoveBack() {
    Guarded("frmDesigner", "ProcessMoveBack", [&] {
        const int i = list_.ListIndex();
        Processes_->Remove(i);
        Processes_->Add(mProcess, {}, i);
        ShowProcesses();
        list_.SetListIndex(i + 1);
    });
}

void frmDesigner::CopyProcessToClipboard() {
    // The copy is made now, so that later edits of the source stay out of it.
    if (mProcess) mClipboard.Set(CopyProcess(*mProcess));
}

void frmDesigner::PasteProcess(const char* procedure) {
    Guarded("frmDesigner", procedure, [&] {
        const auto* process = std::get_if<std::shared_ptr<Process>>(&mClipboard.Get());
        if (!process) RaiseStandardError(vberr::TypeMismatch);
        Processes_->Add(*process);
        ShowProcesses();
        list_.SetListIndex(list_.ListCount() - 1);
        mNewProcessChanged = true;
        mClipboard.Clear();
    });
}

}  // namespace flowloom::designer
