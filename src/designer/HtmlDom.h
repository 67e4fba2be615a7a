#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace flowloom::designer {

class HtmlPage;
class HtmlRow;
class HtmlTable;

// The canvas of a strip is a small document of its own: one table of rows
// of cells, each cell holding markup (a picture or a name), a size, an
// alignment and a background colour. The window paints it; the designer
// builds and walks it. Cells are shared so that an event dispatched to a cell
// stays valid while its handler rebuilds the table.
class HtmlCell {
public:
    std::string innerHTML;
    std::string Width;
    std::string Height;
    bool noWrap = false;
    // style.backgroundColor; "" until a colour is set.
    const std::string& backgroundColor() const noexcept { return background_; }
    void setBackgroundColor(const std::string& colour);
    // Sets innerHTML and has the page painted again.
    void setInnerHTML(std::string html);

    // Position in its row; -1 once the row is gone.
    int cellIndex() const;
    // The row that holds the cell; nullptr once it was deleted.
    HtmlRow* parentElement() const noexcept { return row_; }
    // Moves the keyboard focus to the cell: the focus event runs unless the
    // cell already has the focus of a focused strip.
    void focus();

    std::uint64_t Id() const noexcept { return id_; }

private:
    friend class HtmlRow;
    HtmlCell(HtmlRow* row, std::uint64_t id) : row_(row), id_(id) {}
    HtmlRow* row_;
    std::uint64_t id_;
    std::string background_;
};

class HtmlRow {
public:
    std::string Align;
    std::string Height;

    // -1 once deleted.
    int rowIndex() const;
    int CellCount() const noexcept { return static_cast<int>(cells_.size()); }
    const std::shared_ptr<HtmlCell>& cells(int index) const;  // throws error 9 outside
    HtmlCell& insertCell();  // at the end
    void deleteCell();       // the last one; nothing when empty
    HtmlTable* Table() const noexcept { return table_; }

private:
    friend class HtmlTable;
    explicit HtmlRow(HtmlTable* table) : table_(table) {}
    void Detach();
    HtmlTable* table_;
    std::vector<std::shared_ptr<HtmlCell>> cells_;
};

class HtmlTable {
public:
    explicit HtmlTable(HtmlPage* page) : page_(page) {}

    std::string Id;
    std::string width;
    int cellSpacing = 2;

    int RowCount() const noexcept { return static_cast<int>(rows_.size()); }
    HtmlRow& rows(int index) const;  // throws error 9 outside
    HtmlRow& insertRow();            // at the end
    void deleteRow();                // the last one; nothing when empty
    // Every cell, row by row (the table's `cells` collection).
    std::vector<std::shared_ptr<HtmlCell>> cells() const;
    HtmlPage* Page() const noexcept { return page_; }

private:
    friend class HtmlRow;
    friend class HtmlCell;
    HtmlPage* page_;
    std::vector<std::unique_ptr<HtmlRow>> rows_;
};

// The events the page hands on: a cell's focus, context menu and keys, and
// the body's click and context menu. The canvas wrapper of the designer
// listens; returning false from a context menu keeps the default one shut.
class HtmlPageListener {
public:
    virtual ~HtmlPageListener() = default;
    virtual void CellFocus(const std::shared_ptr<HtmlCell>& cell) = 0;
    virtual void CellContextMenu(const std::shared_ptr<HtmlCell>& cell) = 0;
    virtual void CellKeyDown(const std::shared_ptr<HtmlCell>& cell, int keyCode) = 0;
    virtual void CellKeyUp(const std::shared_ptr<HtmlCell>& cell, int keyCode) = 0;
    virtual void BodyClick() = 0;
    virtual void DocumentContextMenu() = 0;
};

// The document of one canvas (the browser control's document): body
// settings, the table and which cell has the focus. One page lives as long
// as its canvas; the designer builds the table into it once.
class HtmlPage {
public:
    struct Body {
        int topMargin = 15, leftMargin = 10, rightMargin = 10, bottomMargin = 15;
        std::string Scroll;
        std::string wordWrap, fontFamily, fontSize;
        std::string cursor = "default";
    };

    explicit HtmlPage(std::string controlName) : controlName_(std::move(controlName)) {}

    // "wbcDatabase", "wbcDatasource", "wbcActivity".
    const std::string& ControlName() const noexcept { return controlName_; }
    Body body;

    // The page's table: created by createElement + appendChild; nullptr before.
    HtmlTable* getElementById(const std::string& id) const;
    HtmlTable& CreateTable();
    HtmlTable* Table() const noexcept { return table_.get(); }

    // Focus: whether the canvas control has the keyboard focus, and the cell
    // that has it inside the document.
    bool ControlFocused() const noexcept { return controlFocused_; }
    void SetControlFocused(bool focused) { controlFocused_ = focused; }
    std::shared_ptr<HtmlCell> FocusedCell() const { return focused_.lock(); }
    // Asked when a cell takes the focus while the control does not have it:
    // the window gives the control the focus first (its focus event runs).
    void SetControlFocusRequest(std::function<void()> request) { requestControlFocus_ = std::move(request); }

    void SetListener(HtmlPageListener* listener) noexcept {
        listener_ = listener;
        ++listenerEpoch_;
    }
    HtmlPageListener* Listener() const noexcept { return listener_; }

    // What a person does to the page, as the browser reports it: a mouse
    // press on a cell focuses it; the click then reaches the body.
    void FocusCell(const std::shared_ptr<HtmlCell>& cell);
    void ClickBody();
    void ContextMenuOnCell(const std::shared_ptr<HtmlCell>& cell);
    void ContextMenuOnBody();
    // A key on the focused cell; nothing reaches a cell when none has focus.
    void KeyDown(int keyCode);
    void KeyUp(int keyCode);

    // Raised after every change of the table or a cell, for painting.
    void SetChangeListener(std::function<void()> listener) { changed_ = std::move(listener); }
    void Changed() const {
        if (changed_) changed_();
    }
    // Counts the changes, so that a view can tell whether to lay out again.
    std::uint64_t Generation() const noexcept { return generation_; }

private:
    friend class HtmlRow;
    friend class HtmlCell;
    friend class HtmlTable;
    std::uint64_t NextCellId() noexcept { return ++lastId_; }
    void Touch() {
        ++generation_;
        Changed();
    }

    std::string controlName_;
    std::unique_ptr<HtmlTable> table_;
    bool controlFocused_ = false;
    std::weak_ptr<HtmlCell> focused_;
    HtmlPageListener* listener_ = nullptr;
    std::uint64_t listenerEpoch_ = 0;
    std::function<void()> requestControlFocus_;
    std::function<void()> changed_;
    std::uint64_t lastId_ = 0;
    std::uint64_t generation_ = 0;
};

}  // namespace flowloom::designer
