#include "designer/ListBoxData.h"

namespace flowloom::designer {

void ListBoxData::SetListIndex(int index) {
    if (index < -1 || index >= ListCount()) return;
    if (index == index_) return;
    index_ = index;
    Changed();
    // A list box fires its click whenever the selection is set in code.
    if (index_ >= 0 && onClick_) onClick_();
}

void ListBoxData::AddItem(const std::string& text) {
    items_.push_back(text);
    Changed();
}

void ListBoxData::Clear() {
    items_.clear();
    index_ = -1;
    Changed();
}

}  // namespace flowloom::designer
