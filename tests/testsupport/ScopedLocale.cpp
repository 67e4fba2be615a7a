#include "ScopedLocale.h"

#include <clocale>

namespace flowloom::test {

ScopedLocale::ScopedLocale(const char* name) : previous_(std::setlocale(LC_ALL, nullptr)) {
    active_ = std::setlocale(LC_ALL, name) != nullptr;
}

ScopedLocale::~ScopedLocale() { std::setlocale(LC_ALL, previous_.c_str()); }

}  // namespace flowloom::test
