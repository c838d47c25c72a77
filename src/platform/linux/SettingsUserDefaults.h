#pragma once

#include "platform/DispatchQueue.h"
#include "platform/UserDefaults.h"

#include <QHash>

#include <memory>

namespace guide {

/// Settings in an INI file. Values live in memory and are written soon after a change, on the given queue,
/// and by synchronize; without a queue by synchronize alone, and at the end in any case. What others changed
/// in the file is seen at the next start; writing touches the changed keys only.
class SettingsUserDefaults final : public UserDefaults {
  public:
    explicit SettingsUserDefaults(const QString& path, std::shared_ptr<DispatchQueue> writeQueue = nullptr);
    SettingsUserDefaults(const SettingsUserDefaults&) = delete;
    SettingsUserDefaults& operator=(const SettingsUserDefaults&) = delete;
    ~SettingsUserDefaults() override;

    std::optional<bool> boolForKey(const QString& key) const override;
    std::optional<std::int64_t> integerForKey(const QString& key) const override;
    std::optional<double> doubleForKey(const QString& key) const override;
    std::optional<QString> stringForKey(const QString& key) const override;
    void setBool(const QString& key, bool value) override;
    void setInteger(const QString& key, std::int64_t value) override;
    void setDouble(const QString& key, double value) override;
    void setString(const QString& key, const QString& value) override;
    void removeKey(const QString& key) override;
    bool synchronize() override;

  private:
    class File;

    void set(const QString& key, const std::optional<QString>& value);

    const std::shared_ptr<File> m_file;
    const std::shared_ptr<DispatchQueue> m_writeQueue;
};

} // namespace guide
