#pragma once

#include <QByteArray>
#include <QCborValue>
#include <QString>

#include <optional>

namespace guide {

/// The text of a key-value file; nothing when the value is of no kind that the store takes.
std::optional<QByteArray> keyValueJson(const QString& key, const QCborValue& value);

/// The value in the text of a key's file; nothing when the text is damaged or of another key.
std::optional<QCborValue> keyValueFromJson(const QString& key, const QByteArray& json);

} // namespace guide
