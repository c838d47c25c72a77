#pragma once

#include <QCborValue>
#include <QString>

#include <optional>

namespace guide {

/// Small values that follow the user between devices. A value is a boolean, an integer, a double, a string,
/// bytes, a date or an array of these. May be called from any thread.
class KeyValueStore {
  public:
    virtual ~KeyValueStore() = default;
    virtual std::optional<QCborValue> valueForKey(const QString& key) const = 0;
    /// False when the value could not be stored; the old one then stays.
    virtual bool setValue(const QString& key, const QCborValue& value) = 0;
    virtual void removeKey(const QString& key) = 0;
};

} // namespace guide
