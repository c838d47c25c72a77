#pragma once

#include "text/categories/genres/GenreRow.h"

#include <QString>

namespace guide::genres {

/// What tells a story, or might.
inline constexpr Bits kStoryGenres = TVListingsCategoryFilmGenres | kFiction;
inline constexpr Bits kStories = TVListingsCategoryAllFilm | kSeries | kFiction;
inline constexpr Bits kKinds = (TVListingsCategoryAllShows & ~TVListingsCategoryFilmGenres) | kAnimation;

/// What the words of one text, or several that are believed equally, say.
struct Evidence {
    Bits strong = 0;
    Bits yielding = 0;
    Bits vague = 0;

    void add(Bits bits);
    /// What is said without vague words.
    Bits said() const;
};

// These add what a text says. The language is an ISO 639-1 code, or empty if it is unknown.

/// A category element: as a whole, by its parts, by their words, or by the tables for other feeds.
void addCategory(const QString& category, QStringView language, Evidence& evidence);

/// Genres that feeds put into subtitles, as a part of their own: "S2E50 ║ Sky Show ║ Kids, Cartoons".
void addSubtitleGenres(QStringView subtitle, QStringView language, Evidence& evidence);

void addTitle(QStringView title, QStringView language, Evidence& evidence);

/// A subtitle that says what the show is: most are titles of episodes.
void addSubtitle(QStringView subtitle, QStringView language, Evidence& evidence);

/// The parts of a description that define a show: its beginning and its last words.
void addDescription(QStringView description, QStringView language, Evidence& evidence);

} // namespace guide::genres
