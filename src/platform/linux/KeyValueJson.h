#pragma once

#include <QByteArray>
#include <QCborValue>
#include <QString>

#include <optional>

namespace guide {

/// The text of a key-value file; empty when the value has a type that the store does not support.
std::optional<QByteArray> keyValueJson(const QString& key, const QCborValue& value);

struct KeyValue {
    QString key;
    QCborValue value;
};

/// Reads the text of a key-value file; empty when it is damaged.
std::optional<KeyValue> keyValueFromJson(const QByteArray& json);

} // namespace guide
