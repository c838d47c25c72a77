#pragma once

#include "text/Alphabet.h"

#include <QString>

#include <optional>

namespace guide {

/// The display form of a text in a language: in Cyrillic for "mk", for "sr", "bs", "me" and "ru" only where
/// the device writes Cyrillic, and the very text for any other language. Unset stays unset.
std::optional<QString> latin2Cyrillic(const std::optional<QString>& text, const QString& language,
                                      const Alphabet& alphabet);
QString latin2Cyrillic(const QString& text, const QString& language, const Alphabet& alphabet);

} // namespace guide
