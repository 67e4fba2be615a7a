#pragma once

#include "designer/CHTMLDocument.h"
#include "designer/DesignerView.h"
#include "designer/DesignerClipboard.h"
#include "designer/HtmlDom.h"
#include "designer/ListBoxData.h"
#include "designer/MenuData.h"
#include "designer/access/AccessObjects.h"
#include "designer/editor/HtmlEditor.h"
#include "grid/HeadlessGrid.h"
#include "grid/PropertyEvents.h"
#include "sheets/SheetHost.h"
#include "support/ModalDialog.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace flowloom {
class Activity;
class Database;
class Datasource;
class Process;
class Processes;
class SendMail;
}  // namespace flowloom


namespace flowloom::designer {

// A control's place in twips (15 to a pixel at 96 dpi).
struct TwipRect {
    double Left = 0, Top = 0, Width = 0, Height = 0;
};

// The window's geometry in twips, as the resize arithmetic keeps it.
struct DesignerLayout {
    TwipRect lstProcesses{60, 660, 3675, 4920};
    TwipRect picListBorder{90, 675, 3630, 4935};
    TwipRect wbcDatabase{3780, 660, 1900, 1275};
    TwipRect wbcDatasource{5665, 660, 2810, 1275};
    TwipRect wbcActivity{3780, 1920, 4695, 3675};
    TwipRect PropList{8520, 660, 3675, 4155};
    TwipRect txtPropInfo{8520, 4860, 3675, 735};
    TwipRect cmdBrowse{11880, 4320, 250, 210};
    bool cmdBrowseVisible = false;
    double lineTop = 600;  // the separator under the toolbar
    double innerWidth = 11880, innerHeight = 5640;
    double twipsPerPixelX = 15, twipsPerPixelY = 15;
};

// The strips of the canvas.
enum class Strip { Database, Datasource, Activity };

// What came of a menu choice.
enum class MenuResult { Chosen, Disabled, Hidden, NotOpen, Unknown };

// The main window's logic: its state, its handlers and its commands. The
// Qt window and the headless session both drive this one class: they turn a
// person's mouse and keys into the calls below and show what it changed.
class frmDesigner : public grid::PropertyEventsIgnored, private sheets::SheetHost, private editor::HtmlEditorHost {
public:
    frmDesigner(PropertyGridHost& grid, DesignerView& view);
    ~frmDesigner() override;
    frmDesigner(const frmDesigner&) = delete;
    frmDesigner& operator=(const frmDesigner&) = delete;

    // --- life cycle -------------------------------------------------------
    // Start-up with the raw command line; false when the window unloaded
    // (failures A, B, C).
    bool Form_Load(const std::string& commandLine);
    void Form_Activate();
    // With the window's inner size in twips.
    void Form_Resize(double innerWidth, double innerHeight);
    // The user closes the window; false when the unload was cancelled.
    bool Form_Unload();
    bool Unloaded() const noexcept { return unloaded_; }
    // Whether a start-up failure unloaded the window.
    bool FailedAtStart() const noexcept { return failedAtStart_; }

    // --- what a person does (the same order of events as the window) ------
    void ListClick(int index);       // left button on entry `index`
    void ListRightClick(int index);  // right button down and up on it
    void ListKeyUp(int keyCode);
    // The keyboard moves the list's selection (arrow keys, Home, End).
    void ListSelect(int index);
    // False when the strip has no such cell (the click still gave it the focus).
    bool CellClick(Strip strip, int row, int cell);
    bool CellRightClick(Strip strip, int row, int cell);
    void StripClick(Strip strip);       // the empty part of the strip
    void StripRightClick(Strip strip);  // the same, right button
    void StripKeyDown(Strip strip, int keyCode);  // a key on the focused cell
    void FocusControl(Control control);
    // Opens the menu that holds the entry (its enabling rules run) and
    // chooses the entry; entries of the context menu come from the open one.
    MenuResult ChooseMenu(const std::string& name);
    // Runs the enabling rule of a menu, as when it opens.
    void OpenMenu(const std::string& menu);
    void ClosePopup();
    bool PopupOpen() const noexcept { return popupOpen_; }
    void ToolbarClick(int index);
    // A click in the grid gives it the focus; the grid selects the row
    // itself and raises SelChange and Click.
    void GridRowClick(int index);
    void HelpRequested();          // F1

