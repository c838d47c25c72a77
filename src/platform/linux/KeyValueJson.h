#pragma once

#include <QByteArray>
#include <QCborValue>
#include <QString>

#include <cstdint>
#include <optional>

namespace guide {

/// Orders the values of a key that several devices have written, without any clock.
struct KeyValueStamp {
    /// Greater than that of every stamp that the device had seen.
    std::int64_t counter = 0;
    /// Names the device; empty in a file without a stamp.
    QString device = {};

    bool isOlderThan(const KeyValueStamp& other) const {
        return counter < other.counter || (counter == other.counter && device < other.device);
    }
};
inline constexpr std::int64_t kLargestCounter = std::int64_t(1) << 62;

struct KeyValue {
    QString key;
    QCborValue value;
    KeyValueStamp stamp = {};
};

/// The text of a key-value file; empty when the value has a type that the store does not support.
std::optional<QByteArray> keyValueJson(const KeyValue& keyValue);

/// Reads the text of a key-value file; empty when it is damaged. A stamp that cannot be used counts as none.
std::optional<KeyValue> keyValueFromJson(const QByteArray& json);

} // namespace guide
