// The window as a container: start-up, activation, resizing, unloading,
// the list of processes and the focus.
#include "designer/frmDesigner.h"

#include "designer/FrmDesignerParts.h"

#include "designer/access/AccessObjects.h"
#include "app/CXmlMessages.h"
#include "app/CommandLine.h"
#include "model/Process.h"
#include "model/Processes.h"
#include "support/AppPaths.h"
#include "support/FileHelpers.h"
#include "support/Prompts.h"
#include "support/ReportError.h"
#include "support/TextCompare.h"
#include "support/VbError.h"
#include "support/VbStrings.h"

#include <filesystem>

namespace flowloom::designer {

namespace {

// The three failures of start-up, each shown in a box before the window closes.
constexpr std::int32_t kFileMissing = static_cast<std::int32_t>(0x80040201u);
constexpr std::int32_t kLoadFailed = static_cast<std::int32_t>(0x80040202u);
constexpr std::int32_t kProcessMissing = static_cast<std::int32_t>(0x80040203u);

bool IsStartFailure(std::int32_t number) {
    return number == kFileMissing || number == kLoadFailed || number == kProcessMissing;
}

}  // namespace

const char* ControlName(Control control) noexcept {
    switch (control) {
    case Control::List: return "lstProcesses";
    case Control::Database: return "wbcDatabase";
    case Control::Datasource: return "wbcDatasource";
    case Control::Activity: return "wbcActivity";
    case Control::Grid: return "PropList";
    case Control::Info: return "txtPropInfo";
    case Control::None: break;
    }
    return "";
}

frmDesigner::frmDesigner(PropertyGridHost& grid, DesignerView& view) : grid_(grid), view_(view) {
    const Strip strips[] = {Strip::Database, Strip::Datasource, Strip::Activity};
    for (const Strip strip : strips) {
        auto state = std::make_unique<StripState>(strip);
        state->events = std::make_unique<StripEvents>(*this, strip);
        state->page.SetControlFocusRequest([this, strip] { SetFocusTo(ControlOf(strip)); });
        strips_[static_cast<int>(strip)] = std::move(state);
    }
    list_.SetClickHandler([this] { Guarded("frmDesigner", "lstProcesses_Click", [&] { ProcessSelected(); }); });
    list_.SetChangeListener([this] { Notify(changed::List); });
}

frmDesigner::~frmDesigner() {
    if (mProcess) mProcess->Dispose();
    if (Processes_) Processes_->Dispose();
}

void frmDesigner::Notify(unsigned what) { view_.Changed(what); }

void frmDesigner::SetCaption(std::string caption) {
    caption_ = std::move(caption);
    Notify(changed::Caption);
}

HtmlPage& frmDesigner::Canvas(Strip strip) noexcept { return StripOf(strip).page; }

void frmDesigner::SetTwipsPerPixel(double x, double y) {
    layout_.twipsPerPixelX = x;
    layout_.twipsPerPixelY = y;
    PlaceListBorder();
    Notify(changed::Layout);
}

// --- life cycle -----------------------------------------------------------

bool frmDesigner::Form_Load(const std::string& commandLine) {
    try {
        StartUp(commandLine);
    } catch (const VbError& e) {
        // Only the three start-up failures get here; they end the program.
        MsgBox(e.Description(), msgbox::Exclamation);
        failedAtStart_ = true;
        unloaded_ = true;
        view_.Unload();
        return false;
    }
    return true;
}

void frmDesigner::StartUp(const std::string& commandLine) {
    // Every step but the three failures is reported, and loading goes on.
    const auto step = [](auto&& body) {
        try {
            body();
        } catch (const VbError& e) {
            if (IsStartFailure(e.Number())) throw;
            ReportError(e, "frmDesigner", "Form_Load");
        } catch (...) {
            ReportPendingError("frmDesigner", "Form_Load");
        }
    };
    step([&] {
        // Beside the program, or where an installation puts its data.
        for (const std::filesystem::path& catalogue :
             {ProgramFolder() / "messages.xml", ProgramFolder() / ".." / "share" / "flowloom" / "messages.xml"}) {
            std::error_code ec;
            if (!std::filesystem::is_regular_file(catalogue, ec)) continue;
            messagesLoaded_ = Messages().Load(catalogue.string());
            break;
        }
    });
    step([&] { PlaceListBorder(); });
    for (const Strip strip : {Strip::Database, Strip::Datasource, Strip::Activity})
        step([&] { InitWebBrowserControl(strip); });

    std::string line = commandLine;
    step([&] {
        SetRawCommandLine(commandLine);
        GetCommandLineArguments(line);
    });
    const CommandLineArguments& args = gCommandLineArguments();
    const std::string file = args.Value(ArgXmlFile);
    const std::string process = args.Value(ArgProcess);
    step([&] {
        if (!file.empty()) {
            if (!FileExists(file))
                throw VbError(kFileMissing, "The file '" + file + "' does not exist.");
            if (!LoadXMLFile(file)) throw VbError(kLoadFailed, "The error occurs while loading the file '" + file + "'.");
            if (!process.empty() && !SelectProcess(process))
                throw VbError(kProcessMissing, "The process '" + process + "' does not exist.");
        } else {
            NewXMLFile();
        }
    });
    step([&] { mBottomMargin = layout_.innerHeight - layout_.lstProcesses.Top - layout_.lstProcesses.Height; });
    const std::string activeObject = args.Value(ArgActiveObject);
    if (!activeObject.empty()) {
        // Each assignment is a statement of its own: a value without ";"
        // fails on the name alone, and the fields are taken all the same.
        const std::vector<std::string> pieces = vb::Split(activeObject, ";");
        activeObjectType_ = pieces.at(0);
        step([&] {
            if (pieces.size() < 2) RaiseStandardError(vberr::SubscriptOutOfRange);
            activeObjectName_ = pieces[1];
        });
        activeObjectFields_ = args.Value(ArgFields);
    }
}

void frmDesigner::Form_Activate() {
    visible_ = true;
    if (mActivatedOnce) return;
    mActivatedOnce = true;
    SetFocusTo(Control::List);
}

void frmDesigner::Form_Resize(double innerWidth, double innerHeight) {
    // A window too small for the arithmetic keeps the sizes it had.
    DesignerLayout next = layout_;
    next.innerWidth = innerWidth;
    next.innerHeight = innerHeight;
    const double gap = next.txtPropInfo.Top - next.PropList.Top - next.PropList.Height;
    next.lstProcesses.Height = innerHeight - next.lstProcesses.Top - mBottomMargin;
    next.wbcActivity.Height = innerHeight - next.wbcActivity.Top - mBottomMargin;
    next.PropList.Width = innerWidth - next.PropList.Left - next.lstProcesses.Left;
    next.txtPropInfo.Width = next.PropList.Width;
    next.txtPropInfo.Top = innerHeight - next.txtPropInfo.Height - mBottomMargin;
    next.PropList.Height = next.txtPropInfo.Top - next.PropList.Top - gap;
    if (next.lstProcesses.Height < 0 || next.wbcActivity.Height < 0 || next.PropList.Width < 0 ||
        next.PropList.Height < 0)
        return;
    layout_ = next;
    PlaceListBorder();
    PlaceBrowseButton();
    Notify(changed::Layout);
}

bool frmDesigner::Form_Unload() {
    if (unloaded_) return true;
    if (SaveChanges() == msgbox::Cancel) return false;
    try {
        if (mProcess) mProcess->Dispose();
        mProcess.reset();
        if (Processes_) Processes_->Dispose();
        Processes_.reset();
    } catch (...) {
    }
    access::CloseConnections();
    unloaded_ = true;
    view_.Unload();
    return true;
}

// --- the list ---------------------------------------------------------------

void frmDesigner::PlaceListBorder() {
    const double px = layout_.twipsPerPixelX, py = layout_.twipsPerPixelY;
    layout_.picListBorder = {layout_.lstProcesses.Left - px, layout_.lstProcesses.Top - py,
                             layout_.lstProcesses.Width + 2 * px, layout_.lstProcesses.Height + 2 * py};
}

void frmDesigner::MarkProcessList(bool on) {
    if (listMarked_ == on) return;
    listMarked_ = on;
    Notify(changed::ListMark);
}

void frmDesigner::ShowProcesses() {
    list_.Clear();
    mLastProcessIndex = -1;
    list_.AddItem(kNewProcessEntry);
    for (const auto& process : *Processes_) list_.AddItem(process->name());
    list_.SetListIndex(list_.ListCount() >= 2 ? 1 : 0);
    SetFocusTo(Control::List);  // fails quietly while the window is not shown
}

void frmDesigner::ProcessSelected() {
    if (mIgnoreProcessClick) return;
    if (list_.ListIndex() != mLastProcessIndex) {
        if (mLastProcessIndex != 0 && list_.ListIndex() == 0) mProcess = Process::Create();
        if (mLastProcessIndex == 0 && mNewProcessChanged) AskNameOfProcess();
    }
    const int index = list_.ListIndex();
    if (index >= 1) mProcess = Processes_->Item(index);
    if (ProcessListMarked()) {
        if (index != mLastProcessIndex) ShowProcess();
    } else {
        MarkProcessList(true);
        ShowProcess();
    }
    if (index != mLastProcessIndex) mNewProcessChanged = false;
    mLastProcessIndex = index;
}

void frmDesigner::ShowProcess() {
    Guarded("frmDesigner", "ShowProcess", [&] {
        for (auto& strip : strips_) {
            strip->items.clear();
            strip->itemsExist = false;
        }
        VisualizeDatabases();
        VisualizeDatasources();
        VisualizeActivities();
        OpenPropList(1);
    });
}

void frmDesigner::lstProcesses_GotFocus() {
    for (const Strip strip : {Strip::Database, Strip::Datasource, Strip::Activity})
        if (TableExists(strip)) UnselectStrip(strip);
    Guarded("frmDesigner", "lstProcesses_GotFocus", [&] { ProcessSelected(); });
}

void frmDesigner::lstProcesses_KeyUp(int keyCode) {
    if (keyCode == kKeyDelete) DeleteProcess();
}

void frmDesigner::lstProcesses_MouseDown(int button, int index) {
    SetFocusTo(Control::List);
    if (button == kRightButton && index != -1) list_.SetListIndex(index);
}

void frmDesigner::lstProcesses_MouseUp(int button) {
    if (button == kRightButton && list_.ListIndex() >= 1) ShowListPopup();
}

// --- focus ------------------------------------------------------------------

void frmDesigner::SetFocusTo(Control control) { MoveFocus(control, true); }

void frmDesigner::MoveFocus(Control control, bool byDesigner) {
    // Before the window is shown nothing can take the focus.
    if (!visible_ || control == activeControl_ || control == Control::None) return;
    const Control previous = activeControl_;
    if (const auto strip = StripOfControl(previous)) StripOf(*strip).page.SetControlFocused(false);
    activeControl_ = control;
    if (byDesigner) view_.FocusMoved(control);
    if (const auto strip = StripOfControl(control)) {
        StripOf(*strip).page.SetControlFocused(true);
        StripGotFocus(*strip);
    } else if (control == Control::List) {
        lstProcesses_GotFocus();
    }
}

bool frmDesigner::HasUnsavedChanges() const {
    // mSavedXML is taken right after each load and save: without an edit
    // since, the model still writes it.
    return Processes_ && Processes_->EditedSinceLoadOrSave() && !Processes_->XmlEqualsNoCase(mSavedXML);
}

}  // namespace flowloom::designer
