// Keys at the control, in the list and in the edit box.
#include "grid/widget/PropertyList.h"

#include "grid/widget/EditorParts.h"
#include "grid/widget/KeyCodes.h"
#include "grid/widget/Popups.h"
#include "grid/widget/RowListView.h"
#include "grid/widget/RowWatch.h"

#include <QApplication>

namespace flowloom::grid {

namespace {

bool IsListType(int type) { return type == ExPropBoolean || type == ExPropCustomList; }

bool OpensEditor(int keyCode, int shift) {
    return keyCode == vk::F4 || ((keyCode == vk::Down || keyCode == vk::Up) && (shift & kAltMask));
}

}  // namespace

void PropertyList::ControlKeyPress(QKeyEvent& event) {
    ControlKeyDown(VirtualKey(event), ShiftState(event.modifiers()), false);
    if (const int ascii = KeyAscii(event)) ListKeyPress(ascii, event);
}

void PropertyList::ControlKeyRelease(QKeyEvent& event) {
    int keyCode = VirtualKey(event);
    emit KeyUp(keyCode, ShiftState(event.modifiers()));
}

void PropertyList::ControlKeyDown(int keyCode, int shift, bool fromEdit) {
    if (!selected_ || selected_->ReadOnly() || !allowEdit_) {
        ListKeyDown(keyCode, shift);
        return;
    }
    Property& row = *selected_;
    const int type = row.ItemType();
    if (keyCode == vk::Tab) {
        SelectAllInEdit();
        ListKeyDown(keyCode, shift);
    } else if (OpensEditor(keyCode, shift)) {
        DropKey(row);
    } else if (keyCode == vk::Subtract && type == ExPropHeader && expandableHeaders_) {
        if (row.Expanded()) SetHeaderExpanded(row, false);
    } else if (keyCode == vk::Add && type == ExPropHeader && expandableHeaders_) {
        if (!row.Expanded()) SetHeaderExpanded(row, true);
    } else if ((keyCode == vk::Add || keyCode == vk::Subtract) && type == ExPropNumber && row.SpinIncrement() != 0) {
        PressButton(keyCode == vk::Subtract ? button_->height() - 1 : 0, true);
    } else if (IsListType(type) && fromEdit) {
        StepClosedList(keyCode);
    } else {
        ListKeyDown(keyCode, shift);
    }
}

// F4, Alt+Down and Alt+Up open or close the row's editor.
void PropertyList::DropKey(Property& row) {
    switch (row.ItemType()) {
    case ExPropBoolean:
    case ExPropCustomList:
        if (drop_->isVisible()) drop_->hide();
        else if (FillDropList() && drop_->Count() > 0) OpenDropList();
        break;
    case ExPropMemo:
        if (memo_->isVisible()) memo_->hide();
        else OpenMemo();
        break;
    case ExPropColor:
    case ExPropDate: PressButton(0, true); break;
    case ExPropText:
    case ExPropNumber:
    case ExPropBrowse:
    case ExPropFile:
    case ExPropFont: DoubleClickRow(); break;
    default: break;
    }
}

// The list moves first; leaving the row (or trying to leave it at either
// end) commits the edit of the row that was selected.
void PropertyList::ListKeyDown(int keyCode, int shift) {
    const bool moved = list_->Navigate(keyCode);
    const bool atEdge = (keyCode == vk::Up && list_->CurrentIndex() == 0) ||
                        (keyCode == vk::Down && list_->CurrentIndex() == list_->Count() - 1);
    if (moved || ((keyCode == vk::Up || keyCode == vk::Down) && atEdge)) TryCommitPending();
    if (moved) HideControls();
    SelectRow(list_->CurrentRow());
    if (moved || edit_->isHidden()) ShowEditors();
    emit KeyDown(keyCode, shift);
}

void PropertyList::ListKeyPress(int keyAscii, QKeyEvent& event) {
    emit KeyPress(keyAscii);
    if (!selected_ || selected_->ReadOnly() || !(selected_->ItemType() == ExPropHeader || allowEdit_)) return;
    Property& row = *selected_;
    const int type = row.ItemType();
    const bool editShown = !edit_->isHidden();
    if (editShown && !row.LockedEdit()) {
        if (keyAscii < 32 || (type == ExPropNumber && !(keyAscii >= '0' && keyAscii <= '9'))) return;
        edit_->clear();
        edit_->setFocus();
        QKeyEvent typed(QEvent::KeyPress, event.key(), event.modifiers(), QString(QChar(keyAscii)));
        QApplication::sendEvent(edit_, &typed);  // typing starts an edit
    } else if (editShown && IsListType(type)) {
        if (keyAscii == vk::Return) {
            DoubleClickRow();
        } else if (FillDropList() && drop_->SelectByLetter(keyAscii)) {
            edit_->setText(QString::fromStdString(drop_->Entry(drop_->CurrentIndex())));
        }
    } else if (keyAscii == vk::Return && type == ExPropHeader && expandableHeaders_) {
        SetHeaderExpanded(row, !row.Expanded());
    }
}

// Arrow keys run through the choices of a closed list; the edit box shows
// the entry they reach.
void PropertyList::StepClosedList(int keyCode) {
    if (!FillDropList() || drop_->Count() == 0) return;
    int index = drop_->IndexOf(edit_->text().toStdString());
    if (keyCode == vk::Up) index = std::max(0, index - 1);
    else if (keyCode == vk::Down) index = std::min(drop_->Count() - 1, index + 1);
    else if (keyCode == vk::Home) index = 0;
    else if (keyCode == vk::End) index = drop_->Count() - 1;
    else return;
    drop_->SetCurrentIndex(index);
    edit_->setText(QString::fromStdString(drop_->Entry(index)));
}

bool PropertyList::EditKeyPress(QKeyEvent& event) {
    if (!selected_) return false;
    int keyCode = VirtualKey(event);
    const int shift = ShiftState(event.modifiers());
    if (keyCode == vk::Up || keyCode == vk::Down || keyCode == vk::F4) {
        const bool closedListStep = IsListType(selected_->ItemType()) && !OpensEditor(keyCode, shift);
        if (!closedListStep) list_->setFocus();
        ControlKeyDown(keyCode, shift, closedListStep);
        return true;
    }
    const int originalKeyCode = keyCode;
    RaiseKeyDownEdit(keyCode, shift);
    if (keyCode == 0 && originalKeyCode != 0) return true;
    const int originalAscii = KeyAscii(event);
    if (originalAscii == 0 || !selected_) return false;
    int ascii = originalAscii;
    RaiseKeyPressEdit(ascii);
    if (ascii == 0 || !selected_) return true;
    if (ascii == vk::Return) {
        EnterInEdit();
        return true;
    }
    if (ascii == vk::Escape) {
        EscapeInEdit();
        return true;
    }
    if (selected_->ItemType() == ExPropNumber && !PassesNumberFilter(ascii, shift & kCtrlMask)) return true;
    if (ascii == originalAscii) return false;
    if (ascii >= 32 && !edit_->isReadOnly()) edit_->insert(QString(QChar(ascii)));  // the owner changed the character
    return true;
}

void PropertyList::EditKeyRelease(QKeyEvent& event) {
    if (!drop_->isVisible()) RaiseKeyUpEdit(VirtualKey(event), ShiftState(event.modifiers()));
}

void PropertyList::EditTextEdited() {
    if (selected_ && selected_->ItemType() == ExPropNumber && !allowNullNumber_ && edit_->text().isEmpty()) {
        edit_->setText("0");
        edit_->selectAll();
    }
}

}  // namespace flowloom::grid
