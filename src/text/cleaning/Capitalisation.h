#pragma once

#include <QLocale>
#include <QString>

namespace guide {

/// Capitalises the first letter of each word and lowercases the rest, by Unicode word boundaries and the
/// rules of the locale.
QString capitalizedWords(const QString& text, const QLocale& locale);

/// Capitalises the first character and lowercases the rest, by the rules of the locale.
QString sentenceCase(const QString& text, const QLocale& locale);

} // namespace guide
