#pragma once

#include "support/VbError.h"
#include "grid/Properties.h"
#include "grid/PropertyOwner.h"
#include "grid/widget/GridDialogs.h"
#include "grid/widget/GridInput.h"
#include "grid/widget/PropEventSink.h"
#include "grid/widget/PropertyBag.h"

#include <QWidget>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace flowloom::grid {

class ButtonArea;
class DropList;
class EditBox;
class MemoPopup;
class RowListView;
class RowWatch;
struct RowPaintSettings;

// The two-column property grid: captions left of a divider, typed values
// right of it, edited in place. The owner fills Properties() and hears of
// edits through a sink (SetCallbackSink) or, without one, the signals of the
// same names. Events reach the owner synchronously; arguments passed by
// reference are read back when the handler returns.
class PropertyList : public QWidget, public PropertyOwner, private GridInput {
    Q_OBJECT
public:
    explicit PropertyList(QWidget* parent = nullptr);
    ~PropertyList() override;

    OleColor BackColor() const override { return backColor_; }
    void SetBackColor(OleColor color);  // the value column's colour too
    OleColor ForeColor() const override { return foreColor_; }
    void SetForeColor(OleColor color);
    bool Enabled() const { return isEnabled(); }
    void SetEnabled(bool value) { setEnabled(value); }
    FontValue Font() const override { return font_; }
    void SetFont(const FontValue& font);
    int BorderStyle() const noexcept { return borderStyle_; }
    void SetBorderStyle(int style);  // 0 or 1, else error 380
    WId hWnd() const { return winId(); }
    OleColor MaskColor() const noexcept { return maskColor_; }
    void SetMaskColor(OleColor color) { maskColor_ = color; }
    const Picture& MouseIcon() const noexcept { return mouseIcon_; }
    void SetMouseIcon(Picture icon);
    int MousePointer() const noexcept { return mousePointer_; }
    void SetMousePointer(int pointer);
    int Style() const noexcept { return style_; }
    void SetStyle(int style);  // 0 or 1 (picture column), else error 380
    OleColor HighlightColor() const override { return highlightColor_; }
    void SetHighlightColor(OleColor color) { highlightColor_ = color; }
    OleColor HighlightText() const override { return highlightText_; }
    void SetHighlightText(OleColor color) { highlightText_ = color; }
    bool HoldDraw() const noexcept { return holdDraw_; }
    void SetHoldDraw(bool value);
    // The divider position, recomputed first from DividerPlacement.
    std::int32_t LongestItem();
    [[noreturn]] void SetLongestItem(std::int32_t);
    Property* SelectedItem() const noexcept { return selected_; }
    void SetSelectedItem(Property* row);
    std::string TextFalse() const override { return textFalse_; }
    void SetTextFalse(std::string text) { textFalse_ = std::move(text); }
    std::string TextTrue() const override { return textTrue_; }
    void SetTextTrue(std::string text) { textTrue_ = std::move(text); }
    std::int32_t TopIndex() const;
    void SetTopIndex(std::int32_t index);
    OleColor LineColor() const noexcept { return lineColor_; }
    void SetLineColor(OleColor color) { lineColor_ = color; }
    bool AutoTypeTranslation() const noexcept { return autoTypeTranslation_; }
    void SetAutoTypeTranslation(bool value) { autoTypeTranslation_ = value; }
    bool FilterFields() const noexcept { return filterFields_; }
    void SetFilterFields(bool value) { filterFields_ = value; }
    int LineStyle() const noexcept { return lineStyle_; }
    void SetLineStyle(int style);  // 0 to 5, else error 380
    std::int32_t ListIndex() const;
    void SetListIndex(std::int32_t index);
    bool ExpandableHeaders() const noexcept { return expandableHeaders_; }
    void SetExpandableHeaders(bool value);
    int DividerPlacement() const noexcept { return dividerPlacement_; }
    void SetDividerPlacement(int placement);
    bool HideSelection() const noexcept { return hideSelection_; }
    void SetHideSelection(bool value);
    bool AllowEdit() const noexcept { return allowEdit_; }
    void SetAllowEdit(bool value);
    bool OneClickActivate() const noexcept { return oneClickActivate_; }
    void SetOneClickActivate(bool value) { oneClickActivate_ = value; }
    bool AllowNullNumber() const noexcept { return allowNullNumber_; }
    void SetAllowNullNumber(bool value) { allowNullNumber_ = value; }
    bool ModalPicker() const noexcept { return modalPicker_; }
    void SetModalPicker(bool value) { modalPicker_ = value; }
    bool AlwaysShowHeaders() const noexcept { return alwaysShowHeaders_; }
    void SetAlwaysShowHeaders(bool value);
    OleColor BackColorValue() const noexcept { return backColorValue_; }
    void SetBackColorValue(OleColor color);
    OleColor BackColorAlternate() const override { return backColorAlternate_; }
    void SetBackColorAlternate(OleColor color) { backColorAlternate_ = color; }
    std::int32_t DividerLeft() const noexcept { return dividerLeft_; }
    void SetDividerLeft(std::int32_t x);
    std::int32_t HorizontalExtent() const;
    void SetHorizontalExtent(std::int32_t extent);

