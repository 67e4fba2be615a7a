// The in-place editors: committing, laying out, the drop list, the memo
// pop-up and the button's work.
#include "grid/widget/PropertyList.h"

#include "support/VbStrings.h"
#include "grid/ValueFormat.h"
#include "grid/widget/EditorParts.h"
#include "grid/widget/GridColors.h"
#include "grid/widget/Popups.h"
#include "grid/widget/RowListView.h"
#include "grid/widget/RowWatch.h"

#include <QApplication>
#include <QClipboard>

namespace flowloom::grid {

namespace {

constexpr std::int32_t kNoSelectionError = static_cast<std::int32_t>(0x80040002u);

// Re-entry depth of CommitPending: ValueChanged handlers may commit again.
class DepthGuard {
public:
    explicit DepthGuard(int& depth) : depth_(depth) { ++depth_; }
    ~DepthGuard() { --depth_; }
    DepthGuard(const DepthGuard&) = delete;
    DepthGuard& operator=(const DepthGuard&) = delete;

private:
    int& depth_;
};

bool HasButton(int type, double spin) {
    switch (type) {
    case ExPropText: case ExPropOwnerDraw: case ExPropHeader: return false;
    case ExPropNumber: return spin != 0;
    default: return true;
    }
}

ButtonArea::Look LookOf(int type) {
    switch (type) {
    case ExPropNumber: return ButtonArea::Look::Spin;
    case ExPropBrowse: case ExPropFile: case ExPropFont: case ExPropFolder: return ButtonArea::Look::Ellipsis;
    default: return ButtonArea::Look::DropArrow;
    }
}

// Memo text with the platform's line breaks as stored "\r\n".
std::string StoredMemoText(const QString& text) {
    std::string stored = vb::Replace(text.toStdString(), "\n", "\r\n");
    if (!stored.empty() && stored.back() != '\n') stored += "\r\n";
    return stored;
}

}  // namespace

void PropertyList::CommitPending(bool fNotifyChange) {
    if (!selected_) throw VbError(kNoSelectionError, "There is no selection", "PropertyList.CommitPending");
    Property& row = *selected_;
    if (row.ItemType() == ExPropMemo) return;  // the memo commits itself
    const bool editShown = !edit_->isHidden();
    const std::string text = edit_->text().toStdString();
    if (editShown && text == row.value()) return;
    if (commitDepth_ >= 3) return;
    DepthGuard depth(commitDepth_);
    std::string old = row.value();
    if (row.UseCustomData()) CustomDisplayText(row, old);
    if (editShown) {
        if (row.ItemType() == ExPropFont) old = old.substr(0, old.find('\0'));
        if (text == old) return;
        std::string newText = text;
        bool cancel = false;
        RowWatch watch(watches_, row);
        if (fNotifyChange) RaiseValueChanged(row, newText, cancel);
        if (watch.Alive() && (!fNotifyChange || !cancel)) row.SetValue(newText);
    } else if (row.ItemType() == ExPropOwnerDraw) {
        RaiseODCommitPending(row);
    }
}

bool PropertyList::TryCommitPending() {
    try {
        if (selected_) CommitPending(true);
        return true;
    } catch (const std::exception&) {
        return false;  // the list's handlers go on regardless
    }
}

void PropertyList::ShowEditors() {
    if (list_->CurrentIndex() < 0 || list_->Count() == 0 || holdDraw_ || !allowEdit_ || !selected_ || selected_->ReadOnly())
        return;
    const QRect rowRect = list_->ItemRect(list_->IndexOfRow(selected_));
    if (rowRect.isEmpty()) return;
    activeRect_ = rowRect;
    LayoutEditors(*selected_, rowRect);
}

void PropertyList::LayoutEditors(Property& row, const QRect& rowRect) {
    const int type = row.ItemType();
    if (type == ExPropHeader) return;
    const int top = rowRect.top();
    const int bottom = top + MeasureRow(row);
    const int size = bottom - top - 1;
    const int hs = list_->HScrollPos();
    const int divider = LongestItem();
    const int x0 = divider + 4 - hs;
    const int x1 = divider + 3 + (bottom - top) - hs;
    const int rightLimit = list_->viewport()->width();
    if (type == ExPropOwnerDraw) {
        bool useIntrinsic = true;
        RowWatch watch(watches_, row);
        RaiseShowEditControl(row, x0, top, rightLimit - x0, size, useIntrinsic);
        if (!useIntrinsic || !watch.Alive()) return;
    }
    const bool withButton = HasButton(type, row.SpinIncrement());
    const int left = type == ExPropColor || type == ExPropHtmlColor ? x1 : x0;
    const int editWidth = rightLimit - left - (withButton ? size : 0);
    edit_->setReadOnly(row.LockedEdit());
    edit_->setMaxLength(row.MaxLength() > 0 ? row.MaxLength() : 32767);
    edit_->SetMask(QString::fromStdString(row.PasswordChar()));
    edit_->setFont(ToQFont(row.Font()));
    QPalette palette = edit_->palette();
    palette.setColor(QPalette::Base, ResolveColor(backColorValue_ != backColor_ ? backColorValue_ : row.BackColor()));
    palette.setColor(QPalette::Text, ResolveColor(row.ForeColor()));
    edit_->setPalette(palette);
    edit_->setText(QString::fromStdString(row.EditText()));
    edit_->setGeometry(left, top, editWidth, size);
    edit_->setCursorPosition(0);
    edit_->show();
    if (withButton) {
        button_->SetLook(LookOf(type));
        button_->setGeometry(left + editWidth, top, size, size);
        button_->show();
    }
    if (oneClickActivate_) SelectAllInEdit();
}

void PropertyList::SelectAllInEdit() {
    if (edit_->isHidden()) return;
    edit_->setCursorPosition(0);
    edit_->selectAll();
    edit_->setFocus();
}

void PropertyList::ReshowAfterKey() {
    edit_->hide();
    list_->setFocus();
    ShowEditors();
    SelectAllInEdit();
}

bool PropertyList::OfferValue(Property& row, std::string& value) {
    bool cancel = false;
    RowWatch watch(watches_, row);
    RaiseValueChanged(row, value, cancel);
    return watch.Alive() && !cancel;
}

void PropertyList::ApplyPick(Property& row, int index, std::string entry) {
    RowWatch watch(watches_, row);
    RaiseDropdownPick(row, index);
    if (watch.Alive() && OfferValue(row, entry)) row.SetValue(entry);
}

bool PropertyList::FillDropList() {
    if (!selected_) return false;
    Property& row = *selected_;
    std::vector<std::string> entries;
    if (row.ItemType() == ExPropBoolean) {
        entries = {textTrue_, textFalse_};
    } else if (row.ListItems()) {
        entries = *row.ListItems();
    } else {
        RowWatch watch(watches_, row);
        RaiseNeedData(row, entries);
        if (!watch.Alive()) return false;
    }
    drop_->SetEntries(entries, row.DisplayText(), ToQFont(row.Font()));
    return true;
}

void PropertyList::OpenDropList() {
    const QRect editOnScreen(edit_->mapToGlobal(QPoint(0, 0)), edit_->size());
    drop_->Place(editOnScreen, button_->isHidden() ? 0 : button_->width(), selected_->ListSizeMode(), selected_->ListWidth());
    drop_->InLimbo = false;
    drop_->show();
    drop_->setFocus();
}

void PropertyList::DropListPicked(int index, bool byMouse) {
    if (selected_) ApplyPick(*selected_, index, drop_->Entry(index));
    if (byMouse) list_->setFocus();
}

void PropertyList::OpenMemo() {
    Property& row = *selected_;
    const QFont font = ToQFont(row.Font());
    const int height = 8 * QFontMetrics(font).height() + 2;
    const int width = edit_->width() + (button_->isHidden() ? 0 : button_->width());
    const QPoint at = edit_->mapToGlobal(QPoint(0, edit_->height()));
    const QString text = QString::fromStdString(vb::Replace(row.value(), "\r\n", "\n"));
    memo_->InLimbo = false;
    memo_->Open(text, font, QRect(at, QSize(width, height)));
}

void PropertyList::MemoCommitted(const QString& text) {
    if (!selected_) return;
    Property& row = *selected_;
    std::string value = StoredMemoText(text);
    if (OfferValue(row, value)) row.SetValue(value);
}

void PropertyList::PressButton(int y, bool fromKeyboard) {
    if (!selected_) return;
    const char* step = "";
    try {
        PressButtonSteps(*selected_, y, step);
    } catch (const VbError& error) {
        emit ErrorRaised(VbError(error.Number(), error.Description(), std::string("PropertyList.") + step));
    } catch (const std::exception& error) {
        emit ErrorRaised(VbError(vberr::InternalError, error.what(), std::string("PropertyList.") + step));
    }
    if (fromKeyboard) button_->SetPressed(ButtonArea::Pressed::None);
}

void PropertyList::PressButtonSteps(Property& row, int y, const char*& step) {
    switch (row.ItemType()) {
    case ExPropBoolean:
    case ExPropCustomList:
        step = "DropList";
        if (drop_->InLimbo) {
            drop_->InLimbo = false;  // the press that closed the list
            return;
        }
        button_->SetPressed(ButtonArea::Pressed::Whole);
        if (FillDropList() && drop_->Count() > 0) OpenDropList();
        else button_->SetPressed(ButtonArea::Pressed::None);
        return;
    case ExPropMemo:
        step = "MemoField";
        if (memo_->InLimbo) {
            memo_->InLimbo = false;  // the press that closed the memo
            return;
        }
        button_->SetPressed(ButtonArea::Pressed::Whole);
        OpenMemo();
        return;
    case ExPropNumber:
        if (row.value().empty() || row.SpinIncrement() == 0) return;
        step = "NumberSpinner";
        Spin(row, y >= button_->height() / 2);
        return;
    case ExPropBrowse: step = "BrowseButton"; RunBrowse(row); return;
    case ExPropFile: step = "FileDialog"; RunFileDialog(row); return;
    case ExPropFont: step = "FontDialog"; RunFontDialog(row); return;
    case ExPropFolder: step = "FolderDialog"; RunFolderDialog(row); return;
    default: return;  // colour and date rows change through their owner or by typing
    }
}

void PropertyList::Spin(Property& row, bool lower) {
    button_->SetPressed(lower ? ButtonArea::Pressed::Lower : ButtonArea::Pressed::Upper);
    lowerSpinPressed_ = lower;
    const double number = vb::Val(edit_->text().toStdString()) + (lower ? -row.SpinIncrement() : row.SpinIncrement());
    std::string text = vb::NumberText(number);
    if (!row.DataFormat().empty()) text = FormatWithDataFormat(text, row.DataFormat());
    edit_->setText(QString::fromStdString(text));
    bool cancel = false;
    RowWatch watch(watches_, row);
    RaiseValueChanged(row, text, cancel);
    if (!watch.Alive()) return;
    if (cancel) {
        edit_->setText(QString::fromStdString(row.EditText()));
    } else if (selected_ == &row) {
        edit_->setText(QString::fromStdString(text));
        row.SetValue(text);
    }
}

void PropertyList::TakeDialogResult(Property& row, std::string value) {
    if (OfferValue(row, value) && selected_ == &row) row.SetValue(value);
}

void PropertyList::RunFileDialog(Property& row) {
    const auto file = dialogs_->OpenFile({row.DialogFilter(), row.DialogFlags(), row.DialogTitle(), row.value()});
    if (file) TakeDialogResult(row, *file);
}

void PropertyList::RunFontDialog(Property& row) {
    const auto font = dialogs_->ChooseFont(row.ValueFont(), row.DialogFlags(), row.DialogTitle());
    if (font) TakeDialogResult(row, FontValueText(*font));
}

void PropertyList::RunFolderDialog(Property& row) {
    const auto folder = dialogs_->BrowseFolder(row.DialogTitle(), row.value());
    if (folder && !folder->empty()) TakeDialogResult(row, *folder);
}

void PropertyList::RunBrowse(Property& row) {
    std::string fillWith = row.value();
    RowWatch watch(watches_, row);
    RaiseBrowse(row, fillWith);
    if (watch.Alive() && selected_ == &row) row.SetValue(fillWith);
}

void PropertyList::EnterInEdit() {
    Property& row = *selected_;
    std::string text = edit_->text().toStdString();
    bool cancel = false;
    RowWatch watch(watches_, row);
    RaiseValueChanged(row, text, cancel);
    if (!watch.Alive()) return;
    if (cancel) edit_->setText(QString::fromStdString(row.EditText()));
    else row.SetValue(text);
    ReshowAfterKey();
}

void PropertyList::EscapeInEdit() {
    edit_->setText(QString::fromStdString(selected_->EditText()));
    ReshowAfterKey();
}

bool PropertyList::PassesNumberFilter(int keyAscii, bool ctrl) const {
    if (!ctrl) return keyAscii >= '0' && keyAscii <= '9';
    if (keyAscii == 3) return true;  // Ctrl+C
    if (keyAscii == 22) return vb::IsNumeric(QApplication::clipboard()->text().toStdString());  // Ctrl+V
    return false;
}

}  // namespace flowloom::grid
