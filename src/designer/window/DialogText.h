#pragma once

#include <QString>

namespace flowloom::designer::window {

// A filter of alternating texts and patterns ("XML files (*.xml)|*.xml|All
// Files (*.*)|*.*") as Qt's file dialogs take it: "XML files (*.xml);;All
// Files (*.*)". A text that does not end in its patterns gets them appended,
// since Qt reads the patterns from the parentheses.
QString QtFileFilter(const QString& filter);

// A chosen save name without an extension gets the default one
// ("report" -> "report.xml"); names with an extension are kept.
QString WithDefaultExtension(const QString& fileName, const QString& extension);

// Text with Windows line ends (CR LF) or lone CRs as the plain line feeds a
// Qt text widget breaks lines at.
QString WithLineFeeds(const QString& text);

}  // namespace flowloom::designer::window
