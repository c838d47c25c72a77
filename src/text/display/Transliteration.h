#pragma once

#include "text/display/Alphabet.h"

#include <QString>

#include <optional>

namespace guide {

/// The display form of a text in a language: Cyrillic for "mk", and for "sr", "bs", "me" and "ru" if the
/// device writes Cyrillic; for any other language the text itself. Unset stays unset.
std::optional<QString> latin2Cyrillic(const std::optional<QString>& text, const QString& language,
                                      const Alphabet& alphabet);
QString latin2Cyrillic(const QString& text, const QString& language, const Alphabet& alphabet);

} // namespace guide
