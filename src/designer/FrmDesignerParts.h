#pragma once

// What the parts of frmDesigner share and nobody else needs: the state of a
// strip, its event relay and a few constants.
#include "designer/CHTMLDocument.h"
#include "designer/frmDesigner.h"

#include <optional>
#include <string>
#include <vector>

namespace flowloom::designer {

inline constexpr const char* kNewProcessEntry = "<New Process>";
inline constexpr int kKeyDelete = 46;
inline constexpr int kLeftButton = 1;
inline constexpr int kRightButton = 2;

// Item type codes of the strips.
inline constexpr int kProcessCode = 1;
inline constexpr int kDatabaseCode = 6;
inline constexpr int kDatasourceCode = 8;

// One entry of a strip's item table: the item's code (0 marks a free slot)
// and its trimmed name (for the two strips of names).
struct StripItem {
    int code = 0;
    std::string name;
};

// Hands a canvas's events to the window with the strip they came from.
class frmDesigner::StripEvents : public CHTMLDocumentEvents {
public:
    StripEvents(frmDesigner& form, Strip strip) : form_(form), strip_(strip) {}
    void CellDeleted() override;
    void CellSelected(const std::shared_ptr<HtmlCell>& cell) override;
    void CellContextMenu() override;
    void DocumentContextMenu() override;
    void CellArrowLeft() override;
    void CellArrowRight() override;
    void CellArrowUp() override;
    void CellArrowDown() override;

private:
    frmDesigner& form_;
    Strip strip_;
};

struct frmDesigner::StripState {
    explicit StripState(Strip which);
    Strip strip;
    const char* tableId;
    HtmlPage page;
    bool tuned = false;
    std::shared_ptr<CHTMLDocument> document;
    std::unique_ptr<StripEvents> events;
    std::vector<StripItem> items;  // the item table
    bool itemsExist = false;
};

inline Control ControlOf(Strip strip) {
    switch (strip) {
    case Strip::Database: return Control::Database;
    case Strip::Datasource: return Control::Datasource;
    case Strip::Activity: break;
    }
    return Control::Activity;
}

inline std::optional<Strip> StripOfControl(Control control) {
    switch (control) {
    case Control::Database: return Strip::Database;
    case Control::Datasource: return Strip::Datasource;
    case Control::Activity: return Strip::Activity;
    default: return std::nullopt;
    }
}

// "Process", "Database", ... "AddRecord" for an item type code; with
// spaces, through SpacedName ("Mail Merge").
std::string ItemTypeName(int code, bool withSpaces);

}  // namespace flowloom::designer
