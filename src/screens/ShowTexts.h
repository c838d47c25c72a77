#pragma once

#include "store/TVEntry.h"

#include <QString>
#include <QStringList>

namespace guide {

/// The dot stays at the end of its line.
inline constexpr QStringView kBetweenFacts = u"\u00a0· ";

/// The short texts of a show, sorted by what they say. Some feeds pack several into one and divide them by a
/// double bar: "S15E11 ║ Gioco al rialzo ║ Reality, Auktion ║ US ║ 2023 ║ 12".
struct ShowTexts {
    /// The title of the episode or of the show's subject.
    QString subheading = {};
    /// A few words each: episode, genre, country, year, age, stars.
    QStringList facts = {};
    /// Whole sentences.
    QStringList details = {};
};

/// Without texts that repeat the show's title.
ShowTexts showTexts(const TVEntry& entry);

/// The same texts in one line, for a row, behind what is new and the episode.
QString rowDetails(const TVEntry& entry);

} // namespace guide
