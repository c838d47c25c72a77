#pragma once

#include <QString>

namespace guide {

/// The format of a row's times, made from a locale's short time format: without its first blank (any Unicode
/// space) and with the hour in two digits: "H:mm" gives "HH:mm", "h:mm a" gives "hh:mma".
QString rowTimeFormat(const QString& shortTimeFormat);

} // namespace guide
