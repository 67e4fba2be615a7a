#include "BodyText.h"

namespace flowloom::markuploom {

namespace {
const QString kMark = QStringLiteral("<P>");

bool IsLineEnd(QChar c) { return c == u'\r' || c == u'\n'; }
}  // namespace

QString UnmarkLineEnds(const QString& text) {
    QString out;
    out.reserve(text.size());
    qsizetype i = 0;
    while (i < text.size()) {
        const QChar c = text.at(i++);
        out += c;
        if (!IsLineEnd(c)) continue;
        while (QStringView(text).mid(i).startsWith(kMark)) i += kMark.size();
    }
    return out;
}

QString EditorLineEnds(const QString& text) {
    QString out = text;
    out.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    out.replace(u'\r', u'\n');
    return out;
}

QString WithCrLf(const QString& text) {
    return EditorLineEnds(text).replace(QStringLiteral("\n"), QStringLiteral("\r\n"));
}

}  // namespace flowloom::markuploom
