#pragma once

#include <QString>

// The text of the exchange file as the editor shows it and as it goes back.
namespace flowloom::markuploom {

// Drops the "<P>" marks the designer puts after each line end of a plain
// text (a CR LF pair comes with three of them); other "<P>" stay.
QString UnmarkLineEnds(const QString& text);
// CR LF, lone CR and lone LF all as LF, as the editor widgets hold lines.
QString EditorLineEnds(const QString& text);
// Every line end as CR LF, as the designer keeps texts.
QString WithCrLf(const QString& text);

}  // namespace flowloom::markuploom
