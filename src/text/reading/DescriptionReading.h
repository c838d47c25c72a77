#pragma once

#include "text/facts/ShowFacts.h"

#include <QString>

#include <optional>

namespace guide {

/// Names of people that a description lists behind labels.
struct ReadCredits {
    std::optional<QString> roles;
    std::optional<QString> directedBy;
};

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

/// A list of names without a remark that there are others, such as "u. a."; empty for such a remark alone.
QString withoutOthers(const QString& names);

/// Takes cast and directors, by their labels in many languages, off a description.
ReadCredits takeCredits(QString& text);

} // namespace guide
