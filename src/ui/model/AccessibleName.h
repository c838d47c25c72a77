#pragma once

#include "screens/kit/Row.h"

#include <QLocale>
#include <QString>
#include <QTime>

namespace guide {

/// What a screen reader says of a row, made from the same fields that the row draws.
QString accessibleName(const RowContent& content, const QLocale& locale);

/// In the format of the times in rows; empty for an invalid time.
QString shortTime(const QTime& time, const QLocale& locale);

} // namespace guide
