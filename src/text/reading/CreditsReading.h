#pragma once

#include <QString>

#include <optional>

namespace guide {

/// Names of people that a description lists behind labels.
struct ReadCredits {
    std::optional<QString> roles;
    std::optional<QString> directedBy;
};

/// A list of names without a remark that there are others, such as "u. a."; empty for such a remark alone.
QString withoutOthers(const QString& names);

/// Takes cast and directors, by their labels in many languages, off a description.
ReadCredits takeCredits(QString& text);

} // namespace guide
