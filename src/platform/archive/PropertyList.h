#pragma once

#include <QByteArray>
#include <QVariant>

#include <optional>

namespace guide {

/// Reads a property list, XML or binary, as QVariantMap, QVariantList, QString, bool, qlonglong, double,
/// QDateTime (UTC) and QByteArray. Empty when the data is damaged or not a property list, nests deeper than
/// 64 levels, or holds more than four million values.
std::optional<QVariant> propertyListFromData(const QByteArray& data);

} // namespace guide
