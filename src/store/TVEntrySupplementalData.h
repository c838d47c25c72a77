#pragma once

#include <QString>
#include <QUrl>

#include <optional>

namespace guide {

class Alphabet;

/// The long details of a show. Shared as a pointer to const once it is in a list.
struct TVEntrySupplementalData {
    std::optional<QString> description;
    std::optional<QString> episodeDescription;
    std::optional<QString> details;
    std::optional<QString> directedBy;
    std::optional<QString> roles;
    std::optional<QUrl> imdbURL;
    std::optional<QUrl> trailerURL;
    std::optional<QString> language;

    /// True when every field is unset.
    bool empty() const;

    /// A copy with its five texts in the display form of their language.
    TVEntrySupplementalData updateAlphabet(const Alphabet& alphabet) const;

    friend bool operator==(const TVEntrySupplementalData&, const TVEntrySupplementalData&) = default;
};

} // namespace guide
