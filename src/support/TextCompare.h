#pragma once

#include <string>
#include <string_view>
#include <utility>

namespace flowloom {

// Case folding of UTF-8 text, for comparing names without regard to case.
// ASCII text takes a fast path; anything else goes through full Unicode case
// folding. Invalid UTF-8 is folded byte by byte as ASCII, never rejected.
std::string FoldCase(std::string_view text);

bool EqualsNoCase(std::string_view a, std::string_view b);

// Upper and lower case of UTF-8 text (for display and for the comparisons that
// the host language makes with UCase/LCase).
std::string ToUpper(std::string_view text);
std::string ToLower(std::string_view text);

// Position (0-based) of the first occurrence of `needle` in `haystack` at or
// after `from`, compared without regard to case; npos when absent.
std::size_t FindNoCase(std::string_view haystack, std::string_view needle, std::size_t from = 0);
// The same, with the length of the match in the original text (case folding
// may change the length of a code point, as "ß" against "SS").
std::pair<std::size_t, std::size_t> FindNoCaseSpan(std::string_view haystack, std::string_view needle,
                                                   std::size_t from = 0);
// Replaces every occurrence of `find` (not empty), compared without regard to case.
std::string ReplaceNoCase(std::string_view text, std::string_view find, std::string_view with);

}  // namespace flowloom