    // --- what the window shows -----------------------------------------
    const std::string& Caption() const noexcept { return caption_; }
    const ListBoxData& lstProcesses() const noexcept { return list_; }
    bool ProcessListMarked() const noexcept { return listMarked_; }
    HtmlPage& Canvas(Strip strip) noexcept;
    const std::string& PropListTag() const noexcept { return propListTag_; }
    const std::string& txtPropInfo() const noexcept { return propInfo_; }
    const DesignerLayout& Layout() const noexcept { return layout_; }
    void SetTwipsPerPixel(double x, double y);
    const MenuBar& Menus() const noexcept { return menus_; }
    Control ActiveControl() const noexcept { return activeControl_; }
    bool WaitCursor() const noexcept { return waitCursor_; }

    // --- state the session and tests read --------------------------------
    std::shared_ptr<Processes> CurrentProcesses() const override { return Processes_; }
    std::shared_ptr<Process> CurrentProcess() const override { return mProcess; }
    // Processes.XML differs from the text saved last, without regard to case.
    bool HasUnsavedChanges() const;
    const Clipboard& mClipboardContent() const noexcept { return mClipboard; }
    const std::string& ActiveObjectType() const noexcept { return activeObjectType_; }
    const std::string& ActiveObjectName() const noexcept { return activeObjectName_; }
    const std::string& ActiveObjectFields() const noexcept { return activeObjectFields_; }
    const std::string& FileName() const noexcept { return mFileName; }
    // The text QueryCustomData gives for a row.
    std::string CustomDataText(grid::Property& row);

    // --- the grid's events ---------------------------------------------
    void PropList_Click();
    void KeyDownEdit(int& KeyCode, int Shift) override;
    void NeedData(grid::Property& iProp, std::vector<std::string>& sListItems) override;
    void SelChange(grid::Property* iPropOld, grid::Property* iPropNew) override;
    void ValueChanged(grid::Property& iProp, std::string& sNewValue, bool& Cancel) override;
    void QueryCustomData(grid::Property& iProp, std::string& sDisplayValue) override;
    void Browse(grid::Property& iProp, std::string& sFillWith) override;
    void cmdBrowse_Click();

    // --- dialogs and the mail-body tool -----------------------------------
    // The modal dialog on show, or null.
    ModalDialog* OpenDialog() const noexcept { return dialog_.get(); }
    // The grid of the open dialog when it has one (the options), or null.
    grid::PropertyGridHost* OpenDialogGrid() const noexcept;
    // A person acts on a control of the open dialog; false when there is no
    // open dialog or the control cannot take the action. A failure of the
    // dialog's handler is reported under the dialog's name.
    bool DialogSetText(const std::string& control, const std::string& text);
    bool DialogPick(const std::string& control, int index);
    bool DialogClick(const std::string& button);
    // The dialog's close box (or Escape): as its Cancel.
    void DialogCloseBox();
    // False while the mail-body tool runs.
    bool Enabled() const noexcept { return enabled_; }
    // Whether a tool started from the window or its dialog is being watched.
    bool ToolWatched() const noexcept;
    // The tool's process ended.
    void ToolEnded();
    // The watch on a running tool: the person came back to the window (or
    // the dialog) in front of the tool.
    void Timer1_Timer(bool designerInFront);

private:
    struct StripState;
    class StripEvents;
    friend class StripEvents;

    // Part of the window: life cycle and the list (frmDesigner.cpp).
    void PlaceListBorder();
    void MarkProcessList(bool on);
    void ShowProcesses();
    void ProcessSelected();
    void ShowProcess();
    void lstProcesses_GotFocus();
    void lstProcesses_KeyUp(int keyCode);
    void lstProcesses_MouseDown(int button, int index);
    void lstProcesses_MouseUp(int button);
    void SetFocusTo(Control control);
    void MoveFocus(Control control, bool byDesigner);
    void BeginAction();
    void Notify(unsigned what);
    void SetCaption(std::string caption);
    void StartUp(const std::string& commandLine);

