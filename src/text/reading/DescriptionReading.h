#pragma once

#include "text/facts/ShowFacts.h"
#include "text/reading/CreditsReading.h"

#include <QString>

namespace guide {

/// A description of a feed taken apart.
struct ReadDescription {
    /// Tidied, without what the facts say.
    QString text;
    ShowFacts facts;
    /// Of names that stand on lines of their own at the end.
    ReadCredits credits;
};

/// Takes facts off both ends of a description: "(D) 2023 • S25 E41 • FSK 12", "Saison:2 - Episode:5 - ",
/// "[S,AD] S6 Ep12", "Originaltitel: …". What is not recognised stays.
ReadDescription readDescription(const QString& text, const QString& language);

} // namespace guide
