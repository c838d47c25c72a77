#pragma once

#include <QCborValue>
#include <QString>
#include <QStringList>

#include <optional>

namespace guide {

class KeyValueStoreObserver {
  public:
    virtual ~KeyValueStoreObserver() = default;
    /// Another device or program set or removed the values of these keys. Main thread.
    virtual void valuesChangedExternally(const QStringList& keys) = 0;
};

/// Small values that follow the user between devices. A value is a boolean, an integer, a double, a string,
/// bytes, a date or an array of these. May be called from any thread.
class KeyValueStore {
  public:
    virtual ~KeyValueStore() = default;
    virtual std::optional<QCborValue> valueForKey(const QString& key) const = 0;
    /// An equal value stores nothing, so that nobody is told. False when the value could not be stored; the
    /// old one is then kept.
    virtual bool setValue(const QString& key, const QCborValue& value) = 0;
    virtual void removeKey(const QString& key) = 0;
    /// Sets a value of a key that has none. If it turns out later that it had one, which had not been read
    /// yet, that one takes its place again.
    virtual bool setMissingValue(const QString& key, const QCborValue& value) {
        return valueForKey(key) || setValue(key, value);
    }

    /// Blocks until what was set outlives this process, however it ends. False when that is impossible now.
    /// Not on the main thread.
    virtual bool flush() { return true; }

    /// Sets the observer of later changes that are not made through this object; nullptr removes it. The
    /// store does not own it. Main thread only.
    virtual void setObserver(KeyValueStoreObserver* observer) = 0;
};

} // namespace guide
