#pragma once

#include "designer/HtmlDom.h"

#include <map>
#include <memory>
#include <string>

namespace flowloom::designer {

class CHTMLDocument;

// The eight events of a canvas, in their declared order.
class CHTMLDocumentEvents {
public:
    virtual ~CHTMLDocumentEvents() = default;
    virtual void CellDeleted() = 0;
    virtual void CellSelected(const std::shared_ptr<HtmlCell>& cell) = 0;
    virtual void CellContextMenu() = 0;
    virtual void DocumentContextMenu() = 0;
    virtual void CellArrowLeft() = 0;
    virtual void CellArrowRight() = 0;
    virtual void CellArrowUp() = 0;
    virtual void CellArrowDown() = 0;
};

// One cell as the canvas knows it: highlights itself when it takes the
// focus or its context menu, and passes its keys to the document.
class CHtmlTableCell {
public:
    CHtmlTableCell(CHTMLDocument& parent, std::shared_ptr<HtmlCell> cell) : parent_(&parent), cell_(std::move(cell)) {}

    const std::shared_ptr<HtmlCell>& TableCell() const noexcept { return cell_; }
    void onfocus();
    void oncontextmenu();
    void onkeydown(int keyCode);
    void onkeyup(int keyCode);
    void Dispose() { parent_ = nullptr; }

private:
    // The selection is the background colour: the icon and the name of an
    // item are marked together.
    void Highlight();

    CHTMLDocument* parent_;
    std::shared_ptr<HtmlCell> cell_;
    bool ctrlDown_ = false;  // kept, not consulted
};

// Selected and unselected backgrounds of a cell.
inline constexpr const char* kSelectedColour = "#4169e1";
inline constexpr const char* kUnselectedColour = "#ffffff";

// The wrapper of one strip's document for one visualisation: turns the
// page's events into the eight canvas events. A new one is made for every
// visualisation; the one it replaces lets go of the page.
class CHTMLDocument : public HtmlPageListener, public std::enable_shared_from_this<CHTMLDocument> {
public:
    explicit CHTMLDocument(CHTMLDocumentEvents& events) : events_(&events) {}
    ~CHTMLDocument() override;
    CHTMLDocument(const CHTMLDocument&) = delete;
    CHTMLDocument& operator=(const CHTMLDocument&) = delete;

    HtmlPage* Document() const noexcept { return page_; }
    void SetDocument(HtmlPage* page);
    HtmlTable* Table() const noexcept { return table_; }
    void SetTable(HtmlTable* table) noexcept { table_ = table; }
    // Strips are horizontal ("DatabaseTable", "DatasourceTable"); kept, not consulted.
    bool HorizontalStrip() const noexcept { return horizontal_; }

    void CellAdd(const std::shared_ptr<HtmlCell>& cell);

    void ItemDeleted();
    void ItemSelected(const std::shared_ptr<HtmlCell>& cell);
    void ItemContextMenu();
    void KeyDown(int keyCode);

    // HtmlPageListener: the page's events, routed to the cell wrappers.
    void CellFocus(const std::shared_ptr<HtmlCell>& cell) override;
    void CellContextMenu(const std::shared_ptr<HtmlCell>& cell) override;
    void CellKeyDown(const std::shared_ptr<HtmlCell>& cell, int keyCode) override;
    void CellKeyUp(const std::shared_ptr<HtmlCell>& cell, int keyCode) override;
    void BodyClick() override;
    void DocumentContextMenu() override;

private:
    CHtmlTableCell* Wrapper(const HtmlCell& cell);

    CHTMLDocumentEvents* events_;
    HtmlPage* page_ = nullptr;
    HtmlTable* table_ = nullptr;
    std::map<std::uint64_t, std::unique_ptr<CHtmlTableCell>> cells_;
    bool cellMenuRaised_ = false;
    bool horizontal_ = false;
};

}  // namespace flowloom::designer
