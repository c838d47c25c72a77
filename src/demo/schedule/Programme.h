#pragma once

#include "platform/Moment.h"

#include <QString>
#include <QStringList>

namespace guide {

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

/// One broadcast of a demo channel.
struct Programme {
    Moment start;
    Moment stop;
    Topic topic = Topic::None;
    /// "cs", "sk", "en", "fr", "tr" or "ru".
    QString language;
    QString title;
    QString subtitle;
    QString description;
    /// 0 for no episode or no season.
    int season = 0;
    int episode = 0;
    bool repeat = false;
    QString director;
    QStringList actors;
    /// 0 and empty when unknown.
    int year = 0;
    QString country;
};

} // namespace guide
