#pragma once

#include "screens/compound/CompoundRows.h"
#include "text/search/TextMatches.h"

#include <QString>

#include <cstddef>
#include <memory>
#include <span>

namespace guide {

/// The shows that a search found, by day, and their rows, in which the matches are marked. A row whose title
/// and details do not contain the pattern also has an excerpt of the text that does.
struct SearchResults {
    QString pattern;
    CompoundSections found;
};

/// Any thread.
SearchResults searchResults(const QString& pattern, std::span<const ShowItem> shows,
                            const CompoundRows& rows);

/// The rows of the first shows that a search found, and what the rest is made of.
struct FirstResults {
    SearchResults results;
    ShowItems shows;
    std::size_t count = 0;
    std::shared_ptr<const CompoundRows> rows;

    bool isComplete() const { return count == shows.size(); }
};
FirstResults firstResults(const QString& pattern, const ShowItems& shows, std::size_t atMost,
                          std::shared_ptr<const CompoundRows> rows);

/// The words around the range, about a line of text, with an ellipsis where the text goes on.
QString excerpt(const QString& text, const TextRange& around);

} // namespace guide