    // Ends the edit of the selected row and stores its value; error
    // 0x80040002 without a selected row.
    void CommitPending(bool fNotifyChange);
    void HideControls();
    // Events 11 to 27 go to the sink while one is set, else to the signals.
    // The sink is not owned and must outlive its use or be cleared.
    void SetCallbackSink(IPropEventSink* objSink) { sink_ = objSink; }
    Property* HitTest(std::int32_t x, std::int32_t y) const;
    grid::Properties& Properties() noexcept { return rows_; }
    void Refresh();
    void AboutBox() {}

    // The dialogs behind file, font and folder buttons (Qt's by default).
    void SetDialogs(std::unique_ptr<GridDialogs> dialogs);
    void WriteProperties(PropertyBag& bag) const;
    void ReadProperties(const PropertyBag& bag);
    // The process-wide short date pattern that date rows take as DataFormat,
    // and the names of months and weekdays that date formats show.
    static const std::string& SystemShortDatePattern();
    static const DateNames& SystemDateNames();

signals:
    void Click();
    void DblClick();
    void KeyDown(int& KeyCode, int Shift);
    void KeyPress(int& KeyAscii);
    void KeyUp(int& KeyCode, int Shift);
    void MouseDown(int Button, int Shift, int X, int Y);
    void MouseMove(int Button, int Shift, int X, int Y);
    void MouseUp(int Button, int Shift, int X, int Y);
    void Resize();
    void Scroll();
    void Browse(flowloom::grid::Property* iProp, std::string& sFillWith);
    void KeyDownEdit(int& KeyCode, int Shift);
    void KeyPressEdit(int& KeyAscii);
    void KeyUpEdit(int KeyCode, int Shift);
    void NeedData(flowloom::grid::Property* iProp, std::vector<std::string>& sListItems);
    void SelChange(flowloom::grid::Property* iPropOld, flowloom::grid::Property* iPropNew);
    void ValueChanged(flowloom::grid::Property* iProp, std::string& sNewValue, bool& Cancel);
    void QueryCustomData(flowloom::grid::Property* iProp, std::string& sDisplayValue);
    void GetPredefinedStrings(flowloom::grid::Property* iProp, std::vector<std::string>& sStrings);
    void DrawItem(flowloom::grid::Property* iProp, QPainter* hdc, int lLeft, int lTop, int lRight, int lBottom,
                  int lStartText, int lStartValue);
    void ShowEditControl(flowloom::grid::Property* iProp, int lLeft, int lTop, int lWidth, int lHeight, bool& bUseIntrinsic);
    void HideEditControl();
    void Expand(flowloom::grid::Property* iProp);
    void Collapse(flowloom::grid::Property* iProp);
    void ODCommitPending(flowloom::grid::Property* iProp);
    void DropdownPick(flowloom::grid::Property* iProp, int lListIndex);
    void PreExpand(flowloom::grid::Property* iProp);
    // An error of a button's work (file dialog, spinner, ...), which can't
    // travel out of an input handler; its source names the step.
    void ErrorRaised(const flowloom::VbError& error);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    // PropertyOwner: what the rows ask of their control.
    bool IsSelected(const Property& row) const override { return selected_ == &row; }
    void Redraw() override;
    void RowMetricsChanged(Property& row) override;
    void ReshowEditors() override;
    void HideEditors() override { HideControls(); }
    void SetEditText(const std::string& text) override;
    void CustomDisplayText(Property& row, std::string& text) override;
    void RebuildVisibleRows() override;
    void AddVisibleRow(Property& row) override;
    void RowsCleared() override;
    void ClearSelectionIf(const Property& row) override;
    void CommitPendingEdit() override;
    void WidenPictureColumn(int width) override;
    std::string ShortDatePattern() const override { return SystemShortDatePattern(); }
    const DateNames& LocaleDateNames() const override { return SystemDateNames(); }

    // GridInput: what the parts of the control report.
    int MeasureRow(const Property& row) const override;
    void DrawRow(QPainter& painter, Property& row, const QRect& rect, bool current) override;
    void PaintBackground(QPainter& painter, const QRect& rect) override;
    void ListMouseDown(QMouseEvent& event) override;
    void ListMouseMove(QMouseEvent& event) override;
    void ListMouseUp(QMouseEvent& event) override;
    void ListDoubleClick() override;
    void ListScrolled() override;
    bool LeaveByTab(bool next) override;
    void ListToolTip(const QHelpEvent& event) override;
    void ControlKeyPress(QKeyEvent& event) override;
    void ControlKeyRelease(QKeyEvent& event) override;
    bool EditKeyPress(QKeyEvent& event) override;
    void EditKeyRelease(QKeyEvent& event) override;
    void EditTextEdited() override;
    void EditDoubleClick(bool begunOnRow) override;
    void EditMouseMove() override;
    void ButtonMouseDown(QMouseEvent& event) override;
    void ButtonMouseUp(QMouseEvent& event) override;
    void ButtonDoubleClick(QMouseEvent& event) override;

