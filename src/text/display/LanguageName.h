#pragma once

#include <QLocale>
#include <QString>

namespace guide {

/// The name of a language in the locale's language, beginning with a capital letter, or the names of several
/// whose codes are separated by "/". A code that is not known stays as it is.
QString languageName(const QString& codes, const QLocale& locale);

} // namespace guide
