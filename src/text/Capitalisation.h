#pragma once

#include <QLocale>
#include <QString>

namespace guide {

/// Each word with an initial capital and the rest small, by Unicode's words and the rules of the locale.
QString capitalizedWords(const QString& text, const QLocale& locale);

/// The first character as a capital and the rest small, by the rules of the locale.
QString sentenceCase(const QString& text, const QLocale& locale);

} // namespace guide
