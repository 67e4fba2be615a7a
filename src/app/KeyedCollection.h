#pragma once

#include "app/TextCompare.h"
#include "app/VbError.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <variant>
#include <vector>

namespace flowloom {

// A place in a keyed collection: nothing, a 1-based index, or a key.
using CollectionPosition = std::variant<std::monostate, std::int32_t, std::string>;

// The ordered collection of the host language: items in insertion order, each
// with an optional string key; keys are compared without regard to case.
// Adding a key that exists is error 457, an unknown key error 5, an index out
// of range error 9. Items are shared: the same object may also be held by a
// cache or by another collection.
template <typename T>
class KeyedCollection {
public:
    using Ptr = std::shared_ptr<T>;

    struct Entry {
        Ptr item;
        std::string key;  // as given; empty for an item without a key
    };

    // Adds `item` under `key` (none when empty), before or after the given
    // position (before wins), else at the end.
    void Add(Ptr item, std::string_view key = {}, const CollectionPosition& before = {},
             const CollectionPosition& after = {}) {
        std::string folded;
        if (!key.empty()) {
            folded = FoldCase(key);
            if (byKey_.contains(folded)) RaiseStandardError(vberr::DuplicateKey);
        }
        std::size_t at = entries_.size();
        if (!std::holds_alternative<std::monostate>(before)) at = ResolvePosition(before);
        else if (!std::holds_alternative<std::monostate>(after)) at = ResolvePosition(after) + 1;
        if (!key.empty()) byKey_.emplace(std::move(folded), item);
        entries_.insert(entries_.begin() + static_cast<std::ptrdiff_t>(at), Entry{std::move(item), std::string(key)});
    }

    const Ptr& Item(std::int32_t index) const { return entries_[CheckedIndex(index)].item; }
    const Ptr& Item(std::string_view key) const {
        auto it = byKey_.find(FoldCase(key));
        if (it == byKey_.end()) RaiseStandardError(vberr::InvalidProcedureCall);
        return it->second;
    }
    // Item by a position that may be an index or a key.
    const Ptr& ItemAt(const CollectionPosition& position) const {
        if (auto* i = std::get_if<std::int32_t>(&position)) return Item(*i);
        if (auto* k = std::get_if<std::string>(&position)) return Item(std::string_view(*k));
        RaiseStandardError(vberr::InvalidProcedureCall);
    }

    // KeyExists: whether an item is stored under this key.
    bool Contains(std::string_view key) const { return byKey_.contains(FoldCase(key)); }
    // The item under this key, or nothing; no error.
    Ptr Find(std::string_view key) const {
        auto it = byKey_.find(FoldCase(key));
        return it == byKey_.end() ? nullptr : it->second;
    }

    std::int32_t Count() const noexcept { return static_cast<std::int32_t>(entries_.size()); }
    bool Empty() const noexcept { return entries_.empty(); }

    void Remove(std::int32_t index) { EraseAt(CheckedIndex(index)); }
    void Remove(std::string_view key) { EraseAt(IndexOfKey(key)); }
    void RemoveAt(const CollectionPosition& position) { EraseAt(ResolvePosition(position)); }

    // 1-based index of the very object, or 0.
    std::int32_t IndexOf(const T* item) const noexcept {
        for (std::size_t i = 0; i < entries_.size(); ++i)
            if (entries_[i].item.get() == item) return static_cast<std::int32_t>(i + 1);
        return 0;
    }
    const std::string& KeyAt(std::int32_t index) const { return entries_[CheckedIndex(index)].key; }

    void Clear() noexcept {
        entries_.clear();
        byKey_.clear();
    }

    // Iteration in order, over the items.
    class const_iterator {
    public:
        using iterator_category = std::forward_iterator_tag;
        using value_type = Ptr;
        using difference_type = std::ptrdiff_t;
        using pointer = const Ptr*;
        using reference = const Ptr&;
        const_iterator() = default;
        explicit const_iterator(typename std::vector<Entry>::const_iterator it) : it_(it) {}
        reference operator*() const { return it_->item; }
        pointer operator->() const { return &it_->item; }
        const_iterator& operator++() { ++it_; return *this; }
        const_iterator operator++(int) { auto old = *this; ++it_; return old; }
        bool operator==(const const_iterator&) const = default;
    private:
        typename std::vector<Entry>::const_iterator it_{};
    };
    const_iterator begin() const { return const_iterator(entries_.begin()); }
    const_iterator end() const { return const_iterator(entries_.end()); }

    // A copy of the items, for loops that may change the collection.
    std::vector<Ptr> Snapshot() const {
        std::vector<Ptr> items;
        items.reserve(entries_.size());
        for (const auto& e : entries_) items.push_back(e.item);
        return items;
    }

private:
    std::size_t CheckedIndex(std::int32_t index) const {
        if (index < 1 || static_cast<std::size_t>(index) > entries_.size())
            RaiseStandardError(vberr::SubscriptOutOfRange);
        return static_cast<std::size_t>(index - 1);
    }
    std::size_t IndexOfKey(std::string_view key) const {
        const std::string folded = FoldCase(key);
        if (byKey_.contains(folded))
            for (std::size_t i = 0; i < entries_.size(); ++i)
                if (!entries_[i].key.empty() && FoldCase(entries_[i].key) == folded) return i;
        RaiseStandardError(vberr::InvalidProcedureCall);
    }
    std::size_t ResolvePosition(const CollectionPosition& position) const {
        if (auto* i = std::get_if<std::int32_t>(&position)) return CheckedIndex(*i);
        if (auto* k = std::get_if<std::string>(&position)) return IndexOfKey(*k);
        RaiseStandardError(vberr::InvalidProcedureCall);
    }
    void EraseAt(std::size_t i) {
        if (!entries_[i].key.empty()) byKey_.erase(FoldCase(entries_[i].key));
        entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(i));
    }

    std::vector<Entry> entries_;
    std::unordered_map<std::string, Ptr> byKey_;
};

// KeyExists of the shared helpers: true when the key can be looked up.
template <typename T>
bool KeyExists(const KeyedCollection<T>& collection, std::string_view key) {
    return collection.Contains(key);
}

}  // namespace flowloom