    // Menus and toolbar (frmDesignerMenus.cpp).
    struct StripMenuEntries {
        const char* remove;
        const char* copy;  // none on the database strip
        const char* left;
        const char* right;
    };
    void StripMenuRule(Strip strip, const StripMenuEntries& entries);
    void mnuProcess_Click();
    void mnuDatabase_Click();
    void mnuProcessDatasource_Click();
    void mnuProcessActivity_Click();
    void RunMenuEntry(const std::string& name);
    void RunPopupEntry(const std::string& name);
    void ShowListPopup();
    void RunToolbarButton(int index);
    void OpenPopup();
    void FileNew();
    void FileOpen();
    void FileSave();
    void FileSaveAs();
    void Exit();
    void NewTemplate();
    void GenerateCodeWithXml();
    void GenerateCodeWithoutXml();
    void ShowOptions();
    void ShowAbout();
    void mnuProcessVerify_Click();
    void OpenHelp(std::int32_t context);

    // File commands (frmDesignerFile.cpp).
    int SaveChanges();
    bool SaveXMLFile(bool saveAs);
    void NewXMLFile();
    void LoadXMLFileDialog();
    bool LoadXMLFile(const std::string& file);
    void AskNameIfNewProcess();

    // Process commands (frmDesignerProcess.cpp).
    void AskNameOfProcess();
    void AddProcess(const std::string& name, bool select);
    bool SelectProcess(const std::string& name);
    void NewFromExisting();
    void DeleteProcess();
    void ProcessMoveForward();
    void ProcessMoveBack();
    void CopyProcessToClipboard();
    void PasteProcess(const char* procedure);

    // Database, datasource and activity commands (frmDesignerItems.cpp).
    void InsertDatabase();
    void InsertDatasource();
    void InsertActivity(int code);
    void DeleteDatabase();
    void DeleteDatasource();
    void DeleteActivity();
    void DatabaseMoveForward();
    void DatabaseMoveBack();
    void DatasourceMoveForward();
    void DatasourceMoveBack();
    void ActivityMoveForward();
    void ActivityMoveBack();
    void CopyDatasourceToClipboard();
    void CopyActivityToClipboard();
    void PasteDatasource(const char* procedure);
    void PasteActivity(const char* procedure);
    int InsertSlot(Strip strip, int code);
    void FreeSlot(Strip strip, std::int32_t position);
    void CellContextMenu(Strip strip);
    void DocumentContextMenu(Strip strip);
    void SetPastePopupEntry(Strip strip);

    // The canvas (frmDesignerCanvas.cpp).
    void InitWebBrowserControl(Strip strip);
    void TuneWebBrowserControl(Strip strip);
    void VisualizeDatabases();
    void VisualizeDatasources();
    void VisualizeStrip(Strip strip);
    void VisualizeActivities();
    void BuildActivityRows(StripState& state, HtmlTable& table);
    void UnselectStrip(Strip strip);
    bool TableExists(Strip strip) const;
    std::shared_ptr<Database> GetSelectedDatabase(std::int32_t& position) const;
    std::shared_ptr<Datasource> GetSelectedDatasource(std::int32_t& position) const;
    std::shared_ptr<Activity> GetSelectedActivity(std::int32_t& position) const;
    std::int32_t SelectedStripPosition(Strip strip) const;
    void HtmlCellArrowKeyDown(Strip strip, int key);
    void HtmlActivityCellArrowKeyDown(int key);
    void StripGotFocus(Strip strip);
    void FocusCell(Strip strip, int row, int cell);
    void OnCellSelected(Strip strip, const std::shared_ptr<HtmlCell>& cell);
    void OnCellDeleted(Strip strip);
    void OnArrow(Strip strip, int key);
    StripState& StripOf(Strip strip) noexcept;
    const StripState& StripOf(Strip strip) const noexcept;

    // Sheets (frmDesignerSheets.cpp).
    void OpenPropList(int kind);
    void ShowPropertyHelp();
    void PlaceBrowseButton();

