#pragma once

#include "platform/UserDefaults.h"
#include "platform/queues/DispatchQueue.h"

#include <QHash>

#include <memory>

namespace guide {

/// Settings in an INI file. Values live in memory. Changes are written shortly afterwards on the given queue,
/// by synchronize, and by the destructor; without a queue only by the latter two. Changes that others make to
/// the file are read at the next start. Only changed keys are written, and nothing where `writable` is false.
/// A file that is not a regular one or is larger than any of ours is left alone.
class SettingsUserDefaults final : public UserDefaults {
  public:
    explicit SettingsUserDefaults(const QString& path, std::shared_ptr<DispatchQueue> writeQueue = nullptr,
                                  bool writable = true);
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
