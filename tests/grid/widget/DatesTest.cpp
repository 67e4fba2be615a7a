// Date rows in the locale's short format: the month as the locale writes it,
// the year always whole.
#include "grid/ValueFormat.h"
#include "grid/widget/LocaleFormats.h"

#include <QDate>
#include <QLocale>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace flowloom::grid {
namespace {

// The locale's own short date with a two-digit year widened to four.
QString LocaleShortDateWithFullYear(const QLocale& locale, QDate date) {
    QString pattern = locale.dateFormat(QLocale::ShortFormat);
    pattern.replace(QRegularExpression("(?<!y)yy(?!y)"), "yyyy");
    return locale.toString(date, pattern);
}

TEST(GridDates, ShortDatesShowTheMonthAsTheLocaleWritesItAndTheYearWhole) {
    const QDate date(2026, 11, 23);
    for (const char* name : {"C", "en_US", "en_GB", "de_DE", "fr_FR", "es_ES", "ru_RU", "ja_JP", "ko_KR", "bg_BG", "nl_NL"}) {
        const QLocale locale(name);
        SCOPED_TRACE(name + (" " + locale.dateFormat(QLocale::ShortFormat).toStdString()));
        const std::string pattern = ShortDatePatternOf(locale);
        const std::string shown = FormatWithDataFormat("2026-11-23", pattern, DateNamesOf(locale));
        EXPECT_EQ(QString::fromStdString(shown), LocaleShortDateWithFullYear(locale, date));
        EXPECT_NE(shown.find("2026"), std::string::npos);
        // What a row shows, it reads back.
        EXPECT_EQ(FormatWithDataFormat(shown, pattern, DateNamesOf(locale)), shown);
    }
}

}  // namespace
}  // namespace flowloom::grid
