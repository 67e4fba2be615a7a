#pragma once

#include "grid/ValueFormat.h"

#include <string>

class QLocale;

namespace flowloom::grid {

// A locale's short date pattern in the letters of a row's DataFormat ("M"
// becomes "m", quoted text stays literal), with the year always in four
// digits: date rows show the year whole and the month as the locale writes
// it, in digits or by name.
std::string ShortDatePatternOf(const QLocale& locale);

// The locale's month and weekday names for "mmm", "mmmm", "ddd" and "dddd".
DateNames DateNamesOf(const QLocale& locale);

}  // namespace flowloom::grid
