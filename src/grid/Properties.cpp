#include "grid/Properties.h"

#include "support/TextCompare.h"
#include "support/VbError.h"
#include "grid/PropertyOwner.h"

namespace flowloom::grid {

namespace {

[[noreturn]] void RaiseOutOfRange(const char* source) {
    throw VbError(vberr::SubscriptOutOfRange, StandardErrorText(vberr::SubscriptOutOfRange), source);
}

constexpr OleColor kUseControlColor = static_cast<OleColor>(-1);

}  // namespace

Property& Properties::Add(const std::string& sName, int nType, const std::string& sInitValue,
                          std::optional<OleColor> lBackColor, std::optional<OleColor> lForeColor,
                          std::optional<Picture> IPic, std::optional<FontValue> istdFont) {
    return AddEx(-1, sName, nType, sInitValue, lBackColor, lForeColor, std::move(IPic), std::move(istdFont));
}

Property& Properties::AddEx(std::int32_t lIndex, const std::string& sName, int nType, const std::string& sInitValue,
                            std::optional<OleColor> lBackColor, std::optional<OleColor> lForeColor,
                            std::optional<Picture> IPic, std::optional<FontValue> istdFont) {
    PropertyOwner fallback;
    const PropertyOwner& control = owner_ ? *owner_ : fallback;
    const OleColor back = lBackColor.value_or(kUseControlColor) == kUseControlColor ? control.BackColor() : *lBackColor;
    const OleColor fore = lForeColor.value_or(kUseControlColor) == kUseControlColor ? control.ForeColor() : *lForeColor;

    const std::int32_t newCount = Count() + 1;
    const bool insert = lIndex != -1 && lIndex >= 1 && lIndex < newCount;
    const std::size_t slot = insert ? static_cast<std::size_t>(lIndex - 1) : rows_.size();

    auto row = std::make_unique<Property>(owner_);
    row->SetName(sName);
    row->caption_ = sName;
    row->SetItemType(nType);
    if (nType == ExPropDate) row->dataFormat_ = control.ShortDatePattern();
    if (nType == ExPropFile) {
        row->dialogFlags_ = 0x80004;
        row->dialogFilter_ = "All Files (*.*)|*.*";
    }
    if (nType == ExPropFont) row->dialogFlags_ = 65;
    row->SetValue(sInitValue);  // Index is still 0: Changed stays false
    row->backColor_ = back;
    row->foreColor_ = fore;
    row->highlightColor_ = control.HighlightColor();
    row->highlightText_ = control.HighlightText();
    row->lockedEdit_ = !(nType == ExPropText || nType == ExPropNumber);
    if (IPic) row->picture_ = std::move(*IPic);
    row->font_ = istdFont ? *istdFont : control.Font();

    Property& added = *row;
    rows_.insert(rows_.begin() + static_cast<std::ptrdiff_t>(slot), std::move(row));
    for (std::size_t i = slot; i < rows_.size(); ++i) rows_[i]->SetIndexAndColors(static_cast<std::int32_t>(i + 1));

    if (owner_) {
        if (insert) {
            owner_->RebuildVisibleRows();
            owner_->Redraw();
        } else {
            owner_->AddVisibleRow(added);
        }
        if (added.picture_.widthPx > 0) owner_->WidenPictureColumn(added.picture_.widthPx);
    }
    return added;
}

void Properties::SetCount(std::int32_t) {
    throw VbError(vberr::InvalidPropertyValue, "Property is read-only.", "PropertyList.Properties.Count");
}

Property& Properties::Item(std::int32_t index) const {
    if (index < 1 || index > Count()) RaiseOutOfRange("PropertyList.Properties.Item");
    return *rows_[static_cast<std::size_t>(index - 1)];
}

Property* Properties::Item(const std::string& name) const {
    for (const auto& row : rows_)
        if (EqualsNoCase(row->name(), name)) return row.get();
    return nullptr;
}

std::int32_t Properties::IndexOf(const Property* row) const noexcept {
    for (std::size_t i = 0; i < rows_.size(); ++i)
        if (rows_[i].get() == row) return static_cast<std::int32_t>(i + 1);
    return 0;
}

void Properties::Clear() {
    if (owner_) owner_->HideEditors();
    rows_.clear();
    if (owner_) owner_->RowsCleared();
}

void Properties::Remove(const std::string& name) {
    if (Count() < 1) RaiseOutOfRange("PropertyList.Properties.Remove");
    if (Count() == 1 && EqualsNoCase(rows_[0]->name(), name)) {
        Clear();
        return;
    }
    Property* row = Item(name);
    Remove(row ? row->Index() : 0);
}

void Properties::Remove(std::int32_t index) {
    if (Count() < 1) RaiseOutOfRange("PropertyList.Properties.Remove");
    if (Count() == 1 && index == 1) {
        Clear();
        return;
    }
    if (index < 1 || index > Count()) RaiseOutOfRange("PropertyList.Properties.Remove");
    const std::size_t slot = static_cast<std::size_t>(index - 1);
    if (owner_) owner_->ClearSelectionIf(*rows_[slot]);
    rows_.erase(rows_.begin() + static_cast<std::ptrdiff_t>(slot));
    for (std::size_t i = slot; i < rows_.size(); ++i) rows_[i]->SetIndexAndColors(static_cast<std::int32_t>(i + 1));
    if (owner_) {
        owner_->RebuildVisibleRows();
        owner_->HideEditors();
    }
}

void Properties::MoveTo(std::size_t slot, std::unique_ptr<Property> row) {
    row->SetIndexAndColors(static_cast<std::int32_t>(slot + 1));
    rows_[slot] = std::move(row);
}

// Shell sort of rows first..last (0-based, inclusive) by name without regard
// to case, with the gap series 1, 4, 13, 40, ...
void Properties::SortRun(std::size_t first, std::size_t last, bool descending) {
    if (last <= first) return;
    const std::size_t count = last - first + 1;
    auto greater = [descending](const Property& a, const Property& b) {
        const std::string fa = FoldCase(a.name());
        const std::string fb = FoldCase(b.name());
        return descending ? fa < fb : fa > fb;
    };
    std::size_t gap = 1;
    while (gap <= count) gap = gap * 3 + 1;
    while ((gap /= 3) > 0) {
        for (std::size_t i = first + gap; i <= last; ++i) {
            std::unique_ptr<Property> held = std::move(rows_[i]);
            std::size_t j = i;
            while (j >= first + gap && greater(*rows_[j - gap], *held)) {
                MoveTo(j, std::move(rows_[j - gap]));
                j -= gap;
            }
            MoveTo(j, std::move(held));
        }
    }
}

void Properties::SortItems(bool bDescending) {
    if (Count() < 2) return;
    if (owner_) {
        owner_->CommitPendingEdit();
        owner_->HideEditors();
    }
    // Runs between headers are sorted apart; a header stays where it stands,
    // except one in second place, which closes nothing and sorts with the rest.
    std::size_t runStart = 1;
    const std::size_t count = rows_.size();
    for (std::size_t position = 1; position <= count; ++position) {
        const bool header = rows_[position - 1]->ItemType() == ExPropHeader;
        if (header && position == 1) {
            runStart = 2;
        } else if (header && position > 2) {
            SortRun(runStart - 1, position - 2, bDescending);
            runStart = position + 1;
        }
        if (position == count) {
            if (runStart > 1) {
                const std::size_t lastInRun = header ? position - 1 : position;
                if (lastInRun >= runStart) SortRun(runStart - 1, lastInRun - 1, bDescending);
            } else {
                SortRun(0, count - 1, bDescending);
            }
        }
    }
    if (owner_) {
        owner_->RebuildVisibleRows();
        owner_->Redraw();
    }
}

}  // namespace flowloom::grid
