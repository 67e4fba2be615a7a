#pragma once

#include <string>

namespace flowloom::test {

// Switches the C library's locale for the scope, as a Qt program does at
// start from the environment, and restores the old one at the end.
class ScopedLocale {
public:
    explicit ScopedLocale(const char* name);
    ~ScopedLocale();
    ScopedLocale(const ScopedLocale&) = delete;
    ScopedLocale& operator=(const ScopedLocale&) = delete;

    // False when the locale is not installed on this machine.
    bool Active() const noexcept { return active_; }

private:
    std::string previous_;
    bool active_ = false;
};

// A locale whose decimal separator is a comma.
inline constexpr const char* kCommaLocale = "de_DE.UTF-8";

}  // namespace flowloom::test