    // Events: to the sink when set, else to the signals.
    void RaiseKeyDownEdit(int& keyCode, int shift);
    void RaiseKeyPressEdit(int& keyAscii);
    void RaiseKeyUpEdit(int keyCode, int shift);
    void RaiseNeedData(Property& row, std::vector<std::string>& items);
    void RaiseSelChange(Property* oldRow, Property* newRow);
    void RaiseValueChanged(Property& row, std::string& value, bool& cancel);
    void RaiseDrawItem(Property& row, QPainter& painter, int left, int top, int right, int bottom, int startText, int startValue);
    void RaiseShowEditControl(Property& row, int left, int top, int width, int height, bool& useIntrinsic);
    void RaiseHideEditControl();
    void RaiseExpand(Property& row);
    void RaiseCollapse(Property& row);
    void RaiseODCommitPending(Property& row);
    void RaiseBrowse(Property& row, std::string& fillWith);
    void RaiseDropdownPick(Property& row, int index);
    void RaisePreExpand(Property& row);

    // Layout and editors.
    void UpdateLongestItem(int captionWidth);
    int CaptionWidth(const Property& row) const;
    RowPaintSettings PaintSettings(bool highlighted) const;
    void ShowEditors();
    void LayoutEditors(Property& row, const QRect& rowRect);
    void SelectAllInEdit();
    void ReshowAfterKey();
    void SelectRow(Property* row);
    void SetHeaderExpanded(Property& header, bool expanded);
    bool TryCommitPending();

    // Values from the editors.
    bool OfferValue(Property& row, std::string& value);
    void ApplyPick(Property& row, int index, std::string entry);
    bool FillDropList();
    void OpenDropList();
    void OpenMemo();
    void MemoCommitted(const QString& text);
    void DropListPicked(int index, bool byMouse);
    void PressButton(int y, bool fromKeyboard);
    void PressButtonSteps(Property& row, int y, const char*& step);
    void Spin(Property& row, bool lower);
    void TakeDialogResult(Property& row, std::string value);
    void RunFileDialog(Property& row);
    void RunFontDialog(Property& row);
    void RunFolderDialog(Property& row);
    void RunBrowse(Property& row);
    void DoubleClickRow();
    void EnterInEdit();
    void EscapeInEdit();
    bool PassesNumberFilter(int keyAscii, bool ctrl) const;

    // Keys at the control.
    void ControlKeyDown(int keyCode, int shift, bool fromEdit);
    void DropKey(Property& row);
    void ListKeyDown(int keyCode, int shift);
    void ListKeyPress(int keyAscii, QKeyEvent& event);
    void StepClosedList(int keyCode);
    void FocusChanged(QWidget* now);
    bool OwnsWidget(const QWidget* widget) const;
    void UpdateSizePointer(int x);
    bool IsOnButton(QPoint global) const;
    QWidget* FocusNeighbour(bool next) const;

    grid::Properties rows_{this};
    RowListView* list_;
    EditBox* edit_;
    ButtonArea* button_;
    DropList* drop_;
    MemoPopup* memo_;
    std::unique_ptr<GridDialogs> dialogs_;
    IPropEventSink* sink_ = nullptr;
    Property* selected_ = nullptr;
    std::vector<RowWatch*> watches_;

    OleColor backColor_ = kSystemWindow;
    OleColor foreColor_ = kSystemWindowText;
    FontValue font_;
    int borderStyle_ = 0;
    OleColor maskColor_ = kDefaultMaskColor;
    Picture mouseIcon_;
    int mousePointer_ = 0;
    int style_ = 0;
    OleColor highlightColor_ = kSystemHighlight;
    OleColor highlightText_ = kSystemHighlightText;
    bool holdDraw_ = false;
    std::string textFalse_ = "False";
    std::string textTrue_ = "True";
    OleColor lineColor_ = 0xC0C0C0;
    bool autoTypeTranslation_ = true;
    bool filterFields_ = false;
    int lineStyle_ = 0;
    bool expandableHeaders_ = false;
    int dividerPlacement_ = 0;
    bool hideSelection_ = true;
    bool allowEdit_ = true;
    bool oneClickActivate_ = false;
    bool allowNullNumber_ = false;
    bool modalPicker_ = false;
    bool alwaysShowHeaders_ = true;
    OleColor backColorValue_ = kSystemWindow;
    OleColor backColorAlternate_ = kSystemWindow;
    std::int32_t dividerLeft_ = 100;
    bool sorted_ = false;

    bool hasFocus_ = false;
    bool leavingFocus_ = false;
    int widestPicture_ = 16;
    int longestItem_ = 0;
    QRect activeRect_;
    int lastY_ = 0;
    bool dragging_ = false;
    bool sizePointer_ = false;
    bool lowerSpinPressed_ = false;
    int commitDepth_ = 0;
    // ValueChanged handlers running now: a box they open takes the focus,
    // which must not commit the very edit they are deciding on again.
    int valueChangedDepth_ = 0;
};

}  // namespace flowloom::grid
