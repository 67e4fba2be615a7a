#pragma once

#include <algorithm>
#include <vector>

namespace flowloom::grid {

class Property;

// Tells whether a row survived an event handler: owners may remove or
// rebuild the rows from inside any event, and the control must not touch a
// row that is gone afterwards.
class RowWatch {
public:
    RowWatch(std::vector<RowWatch*>& registry, const Property& row) : registry_(registry), row_(&row) { registry_.push_back(this); }
    ~RowWatch() { registry_.erase(std::find(registry_.begin(), registry_.end(), this)); }
    RowWatch(const RowWatch&) = delete;
    RowWatch& operator=(const RowWatch&) = delete;

    bool Alive() const noexcept { return row_ != nullptr; }

    // The row (or, for nullptr, every row) is being destroyed.
    static void Forget(const std::vector<RowWatch*>& registry, const Property* row) {
        for (RowWatch* watch : registry)
            if (row == nullptr || watch->row_ == row) watch->row_ = nullptr;
    }

private:
    std::vector<RowWatch*>& registry_;
    const Property* row_;
};

}  // namespace flowloom::grid
