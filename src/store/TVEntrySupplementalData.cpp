#include "store/TVEntrySupplementalData.h"

#include "text/display/Transliteration.h"

namespace guide {

bool TVEntrySupplementalData::empty() const {
    return !description && !episodeDescription && !details && !directedBy && !roles && !imdbURL &&
           !trailerURL && !language;
}

TVEntrySupplementalData TVEntrySupplementalData::updateAlphabet(const Alphabet& alphabet) const {
    TVEntrySupplementalData updated = *this;
    for (std::optional<QString>* text : {&updated.description, &updated.episodeDescription, &updated.details,
                                         &updated.directedBy, &updated.roles}) {
        *text = latin2Cyrillic(*text, language.value_or(QString()), alphabet);
    }
    return updated;
}

} // namespace guide
