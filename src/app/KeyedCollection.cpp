#include "app/KeyedCollection.h"

#include <algorithm>

namespace flowloom {

FoldedKey::FoldedKey(std::string_view key) {
    const bool shortAscii = key.size() <= kShort && std::all_of(key.begin(), key.end(), [](char c) {
                                return static_cast<unsigned char>(c) < 0x80;
                            });
    if (!shortAscii) {
        long_ = std::make_unique<std::string>(FoldCase(key));
        return;
    }
    // As FoldCase folds ASCII: the capitals become small letters.
    for (std::size_t i = 0; i < key.size(); ++i)
        short_[i] = key[i] >= 'A' && key[i] <= 'Z' ? static_cast<char>(key[i] - 'A' + 'a') : key[i];
    size_ = static_cast<std::uint8_t>(key.size());
}

}  // namespace flowloom
