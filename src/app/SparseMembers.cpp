#include "app/SparseMembers.h"

namespace flowloom {

const std::string& EmptyText() noexcept {
    static const std::string empty;
    return empty;
}

SparseString& SparseString::operator=(std::string&& text) {
    if (std::string_view(get()) == std::string_view(text)) return *this;
    if (text_) *text_ = std::move(text);
    else text_ = std::make_unique<std::string>(std::move(text));
    ModelRevision::Bump();
    return *this;
}

SparseString& SparseString::Store(std::string_view text) {
    if (std::string_view(get()) == text) return *this;
    if (text_) text_->assign(text);
    else text_ = std::make_unique<std::string>(text);
    ModelRevision::Bump();
    return *this;
}

}  // namespace flowloom
