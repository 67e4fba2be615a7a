#pragma once

#include "grid/GridTypes.h"
#include "grid/Property.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace flowloom::grid {

class PropertyOwner;

// The rows of one grid, in order, indexed from 1.
class Properties {
public:
    explicit Properties(PropertyOwner* owner = nullptr) : owner_(owner) {}

    // Appends a row; a colour of -1 (or none) takes the control's.
    Property& Add(const std::string& sName, int nType, const std::string& sInitValue,
                  std::optional<OleColor> lBackColor = {}, std::optional<OleColor> lForeColor = {},
                  std::optional<Picture> IPic = {}, std::optional<FontValue> istdFont = {});
    // Inserts at lIndex, or appends when it is -1 or not below the new count.
    Property& AddEx(std::int32_t lIndex, const std::string& sName, int nType, const std::string& sInitValue,
                    std::optional<OleColor> lBackColor = {}, std::optional<OleColor> lForeColor = {},
                    std::optional<Picture> IPic = {}, std::optional<FontValue> istdFont = {});

    std::int32_t Count() const noexcept { return static_cast<std::int32_t>(rows_.size()); }
    // Raises error 380 "Property is read-only.": the count follows the rows.
    void SetCount(std::int32_t);

    // By position (error 9 outside 1..Count).
    Property& Item(std::int32_t index) const;
    // By name, first match without regard to case; nullptr when none.
    Property* Item(const std::string& name) const;

    void Clear();
    void Remove(std::int32_t index);
    void Remove(const std::string& name);
    // Sorts the runs of rows between headers by name; headers stay in place.
    void SortItems(bool bDescending);

    // 1-based position of the very row, or 0.
    std::int32_t IndexOf(const Property* row) const noexcept;

private:
    void MoveTo(std::size_t slot, std::unique_ptr<Property> row);
    void SortRun(std::size_t first, std::size_t last, bool descending);

    PropertyOwner* owner_;
    std::vector<std::unique_ptr<Property>> rows_;
};

}  // namespace flowloom::grid
