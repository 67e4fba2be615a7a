#pragma once

#include <cstdint>
#include <string>
#include <vector>

// The system's own error numbers, 30001 to 30099, with their texts.
namespace flowloom::errnum {

inline constexpr std::int32_t First = 30001;
inline constexpr std::int32_t Last = 30099;

inline constexpr std::int32_t DocumentNotCreatedSaveAs = 30047;
inline constexpr std::int32_t DocumentNotCreatedPrintOut = 30048;
inline constexpr std::int32_t DocumentNotCreatedSendFax = 30050;
inline constexpr std::int32_t ProcessesFileDoesNotExist = 30051;
inline constexpr std::int32_t FolderDoesNotExist = 30052;
inline constexpr std::int32_t DocumentNotCreatedConvert = 30074;
inline constexpr std::int32_t DocumentAlreadyExists = 30075;

// The plain description; "Unspecified Velorin error" for any other number.
std::string Description(std::int32_t code);
// The parameterised form with %1, %2, ... replaced by the arguments; codes
// without a form give their plain description.
std::string Description(std::int32_t code, const std::vector<std::string>& args);
std::int32_t HelpContext(std::int32_t code);

// Raises the error: an empty description takes the table's text; a context
// goes in front, followed by two line ends. Source is the product's title.
[[noreturn]] void Raise(std::int32_t code, std::string context = {}, const std::string& description = {});

}  // namespace flowloom::errnum
