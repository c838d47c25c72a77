#pragma once

#include <QLocale>
#include <QString>
#include <QTime>

namespace guide {

/// The format of times in rows, derived from a locale's short time format: without its first blank (any
/// Unicode space) and with two digits for the hour: "H:mm" gives "HH:mm", "h:mm a" gives "hh:mma".
QString rowTimeFormat(const QString& shortTimeFormat);

/// The format of times in rows of a locale, with AM and PM in lower case.
QString rowTimeFormat(const QLocale& locale);

/// The time in that format; empty for an invalid one.
QString shortTime(const QTime& time, const QLocale& locale);

} // namespace guide
