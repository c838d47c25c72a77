#pragma once

#include "platform/Moment.h"

#include <QStringView>
#include <QTimeZone>

#include <chrono>
#include <cstddef>
#include <vector>

namespace guide {

/// Whether a title names a news programme, in one of the languages of the guide. `lower` is in lower case.
bool isNewsTitle(QStringView lower);

/// The main evening news lie between these times of day.
inline constexpr std::chrono::hours kEveningBegins{17};
inline constexpr std::chrono::hours kEveningEnds{23};

struct NewsShow {
    /// The place of its channel.
    std::size_t channel = 0;
    Moment start;
    std::chrono::minutes duration{0};
};

/// Whether the times of news programmes look as if their zone were wrong. The main news of a channel's day
/// are its longest ones, or hardly shorter. The times look wrong when fewer than a quarter of at least three
/// main news are in the evening, but half of them are within six hours of another time of day. (Of right
/// feeds a fifth to two thirds are in the evening; where it is a fifth, no six hours have more than two
/// fifths.) Days with more than ten news say nothing.
bool lookShifted(const std::vector<NewsShow>& shows, const QTimeZone& zone);

/// Whether a language is spoken only in zones near that of Central Europe, so that its evening news tell
/// whether the times of a feed are right.
bool hasEuropeanEvening(const QString& language);

} // namespace guide
