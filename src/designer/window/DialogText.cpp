#include "designer/window/DialogText.h"

#include <QFileInfo>
#include <QStringList>

namespace flowloom::designer::window {

QString QtFileFilter(const QString& filter) {
    const QStringList parts = filter.split(QLatin1Char('|'));
    QStringList entries;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString text = parts[i].trimmed();
        const QString patterns = parts[i + 1].split(QLatin1Char(';'), Qt::SkipEmptyParts).join(QLatin1Char(' '));
        const QString suffix = QStringLiteral(" (") + patterns + QLatin1Char(')');
        entries << (text.endsWith(suffix) ? text : text + suffix);
    }
    // A lone text without a pattern still names something to show.
    if (parts.size() % 2 == 1 && !parts.back().trimmed().isEmpty()) entries << parts.back().trimmed();
    return entries.join(QStringLiteral(";;"));
}

QString WithDefaultExtension(const QString& fileName, const QString& extension) {
    QString ext = extension;
    while (ext.startsWith(QLatin1Char('.'))) ext.remove(0, 1);
    if (fileName.isEmpty() || ext.isEmpty() || !QFileInfo(fileName).suffix().isEmpty()) return fileName;
    return fileName + QLatin1Char('.') + ext;
}

QString WithLineFeeds(const QString& text) {
    QString result = text;
    result.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    result.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return result;
}

}  // namespace flowloom::designer::window
