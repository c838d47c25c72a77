#pragma once

#include "demo/Programme.h"

#include <QStringView>

namespace guide {

/// What holds for every programme of a kind. Its name is the grammars' rule for it.
struct ProgrammeKind {
    const char* name;
    /// Minutes, in fives.
    int shortest;
    int longest;
    Topic topic;
    enum class Title {
        /// Told anew each time: films, matches.
        Anew,
        /// The channel's own, day after day: news, quizzes.
        Standing,
        /// Likewise, with an episode that counts on.
        Serial,
    } title;
    enum class Makers { None, Director, Cast } makers;
    /// Of a serial: how many episodes a season has; 0 for one without seasons.
    int seasonLength;
    /// Has a year and a country.
    bool dated;
};

/// Null for a name that is none.
const ProgrammeKind* programmeKind(QStringView name);

} // namespace guide
