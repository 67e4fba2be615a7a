#pragma once

#include "support/TextCompare.h"
#include "support/VbError.h"
#include "app/Tracked.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <variant>
#include <vector>

namespace flowloom {

// A place in a keyed collection: nothing, a 1-based index, or a key.
using CollectionPosition = std::variant<std::monostate, std::int32_t, std::string>;

// A key folded for comparison without regard to case. The keys of a file
// are mostly short (names, and activity keys of some twenty characters):
// an ASCII key of up to 23 bytes is held inline, so that a large file's
// many collections make no allocation for their keys.
class FoldedKey {
public:
    FoldedKey() = default;
    explicit FoldedKey(std::string_view key);

    std::string_view View() const noexcept { return long_ ? std::string_view(*long_) : std::string_view(short_, size_); }
    bool Empty() const noexcept { return View().empty(); }
    bool operator==(const FoldedKey& other) const noexcept { return View() == other.View(); }

private:
    static constexpr std::size_t kShort = 23;
    char short_[kShort] = {};
    std::uint8_t size_ = 0;
    std::unique_ptr<std::string> long_;  // beyond ASCII or longer
};

// Hashes and compares folded keys as views, so that an index is searched
// without making a string.
struct FoldedKeyHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view key) const noexcept { return std::hash<std::string_view>()(key); }
};

// The ordered collection of the host language: items in insertion order, each
// with an optional string key; keys are compared without regard to case.
// Adding a key that exists is error 457, an unknown key error 5, an index out
// of range error 9. Items are shared: the same object may also be held by a
// cache or by another collection.
//
// Most collections of a processes file hold a handful of items, so keys are
// searched in the entries; only a large collection keeps a hash index.
template <typename T>
class KeyedCollection {
public:
    using Ptr = std::shared_ptr<T>;

    struct Entry {
        Ptr item;
        FoldedKey folded;  // empty for an item without a key
    };


    // Adds `item` under `key` (none when empty), before or after the given
    // position (before wins), else at the end.
    void Add(Ptr item, std::string_view key = {}, const CollectionPosition& before = {},
             const CollectionPosition& after = {}) {
        if (!TryAdd(std::move(item), key, before, after)) RaiseStandardError(vberr::DuplicateKey);
    }
    // As Add, but a key that exists gives false instead of error 457.
    bool TryAdd(Ptr item, std::string_view key = {}, const CollectionPosition& before = {},
                const CollectionPosition& after = {}) {
        FoldedKey folded = key.empty() ? FoldedKey() : FoldedKey(key);
        if (!folded.Empty() && FindItem(folded.View())) return false;
        std::size_t at = entries_.size();
        if (!std::holds_alternative<std::monostate>(before)) at = ResolvePosition(before);
        else if (!std::holds_alternative<std::monostate>(after)) at = ResolvePosition(after) + 1;
        if (index_ && !folded.Empty()) index_->emplace(folded.View(), item);
        entries_.insert(entries_.begin() + static_cast<std::ptrdiff_t>(at), Entry{std::move(item), std::move(folded)});
        ModelRevision::Bump();
        return true;
    }

    const Ptr& Item(std::int32_t index) const { return entries_[CheckedIndex(index)].item; }
    const Ptr& Item(std::string_view key) const {
        const Ptr* item = key.empty() ? nullptr : FindItem(FoldedKey(key).View());
        if (!item) RaiseStandardError(vberr::InvalidProcedureCall);
        return *item;
    }
    // Room for this many items in all.
    void Reserve(std::size_t count) { entries_.reserve(count); }
    // Item by a position that may be an index or a key.
    const Ptr& ItemAt(const CollectionPosition& position) const {
        if (const auto* key = std::get_if<std::string>(&position)) return Item(std::string_view(*key));
        return entries_[ResolvePosition(position)].item;
    }

    // KeyExists: whether an item is stored under this key.
    bool Contains(std::string_view key) const { return !key.empty() && FindItem(FoldedKey(key).View()); }
    // The item under this key, or nothing; no error.
    Ptr Find(std::string_view key) const {
        const Ptr* item = key.empty() ? nullptr : FindItem(FoldedKey(key).View());
        return item ? *item : nullptr;
    }

    std::int32_t Count() const noexcept { return static_cast<std::int32_t>(entries_.size()); }
    bool Empty() const noexcept { return entries_.empty(); }

