#pragma once

#include "demo/schedule/Programme.h"

#include <QStringView>

namespace guide {

/// A kind of programme. Its name is also the name of a rule in the texts.
struct ProgrammeKind {
    const char* name;
    /// Minutes, multiples of five.
    int shortest;
    int longest;
    Topic topic;
    enum class Title {
        /// A new title each time: films, matches.
        PerBroadcast,
        /// One title per channel, the same every day: news, quizzes.
        Permanent,
        /// Likewise, with an episode number that counts up.
        Serial,
    } title;
    enum class Credits { None, Director, Cast } credits;
    /// Of a serial: episodes per season; 0 for one without seasons.
    int seasonLength;
    /// Has a year and a country.
    bool dated;
};

/// Null for an unknown name.
const ProgrammeKind* programmeKind(QStringView name);

} // namespace guide
