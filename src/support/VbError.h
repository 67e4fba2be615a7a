#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace flowloom {

// A numbered run-time error: what a procedure raises and what its single error
// handler hands to ReportError. Numbers below 30000 are the host language's
// own (5, 9, 13, 457, ...); 30001 to 30099 are this system's (see ErrorNumbers.h).
class VbError : public std::runtime_error {
public:
    VbError(std::int32_t number, std::string description, std::string source = {},
             std::string helpFile = {}, std::int32_t helpContext = 0);

    std::int32_t Number() const noexcept { return number_; }
    const std::string& Description() const noexcept { return description_; }
    const std::string& Source() const noexcept { return source_; }
    const std::string& HelpFile() const noexcept { return helpFile_; }
    std::int32_t HelpContext() const noexcept { return helpContext_; }

private:
    std::int32_t number_;
    std::string description_;
    std::string source_;
    std::string helpFile_;
    std::int32_t helpContext_;
};

// Well-known numbers of the host language that the model raises itself.
namespace vberr {
inline constexpr std::int32_t InvalidProcedureCall = 5;
inline constexpr std::int32_t Overflow = 6;
inline constexpr std::int32_t SubscriptOutOfRange = 9;
inline constexpr std::int32_t TypeMismatch = 13;
inline constexpr std::int32_t InternalError = 51;
inline constexpr std::int32_t FileNotFound = 53;
inline constexpr std::int32_t PathNotFound = 76;
inline constexpr std::int32_t ObjectRequired = 91;
inline constexpr std::int32_t InvalidPropertyValue = 380;
inline constexpr std::int32_t DuplicateKey = 457;
}  // namespace vberr

// Errors raised with the host language's standard texts.
[[noreturn]] void RaiseStandardError(std::int32_t number, const std::string& source = {});
std::string StandardErrorText(std::int32_t number);

// The error being handled inside a catch block, as a VbError: a VbError as it
// is, any other exception as error 51 with its what() text.
VbError PendingError();

}  // namespace flowloom
