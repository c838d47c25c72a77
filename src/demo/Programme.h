#pragma once

#include "platform/Moment.h"

#include <QString>
#include <QStringList>

namespace guide {

/// What a programme is about, as a feed would say it.
enum class Topic {
    None,
    Comedy,
    Drama,
    Crime,
    Thriller,
    ScienceFiction,
    Fantasy,
    Horror,
    Western,
    Adventure,
    Romance,
    Series,
    CrimeSeries,
    ComedySeries,
    Documentary,
    Children,
    News,
    Weather,
    Entertainment,
    Quiz,
    Magazine,
    Music,
    Sports,
};

/// One broadcast of a made-up channel.
struct Programme {
    Moment start;
    Moment stop;
    Topic topic = Topic::None;
    /// "cs", "sk", "en", "fr", "tr" or "ru".
    QString language;
    QString title;
    QString subtitle;
    QString description;
    /// 0 where it is no episode; a series may have no seasons.
    int season = 0;
    int episode = 0;
    bool repeat = false;
    QString director;
    QStringList actors;
    /// 0 and empty where it does not matter.
    int year = 0;
    QString country;
};

} // namespace guide
