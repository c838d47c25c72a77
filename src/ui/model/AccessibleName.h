#pragma once

#include "screens/kit/Row.h"

#include <QString>
#include <QTime>

namespace guide {

/// What a screen reader says of a row, made from the same fields that the row draws.
QString accessibleName(const RowContent& content);

/// In the format of the default locale, which is the device's.
QString shortTime(const QTime& time);

} // namespace guide
