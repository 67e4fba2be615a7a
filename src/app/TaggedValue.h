#pragma once

#include <memory>
#include <string>
#include <variant>

namespace flowloom {

// A value that holds a text, a number, a truth value, an object or nothing,
// and knows which. Pass-through properties of activities are tagged values:
// the text read from the file is kept as it stands and written back the same.
class TaggedValue {
public:
    TaggedValue() = default;
    TaggedValue(std::string text) : value_(std::move(text)) {}
    TaggedValue(const char* text) : value_(std::string(text)) {}
    TaggedValue(double number) : value_(number) {}
    TaggedValue(int number) : value_(static_cast<double>(number)) {}
    TaggedValue(bool truth) : value_(truth) {}

    static TaggedValue FromObject(std::shared_ptr<void> object);

    bool IsEmpty() const noexcept { return std::holds_alternative<std::monostate>(value_); }
    bool IsText() const noexcept { return std::holds_alternative<std::string>(value_); }
    bool IsNumber() const noexcept { return std::holds_alternative<double>(value_); }
    bool IsBool() const noexcept { return std::holds_alternative<bool>(value_); }
    bool IsObject() const noexcept { return std::holds_alternative<std::shared_ptr<void>>(value_); }

    // The value as text, as the host's string conversion gives it: "" for
    // nothing, "True"/"False" for a truth value. An object is error 13.
    std::string Text() const;
    // The text held, without a copy; null when the value is no text.
    const std::string* TextIf() const noexcept { return std::get_if<std::string>(&value_); }
    std::shared_ptr<void> Object() const;

    bool operator==(const TaggedValue&) const = default;

private:
    std::variant<std::monostate, std::string, double, bool, std::shared_ptr<void>> value_;
};

}  // namespace flowloom
