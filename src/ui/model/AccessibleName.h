#pragma once

#include "screens/kit/Row.h"

#include <QLocale>
#include <QString>

namespace guide {

/// What a screen reader says of a row, made from the same fields that the row draws.
QString accessibleName(const RowContent& content, const QLocale& locale);

} // namespace guide
