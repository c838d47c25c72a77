#pragma once

#include <QLocale>
#include <QString>

namespace guide {

/// The format of a day in a locale: its long date format with short names and without the year, such as
/// "ddd, d. MMM".
QString dayFormat(const QLocale& locale);

} // namespace guide
