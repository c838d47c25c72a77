#pragma once

#include <QByteArray>
#include <QVariant>

#include <optional>

namespace guide {

/// The root of a property list, XML or binary: QVariantMap, QVariantList, QString, bool, qlonglong, double,
/// QDateTime (UTC) and QByteArray. Nothing when the bytes are damaged or no property list, nest deeper than
/// 64 levels, or hold more than four million values.
std::optional<QVariant> propertyListFromData(const QByteArray& data);

} // namespace guide
