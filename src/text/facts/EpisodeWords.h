#pragma once

#include <QStringView>

#include <optional>

namespace guide {

/// What a word in the notation of an episode says of the number beside it.
enum class EpisodeLabel {
    None,
    Season,
    /// Also the word for a show, so that an episode must follow.
    WeakSeason,
    Episode,
    Part,
    Of,
    Ordinal,
};

/// None for any other word.
EpisodeLabel episodeLabel(QStringView word);

/// A Roman number in capitals, up to 89. Greek and Cyrillic letters that look alike count.
std::optional<int> romanNumber(QStringView text);

/// A Greek number, without its apostrophe, up to ten: "Β" is two.
std::optional<int> greekNumber(QStringView text);

} // namespace guide
