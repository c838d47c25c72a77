#pragma once

#include "screens/compound/CompoundRows.h"
#include "text/search/TextMatches.h"

#include <QString>

namespace guide {

/// The shows that a search found, by day, and their rows, in which the matches are marked. A row whose title
/// and details do not contain the pattern also has an excerpt of the text that does.
struct SearchResults {
    QString pattern;
    CompoundSections found;
};

/// Any thread.
SearchResults searchResults(const QString& pattern, const ShowItems& shows, const CompoundRows& rows);

/// The words around the range, about a line of text, with an ellipsis where the text goes on.
QString excerpt(const QString& text, const TextRange& around);

} // namespace guide
