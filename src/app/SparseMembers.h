#pragma once

#include "app/Tracked.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace flowloom {

// The text that an absent member reads as.
const std::string& EmptyText() noexcept;

// A text member that most objects leave empty: one pointer until it is first
// set to a text, where a TrackedString always takes four words. A large file
// has tens of thousands of objects, most of whose optional texts are never
// set. Once made, the text stays for the object's life, so that a reference
// read from it stays valid across later assignments, as a TrackedString's
// does. Assignments that change it count an edit.
class SparseString {
public:
    SparseString() = default;
    SparseString(const SparseString& other)
        : text_(other.text_ ? std::make_unique<std::string>(*other.text_) : nullptr) {}
    SparseString(SparseString&&) noexcept = default;
    ~SparseString() = default;

    SparseString& operator=(const SparseString& other) { return Store(std::string_view(other.get())); }
    SparseString& operator=(SparseString&& other) { return Store(std::string_view(other.get())); }
    SparseString& operator=(const std::string& text) { return Store(std::string_view(text)); }
    SparseString& operator=(std::string&& text);
    SparseString& operator=(const char* text) { return Store(std::string_view(text)); }
    SparseString& operator=(std::string_view text) { return Store(text); }

    const std::string& get() const noexcept { return text_ ? *text_ : EmptyText(); }
    operator const std::string&() const noexcept { return get(); }  // NOLINT: reads as the text
    operator std::string_view() const noexcept { return get(); }     // NOLINT: reads as the text
    bool empty() const noexcept { return !text_ || text_->empty(); }
    std::size_t size() const noexcept { return text_ ? text_->size() : 0; }
    const char* c_str() const noexcept { return get().c_str(); }
    void clear() noexcept {
        if (empty()) return;
        text_->clear();
        ModelRevision::Bump();
    }

    friend bool operator==(const SparseString& a, std::string_view b) noexcept { return std::string_view(a.get()) == b; }

private:
    SparseString& Store(std::string_view text);

    std::unique_ptr<std::string> text_;
};

// A part of an object that most objects never use (the state of a run, a
// rarely given setting): one pointer until it is first written. Copies are
// deep, as the members it stands for were.
template <typename T>
class LazyPart {
public:
    LazyPart() = default;
    LazyPart(const LazyPart& other) : part_(other.part_ ? std::make_unique<T>(*other.part_) : nullptr) {}
    LazyPart(LazyPart&&) noexcept = default;
    LazyPart& operator=(const LazyPart& other) {
        if (this != &other) part_ = other.part_ ? std::make_unique<T>(*other.part_) : nullptr;
        return *this;
    }
    LazyPart& operator=(LazyPart&&) noexcept = default;
    ~LazyPart() = default;

    // The part, or null while nothing was written to it.
    const T* Find() const noexcept { return part_.get(); }
    T* Find() noexcept { return part_.get(); }
    // The part, made on first use.
    T& Get() {
        if (!part_) part_ = std::make_unique<T>();
        return *part_;
    }
    void Reset() noexcept { part_.reset(); }

private:
    std::unique_ptr<T> part_;
};

}  // namespace flowloom
