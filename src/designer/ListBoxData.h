#pragma once

#include <functional>
#include <string>
#include <vector>

namespace flowloom::designer {

// The list of processes as data: its entries and the selected index. Setting
// the index to another value fires the click, as a list box does.
class ListBoxData {
public:
    int ListCount() const noexcept { return static_cast<int>(items_.size()); }
    const std::string& List(int index) const { return items_.at(static_cast<std::size_t>(index)); }
    const std::vector<std::string>& Items() const noexcept { return items_; }
    int ListIndex() const noexcept { return index_; }
    // Fires the click when the index changes; an index outside the entries is ignored.
    void SetListIndex(int index);
    void AddItem(const std::string& text);
    void Clear();  // the index becomes -1, without a click

    void SetClickHandler(std::function<void()> handler) { onClick_ = std::move(handler); }
    void SetChangeListener(std::function<void()> listener) { changed_ = std::move(listener); }

private:
    void Changed() const {
        if (changed_) changed_();
    }
    std::vector<std::string> items_;
    int index_ = -1;
    std::function<void()> onClick_;
    std::function<void()> changed_;
};

}  // namespace flowloom::designer
