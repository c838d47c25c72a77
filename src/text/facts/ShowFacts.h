#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace guide {

/// The place of an episode, counted from 1. Any of them may be unknown.
struct EpisodeNumber {
    std::optional<int> season;
    std::optional<int> episode;
    /// How many episodes the season has.
    std::optional<int> episodes;
    /// Of an episode that is shown in several parts.
    std::optional<int> part;
    std::optional<int> parts;

    bool empty() const { return *this == EpisodeNumber{}; }

    friend bool operator==(const EpisodeNumber&, const EpisodeNumber&) = default;
};

/// Whether a broadcast is the first one of its show or episode on the channel, as far as the source says.
enum class Newness { Unknown, New, Repeat };

/// `value` of at most `most`, as the source counts.
struct StarRating {
    double value = 0;
    double most = 0;

    friend bool operator==(const StarRating&, const StarRating&) = default;
};

/// What a feed says of a show beside its texts. Most shows have little or none of it.
struct ShowFacts {
    /// The title in the language in which the show was made, if it differs from the shown one.
    std::optional<QString> originalTitle;
    EpisodeNumber episode;
    /// In which the show was made.
    std::optional<int> year;
    /// As the feed writes them.
    std::vector<QString> countries;
    /// As the feed writes it: "12", "PG", "ab 16".
    std::optional<QString> ageRating;
    std::optional<StarRating> starRating;
    Newness newness = Newness::Unknown;

    bool empty() const { return *this == ShowFacts{}; }

    friend bool operator==(const ShowFacts&, const ShowFacts&) = default;
};

} // namespace guide
