#pragma once

#include "platform/UserDefaults.h"

#include <QMap>

#include <mutex>
#include <variant>

namespace guide {

class MemoryUserDefaults final : public UserDefaults {
  public:
    std::optional<bool> boolForKey(const QString& key) const override { return value<bool>(key); }
    std::optional<std::int64_t> integerForKey(const QString& key) const override {
        return value<std::int64_t>(key);
    }
    std::optional<double> doubleForKey(const QString& key) const override { return value<double>(key); }
    std::optional<QString> stringForKey(const QString& key) const override { return value<QString>(key); }
    void setBool(const QString& key, bool value) override { store(key, value); }
    void setInteger(const QString& key, std::int64_t value) override { store(key, value); }
    void setDouble(const QString& key, double value) override { store(key, value); }
    void setString(const QString& key, const QString& value) override { store(key, value); }
    void removeKey(const QString& key) override {
        const std::lock_guard guard(m_guard);
        m_values.remove(key);
    }
    bool synchronize() override {
        const std::lock_guard guard(m_guard);
        ++m_synchronized;
        return true;
    }

    /// How often synchronize was called.
    int synchronizeCount() const {
        const std::lock_guard guard(m_guard);
        return m_synchronized;
    }

  private:
    using Value = std::variant<bool, std::int64_t, double, QString>;

    template <class T>
    std::optional<T> value(const QString& key) const {
        const std::lock_guard guard(m_guard);
        const auto found = m_values.find(key);
        if (found == m_values.end()) {
            return std::nullopt;
        }
        const T* held = std::get_if<T>(&*found);
        return held != nullptr ? std::optional<T>(*held) : std::nullopt;
    }
    void store(const QString& key, const Value& value) {
        const std::lock_guard guard(m_guard);
        m_values.insert(key, value);
    }

    mutable std::mutex m_guard;
    QMap<QString, Value> m_values;
    int m_synchronized = 0;
};

} // namespace guide
