#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace flowloom {

// Compares a text that comes in pieces with a whole one, without regard to
// case as EqualsNoCase does, and stops at the first difference it can be
// sure of. Case folding maps code point by code point, so a difference
// between two ASCII bytes after equal beginnings is final, and so is one text
// going on where the other ends. Where a byte beyond ASCII differs, the
// characters from there on are folded and compared one at a time, and the
// bytes are compared again once both sides meet at the same point. That
// needs both texts to be UTF-8 without faults (so that EqualsNoCase folds
// them fully): when the whole text is not, or the streamed one turns out
// not to be, the answer is left to the full comparison (Undecided).
class PrefixComparison {
public:
    enum Result { Equal, Different, Undecided };

    explicit PrefixComparison(std::string_view whole) : whole_(whole) {}
    // Takes the next piece; false once the answer is known.
    bool Next(std::string_view piece);
    // The answer after the last piece.
    Result Finish() const;

private:
    // Bytes, ASCII without regard to case, up to a difference.
    void CompareBytes(std::string_view& piece);
    // Folded characters, until both sides are at the same point again.
    void CompareFolded(std::string_view& piece);
    enum class Take { Char, NeedMore, Fault };
    // The streamed text's next character, which may begin in an earlier piece.
    Take TakeStreamedChar(std::string_view& piece, char32_t& c);
    // Folds the whole text's characters until they cover the streamed ones
    // folded so far, and drops what both have: Equal while they agree.
    Result MatchFolded();
    bool WholeIsUtf8();
    void Decide(Result result) {
        result_ = result;
        decided_ = true;
    }

    std::string_view whole_;
    std::size_t pos_ = 0;          // in whole_: compared up to here
    std::size_t bytesFrom_ = 0;    // where the bytes compared now began (a character starts there)
    bool folding_ = false;
    std::string partial_;          // the start of a streamed character split between pieces
    std::u32string streamedFolded_, wholeFolded_;  // folded characters the other side has not matched yet
    std::optional<bool> wholeIsUtf8_;
    bool decided_ = false;
    Result result_ = Equal;
};

}  // namespace flowloom