    void Remove(std::int32_t index) { EraseAt(CheckedIndex(index)); }
    void Remove(std::string_view key) { EraseAt(IndexOfKey(key)); }
    void RemoveAt(const CollectionPosition& position) { EraseAt(ResolvePosition(position)); }
    // As RemoveAt, but a position that names no item gives false instead of an error.
    bool TryRemoveAt(const CollectionPosition& position) {
        const std::size_t i = FindPosition(position);
        if (i == kNone) return false;
        EraseAt(i);
        return true;
    }

    // 1-based index of the very object, or 0.
    std::int32_t IndexOf(const T* item) const noexcept {
        for (std::size_t i = 0; i < entries_.size(); ++i)
            if (entries_[i].item.get() == item) return static_cast<std::int32_t>(i + 1);
        return 0;
    }

    void Clear() noexcept {
        if (!entries_.empty()) ModelRevision::Bump();
        entries_.clear();
        index_.reset();
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
        const_iterator& operator++() {
            ++it_;
            return *this;
        }
        const_iterator operator++(int) {
            auto old = *this;
            ++it_;
            return old;
        }
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
    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);
    static constexpr std::size_t kIndexFrom = 32;  // entries before a hash index pays off

    // The item under a folded key, or null.
    const Ptr* FindItem(std::string_view folded) const {
        if (entries_.size() < kIndexFrom && !index_) {
            for (const Entry& e : entries_)
                if (e.folded.View() == folded) return &e.item;
            return nullptr;
        }
        if (!index_) {
            index_ = std::make_unique<Index>();
            index_->reserve(entries_.size());
            for (const Entry& e : entries_)
                if (!e.folded.Empty()) index_->emplace(e.folded.View(), e.item);
        }
        auto it = index_->find(folded);
        return it == index_->end() ? nullptr : &it->second;
    }
    // The position of the item under a folded key: the index names the
    // item, its place is looked up among the entries (only removes and
    // positional inserts ask, which move entries anyway).
    std::size_t FindFolded(std::string_view folded) const {
        const Ptr* item = FindItem(folded);
        if (!item) return kNone;
        for (std::size_t i = 0; i < entries_.size(); ++i)
            if (entries_[i].item == *item && entries_[i].folded.View() == folded) return i;
        return kNone;
    }
    std::size_t CheckedIndex(std::int32_t index) const {
        if (index < 1 || static_cast<std::size_t>(index) > entries_.size()) RaiseStandardError(vberr::SubscriptOutOfRange);
        return static_cast<std::size_t>(index - 1);
    }
    std::size_t IndexOfKey(std::string_view key) const {
        const std::size_t i = key.empty() ? kNone : FindFolded(FoldedKey(key).View());
        if (i == kNone) RaiseStandardError(vberr::InvalidProcedureCall);
        return i;
    }
    std::size_t FindPosition(const CollectionPosition& position) const {
        if (auto* i = std::get_if<std::int32_t>(&position))
            return *i >= 1 && static_cast<std::size_t>(*i) <= entries_.size() ? static_cast<std::size_t>(*i - 1) : kNone;
        if (auto* k = std::get_if<std::string>(&position)) return k->empty() ? kNone : FindFolded(FoldedKey(*k).View());
        return kNone;
    }
    // An index out of range is error 9; an unknown key or no position at all error 5.
    std::size_t ResolvePosition(const CollectionPosition& position) const {
        const std::size_t i = FindPosition(position);
        if (i != kNone) return i;
        RaiseStandardError(std::holds_alternative<std::int32_t>(position) ? vberr::SubscriptOutOfRange
                                                                          : vberr::InvalidProcedureCall);
    }
    void EraseAt(std::size_t i) {
        if (index_ && !entries_[i].folded.Empty()) index_->erase(std::string(entries_[i].folded.View()));
        entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(i));
        ModelRevision::Bump();
    }

    using Index = std::unordered_map<std::string, Ptr, FoldedKeyHash, std::equal_to<>>;
    std::vector<Entry> entries_;
    // Folded key to item, only for large collections: it holds no
    // positions, so inserts and removes anywhere keep it valid.
    mutable std::unique_ptr<Index> index_;
};

// KeyExists of the shared helpers: true when the key can be looked up.
template <typename T>
bool KeyExists(const KeyedCollection<T>& collection, std::string_view key) {
    return collection.Contains(key);
}

}  // namespace flowloom
