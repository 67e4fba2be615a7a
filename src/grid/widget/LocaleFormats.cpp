#include "grid/widget/LocaleFormats.h"

#include <QLocale>

#include <utility>

namespace flowloom::grid {

namespace {

// Literal text as the date formatter keeps it: the characters it would read
// as part of a date (ASCII letters, quotes, backslashes) escaped one by one.
std::string Literal(const QString& text) {
    std::string literal;
    for (const QChar c : text) {
        const bool special = (c.unicode() < 128 && c.isLetter()) || c == u'\\' || c == u'"';
        if (special) literal += '\\';
        literal += QString(c).toStdString();
    }
    return literal;
}

// A quoted run of a Qt pattern from the quote at start: its text ("''" is
// one quote) and the position behind it.
std::pair<QString, qsizetype> QuotedRun(const QString& pattern, qsizetype start) {
    QString text;
    qsizetype i = start + 1;
    while (i < pattern.size()) {
        if (pattern[i] != u'\'') {
            text += pattern[i++];
        } else if (i + 1 < pattern.size() && pattern[i + 1] == u'\'') {
            text += u'\'';
            i += 2;
        } else {
            return {text, i + 1};
        }
    }
    return {text, i};
}

}  // namespace

std::string ShortDatePatternOf(const QLocale& locale) {
    const QString pattern = locale.dateFormat(QLocale::ShortFormat);
    std::string converted;
    for (qsizetype i = 0; i < pattern.size();) {
        const QChar c = pattern[i];
        if (c == u'\'') {
            const auto [text, next] = QuotedRun(pattern, i);
            converted += text.isEmpty() ? std::string("'") : Literal(text);  // "''" alone is a quote
            i = next;
            continue;
        }
        qsizetype run = 1;
        while (i + run < pattern.size() && pattern[i + run] == c) ++run;
        const auto count = static_cast<std::size_t>(run);
        if (c == u'd') converted += std::string(count, 'd');
        else if (c == u'M') converted += std::string(count, 'm');
        else if (c == u'y') converted += "yyyy";
        else converted += Literal(QString(run, c));
        i += run;
    }
    return converted;
}

DateNames DateNamesOf(const QLocale& locale) {
    DateNames names;
    for (int month = 1; month <= 12; ++month) {
        const auto slot = static_cast<std::size_t>(month - 1);
        names.shortMonths[slot] = locale.monthName(month, QLocale::ShortFormat).toStdString();
        names.longMonths[slot] = locale.monthName(month, QLocale::LongFormat).toStdString();
    }
    for (int day = 1; day <= 7; ++day) {
        const auto slot = static_cast<std::size_t>(day % 7);  // Qt counts from Monday, the names from Sunday
        names.shortDays[slot] = locale.dayName(day, QLocale::ShortFormat).toStdString();
        names.longDays[slot] = locale.dayName(day, QLocale::LongFormat).toStdString();
    }
    return names;
}

}  // namespace flowloom::grid
