#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace guide {

/// Settings by key. The getters return nothing for a key that is absent or has a value of another type; the
/// caller supplies the default. May be called from any thread.
class UserDefaults {
  public:
    virtual ~UserDefaults() = default;
    virtual std::optional<bool> boolForKey(const QString& key) const = 0;
    virtual std::optional<std::int64_t> integerForKey(const QString& key) const = 0;
    virtual std::optional<double> doubleForKey(const QString& key) const = 0;
    virtual std::optional<QString> stringForKey(const QString& key) const = 0;
    virtual void setBool(const QString& key, bool value) = 0;
    virtual void setInteger(const QString& key, std::int64_t value) = 0;
    virtual void setDouble(const QString& key, double value) = 0;
    virtual void setString(const QString& key, const QString& value) = 0;
    virtual void removeKey(const QString& key) = 0;
    /// Writes pending changes; false when that failed.
    virtual bool synchronize() = 0;
};

} // namespace guide
