#pragma once

#include "text/facts/ShowFacts.h"

#include <QString>
#include <QStringView>

#include <optional>

namespace guide {

// The many ways in which feeds write the number of an episode: "S01E02", "Folge 3", "4. díl", "II./7.",
// "Stag. 2 Ep. 5", "(3/8)", "Β' κύκλος". Numbers that stand for "unknown", such as S0 and 999, give none.

/// Greater numbers are years or stand for "unknown".
inline constexpr int kMostSeason = 98;
inline constexpr int kMostEpisode = 9'998;

/// Where a notation was found.
enum class NotationPlace {
    /// In brackets, behind a comma or a dash, or on its own.
    Separate,
    /// Within the words of a title: only notations that no title has.
    Title,
    /// In a text that may tell of parts and seasons: as in a title, and only with an episode.
    Description,
};

struct FoundEpisode {
    EpisodeNumber number;
    qsizetype start = 0;
    qsizetype end = 0;
};

/// Whether anything in the text could be a number: false for most texts, which then have no notation.
bool mayHaveEpisode(QStringView text);
/// The text as a notation and nothing else.
std::optional<EpisodeNumber> episodeNotation(QStringView text, const QString& language,
                                             NotationPlace place = NotationPlace::Separate);
/// One that begins the text.
std::optional<FoundEpisode> episodeAtStart(QStringView text, const QString& language, NotationPlace place);
/// One that ends the text; it begins behind a blank.
std::optional<FoundEpisode> episodeAtEnd(QStringView text, const QString& language, NotationPlace place);

/// Sets what the first one leaves open.
void completeEpisode(EpisodeNumber& number, const EpisodeNumber& other);

} // namespace guide
