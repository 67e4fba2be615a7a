#pragma once

#include <string>
#include <string_view>

namespace flowloom {

// Text of a macro built from whole lines: each indented with blanks and ended
// with CR LF, since the macro is pasted into a Windows editor.
class CodeBuffer {
public:
    void Line(int indent, std::string_view text);
    // `member = "value"`; the value goes in as it stands, without escaping.
    void Quoted(int indent, std::string_view member, std::string_view value);
    // `member = value`, for numbers and truth values already in their text form.
    void Plain(int indent, std::string_view member, std::string_view value);
    // The quoted and plain forms, only when the value is not empty.
    void QuotedIfSet(int indent, std::string_view member, std::string_view value);
    void PlainIfSet(int indent, std::string_view member, std::string_view value);
    void Append(const CodeBuffer& other) { text_ += other.text_; }

    const std::string& Text() const noexcept { return text_; }
    bool Empty() const noexcept { return text_.empty(); }
    void Clear() noexcept { text_.clear(); }

private:
    std::string text_;
};

// The text form of a truth value in the macro.
inline const char* BoolText(bool value) { return value ? "True" : "False"; }

// The right-hand side of a field value's `.Value = ` line: numbers and values
// already in double quotes as they stand, anything else put in quotes.
std::string FieldValueText(std::string_view value);

}  // namespace flowloom