    // SheetHost.
    std::shared_ptr<Database> SelectedDatabase() const override;
    std::shared_ptr<Datasource> SelectedDatasource() const override;
    std::shared_ptr<Activity> SelectedActivity() const override;
    void LoadDatabaseObjects(const std::string& databaseName) override;
    bool DatabaseObjectsLoaded() const override { return mAccessObjects != nullptr; }
    bool DatabaseObjectList(const std::string& type, std::string& list) const override;
    const sheets::FieldListMemo& LastFieldList() const override { return fieldListMemo_; }
    sheets::SheetMemory& Memory() override { return sheetMemory_; }
    int ShowMessage(const std::string& prompt, int style) override;
    void SetSelectedCellCaption(sheets::CaptionStrip strip, const std::string& caption) override;
    void RebuildSheet(int kind) override { OpenPropList(kind); }
    void SelectRow(grid::Property& row) override;
    bool ProcessRenamed(std::string& sNewValue) override;
    std::vector<std::string> GetTableFields(const std::string& tableName, const std::string& databaseName) override;

    // HtmlEditorHost.
    std::shared_ptr<Processes> ToolProcesses() const override { return Processes_; }
    void SetEnabled(bool enabled) override;
    void SetTimerInterval(int milliseconds) override { timerInterval_ = milliseconds; }

    // Dialogs and the tool (frmDesignerDialogs.cpp, frmDesignerTool.cpp).
    using DialogDone = std::function<void(ModalDialog&)>;
    void ShowDialog(std::unique_ptr<ModalDialog> dialog, std::string formName, DialogDone done);
    template <typename Action>
    bool DialogAction(const std::string& control, const char* event, Action&& action);
    void FinishDialogIfClosed();
    void BrowseFieldValues(grid::Property& row);
    void BrowseAttachments(grid::Property& row);
    void BrowseGroups();
    void ApplyDialogResult(grid::Property& row, std::string text);
    void EditSendMailBody(grid::Property& row);
    void HtmlEditorClosed();
    void OpenDialogHelp();

    PropertyGridHost& grid_;
    DesignerView& view_;

    // The state of the window.
    std::shared_ptr<Processes> Processes_;
    std::shared_ptr<Process> mProcess;
    std::string mFileName;
    std::string mSavedXML;
    int mLastProcessIndex = -1;
    bool mNewProcessChanged = false;
    bool mIgnoreProcessClick = false;
    std::string mFileDialogFolder;
    double mBottomMargin = 0;
    Clipboard mClipboard;
    bool mActivatedOnce = false;
    std::shared_ptr<HtmlCell> mSelectedCell;
    std::string activeObjectType_, activeObjectName_, activeObjectFields_;
    std::string mAccessObjectsLocation;
    std::unique_ptr<access::CAccessObjects> mAccessObjects;
    // The mail-body tool: its exchange file, its window, the activity edited.
    std::string mHtmlEditorFile;
    editor::ToolWindow mHtmlEditorWindow = 0;
    std::shared_ptr<SendMail> mHtmlEditorSendMail;
    int timerInterval_ = 0;
    bool enabled_ = true;
    // The dialog on show, its form's name for error reports and what its
    // caller does once it is closed; a closed one is kept until the window
    // that showed it has let go of it.
    std::unique_ptr<ModalDialog> dialog_;
    std::string dialogForm_;
    DialogDone dialogDone_;
    std::unique_ptr<ModalDialog> closedDialog_;
    std::unique_ptr<grid::HeadlessGrid> dialogGrid_;
    grid::PropertyGridHost* dialogGridHost_ = nullptr;
    sheets::FieldListMemo fieldListMemo_;
    sheets::SheetMemory sheetMemory_;

    std::unique_ptr<StripState> strips_[3];
    ListBoxData list_;
    MenuBar menus_;
    DesignerLayout layout_;
    std::string caption_;
    std::string propListTag_;
    std::string propInfo_;
    bool listMarked_ = false;
    bool messagesLoaded_ = false;
    bool visible_ = false;
    bool popupOpen_ = false;
    bool waitCursor_ = false;
    bool unloaded_ = false;
    bool failedAtStart_ = false;
    Control activeControl_ = Control::None;
};

}  // namespace flowloom::designer
