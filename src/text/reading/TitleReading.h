#pragma once

#include "text/facts/ShowFacts.h"

#include <QString>

#include <optional>
#include <vector>

namespace guide {

/// A title of a feed taken apart.
struct ReadTitle {
    /// Never empty unless the feed's is.
    QString title;
    /// What followed an episode.
    std::optional<QString> subtitle;
    /// Episode, year, countries, newness, original title and age rating, as far as the title has them.
    ShowFacts facts;
    /// Words of genres behind the title, as written.
    std::optional<QString> genre;
};

/// Takes recognised tails off a title: years with countries, genres, episodes, marks of repeats, the date of
/// the broadcast and the like. What is not recognised stays. `language` is an ISO 639-1 code or empty,
/// `broadcastIn` a year, 0 when unknown. The title is tidied, but its case is not changed.
ReadTitle readTitle(const QString& text, const QString& language, int broadcastIn = 0);

struct SeasonedTitle {
    QString title;
    int season = 0;
    /// In digits, which may belong to the name: only a season that is told elsewhere too is one.
    bool isArabic = false;
};

/// "FBI VII" or "The King of Queens 5" as a title and a season. Nothing without a number at the end.
std::optional<SeasonedTitle> seasonedTitle(const QString& title);

/// Whether a title says, in any language, that nothing is known about the slot.
bool isFeedPlaceholder(const QString& title);

} // namespace guide
