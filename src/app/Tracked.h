#pragma once

#include <atomic>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace flowloom {

// The edit count of the model data of this program: every change of a value
// that a processes file holds (a tracked member, a keyed collection) counts
// one. A copy of it taken at a save tells later whether anything may have
// changed since; changes to objects outside any file count too, which only
// makes that answer more cautious.
class ModelRevision {
public:
    static std::uint64_t Current() noexcept { return count_.load(std::memory_order_relaxed); }
    // Not a read-modify-write: the model is used from one thread, and a
    // concurrent bump can only be lost after another one was counted.
    static void Bump() noexcept { count_.store(count_.load(std::memory_order_relaxed) + 1, std::memory_order_relaxed); }

private:
    static inline std::atomic<std::uint64_t> count_{0};
};

// A scalar member (number, truth value) whose assignments count an edit
// when they change it. Reads as the value.
template <typename T>
class Tracked {
public:
    Tracked() = default;
    Tracked(T value) : value_(value) {}  // NOLINT: initialisation is no edit
    Tracked(const Tracked&) = default;
    Tracked& operator=(const Tracked& other) { return *this = other.value_; }
    Tracked& operator=(T value) {
        if (value_ != value) {
            value_ = value;
            ModelRevision::Bump();
        }
        return *this;
    }
    operator T() const noexcept { return value_; }  // NOLINT: reads as the value
    T get() const noexcept { return value_; }

private:
    T value_{};
};

// A member of a class type with ==, as a tagged value, that counts an edit
// when an assignment changes it; reads as the value it is.
template <typename T>
class TrackedObject : public T {
public:
    TrackedObject() = default;
    template <typename U>
        requires(!std::is_same_v<std::remove_cvref_t<U>, TrackedObject> && std::is_constructible_v<T, U &&>)
    TrackedObject(U&& value) : T(std::forward<U>(value)) {}  // NOLINT: reads as the value
    TrackedObject(const TrackedObject&) = default;
    TrackedObject& operator=(const TrackedObject& other) { return *this = static_cast<const T&>(other); }
    TrackedObject& operator=(T value) {
        if (!(static_cast<const T&>(*this) == value)) {
            T::operator=(std::move(value));
            ModelRevision::Bump();
        }
        return *this;
    }
};

// A text member that counts an edit when an assignment or an append changes
// it. It reads like the std::string it is; the mutators of std::string that
// are not repeated here are hidden, so that no change goes uncounted
// (binding it to a `std::string&` still could: do not).
class TrackedString : public std::string {
public:
    TrackedString() = default;
    // Explicit from std::string, so that `c ? text : member` stays a std::string.
    explicit TrackedString(std::string text) : std::string(std::move(text)) {}
    explicit TrackedString(std::string_view text) : std::string(text) {}
    TrackedString(const char* text) : std::string(text) {}  // NOLINT: member initialisers
    TrackedString(const TrackedString&) = default;
    TrackedString(TrackedString&&) noexcept = default;
    ~TrackedString() = default;

    TrackedString& operator=(const TrackedString& other) { return Store(other); }
    TrackedString& operator=(TrackedString&& other) noexcept { return Store(std::move(other)); }
    TrackedString& operator=(const std::string& text) { return Store(text); }
    TrackedString& operator=(std::string&& text) { return Store(std::move(text)); }
    TrackedString& operator=(const char* text) { return Store(std::string_view(text)); }
    TrackedString& operator=(std::string_view text) { return Store(text); }

    TrackedString& operator+=(std::string_view text) {
        if (!text.empty()) {
            Base().append(text);
            ModelRevision::Bump();
        }
        return *this;
    }
    TrackedString& operator+=(char c) {
        Base().push_back(c);
        ModelRevision::Bump();
        return *this;
    }
    void clear() noexcept {
        if (empty()) return;
        Base().clear();
        ModelRevision::Bump();
    }

    // Read access only.
    const char& operator[](size_type i) const { return std::string::operator[](i); }
    const_iterator begin() const noexcept { return std::string::begin(); }
    const_iterator end() const noexcept { return std::string::end(); }
    const char* data() const noexcept { return std::string::data(); }
    const char& front() const { return std::string::front(); }
    const char& back() const { return std::string::back(); }
    template <typename... A> void append(A&&...) = delete;
    template <typename... A> void assign(A&&...) = delete;
    template <typename... A> void insert(A&&...) = delete;
    template <typename... A> void erase(A&&...) = delete;
    template <typename... A> void replace(A&&...) = delete;
    template <typename... A> void resize(A&&...) = delete;
    template <typename... A> void push_back(A&&...) = delete;
    template <typename... A> void pop_back(A&&...) = delete;
    template <typename... A> void swap(A&&...) = delete;

private:
    std::string& Base() noexcept { return *this; }
    template <typename Text>
    TrackedString& Store(Text&& text) {
        if (std::string_view(*this) != std::string_view(text)) {
            Base() = std::forward<Text>(text);
            ModelRevision::Bump();
        }
        return *this;
    }
};

}  // namespace flowloom
