#include "platform/linux/SettingsUserDefaults.h"

#include "platform/files/FileContent.h"
#include "platform/files/FileReplacement.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QSettings>

#include <algorithm>
#include <array>
#include <cmath>
#include <mutex>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::milliseconds kWriteDelay{500};
constexpr qint64 kMostBytes = 1 << 20;

} // namespace

// Values are kept as text, as in the file, so that a value read back has the same types as one just set.
class SettingsUserDefaults::File {
  public:
    File(const QString& path, bool writable)
        : m_path(path)
        , m_writable(writable) {
        if (!isReadableFile(m_path, kMostBytes)) {
            if (QFile::exists(m_path)) {
                qWarning("the settings in %s cannot be read", qUtf8Printable(m_path));
            }
            return;
        }
        const QSettings settings(m_path, QSettings::IniFormat);
        const QStringList keys = settings.allKeys();
        for (const QString& key : keys) {
            const QVariant value = settings.value(key);
            if (value.typeId() == QMetaType::QString) {
                m_values.insert(key, value.toString());
            }
        }
    }

    std::optional<QString> value(const QString& key) const {
        const std::lock_guard lock(m_mutex);
        const auto found = m_values.constFind(key);
        return found == m_values.constEnd() ? std::nullopt : std::optional(*found);
    }

    // True when something changed and no write is scheduled.
    bool set(const QString& key, const std::optional<QString>& value) {
        const std::lock_guard lock(m_mutex);
        const auto found = m_values.constFind(key);
        if (value ? found != m_values.constEnd() && *found == *value : found == m_values.constEnd()) {
            return false;
        }
        if (value) {
            m_values.insert(key, *value);
        } else {
            m_values.remove(key);
        }
        if (!m_writable) {
            return false;
        }
        m_changed.insert(key, value);
        return !std::exchange(m_writeScheduled, true);
    }

    bool write() {
        // One writer at a time; readers and setters do not wait for the disk.
        const std::lock_guard writing(m_writing);
        QHash<QString, std::optional<QString>> changed;
        {
            const std::lock_guard lock(m_mutex);
            m_writeScheduled = false;
            changed.swap(m_changed);
        }
        if (changed.isEmpty() || store(changed)) {
            return true;
        }
        // Restores the failed changes, except where a newer value exists.
        const std::lock_guard lock(m_mutex);
        for (auto entry = changed.cbegin(); entry != changed.cend(); ++entry) {
            if (!m_changed.contains(entry.key())) {
                m_changed.insert(entry.key(), entry.value());
            }
        }
        return false;
    }

  private:
    bool store(const QHash<QString, std::optional<QString>>& changed) const {
        // QSettings reads the file again. It would wait for a pipe.
        if (QFile::exists(m_path) && !isReadableFile(m_path, kMostBytes)) {
            return false;
        }
        QSettings settings(m_path, QSettings::IniFormat);
        for (auto entry = changed.cbegin(); entry != changed.cend(); ++entry) {
            if (entry.value()) {
                settings.setValue(entry.key(), *entry.value());
            } else {
                settings.remove(entry.key());
            }
        }
        settings.sync();
        // The file is written even if it could not be read completely.
        if (settings.status() == QSettings::AccessError) {
            return false;
        }
        syncFolder(QFileInfo(m_path).path());
        return true;
    }

    const QString m_path;
    const bool m_writable;
    mutable std::mutex m_mutex;
    QHash<QString, QString> m_values;
    QHash<QString, std::optional<QString>> m_changed;
    bool m_writeScheduled = false;
    std::mutex m_writing;
};

SettingsUserDefaults::SettingsUserDefaults(const QString& path, std::shared_ptr<DispatchQueue> writeQueue,
                                           bool writable)
    : m_file(std::make_shared<File>(path, writable))
    , m_writeQueue(std::move(writeQueue)) {}

SettingsUserDefaults::~SettingsUserDefaults() {
    m_file->write();
}

std::optional<bool> SettingsUserDefaults::boolForKey(const QString& key) const {
    // Accepts common spellings, because some settings are only ever edited by hand.
    static constexpr std::array kYes{"true"_L1, "1"_L1, "yes"_L1, "on"_L1};
    static constexpr std::array kNo{"false"_L1, "0"_L1, "no"_L1, "off"_L1};
    const QString value = m_file->value(key).value_or(QString());
    const auto isValue = [&value](QLatin1StringView word) {
        return value.compare(word, Qt::CaseInsensitive) == 0;
    };
    if (std::ranges::any_of(kYes, isValue)) {
        return true;
    }
    return std::ranges::any_of(kNo, isValue) ? std::optional(false) : std::nullopt;
}

std::optional<std::int64_t> SettingsUserDefaults::integerForKey(const QString& key) const {
    bool read = false;
    const std::optional<QString> value = m_file->value(key);
    const qlonglong number = value ? value->toLongLong(&read) : 0;
    return read ? std::optional<std::int64_t>(number) : std::nullopt;
}

std::optional<double> SettingsUserDefaults::doubleForKey(const QString& key) const {
    bool read = false;
    const std::optional<QString> value = m_file->value(key);
    const double number = value ? value->toDouble(&read) : 0;
    return read && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

std::optional<QString> SettingsUserDefaults::stringForKey(const QString& key) const {
    return m_file->value(key);
}

void SettingsUserDefaults::setBool(const QString& key, bool value) {
    set(key, value ? u"true"_s : u"false"_s);
}

void SettingsUserDefaults::setInteger(const QString& key, std::int64_t value) {
    set(key, QString::number(value));
}

void SettingsUserDefaults::setDouble(const QString& key, double value) {
    set(key, QString::number(value, 'g', QLocale::FloatingPointShortest));
}

void SettingsUserDefaults::setString(const QString& key, const QString& value) {
    set(key, value);
}

void SettingsUserDefaults::removeKey(const QString& key) {
    set(key, std::nullopt);
}

bool SettingsUserDefaults::synchronize() {
    return m_file->write();
}

void SettingsUserDefaults::set(const QString& key, const std::optional<QString>& value) {
    if (m_file->set(key, value) && m_writeQueue) {
        m_writeQueue->asyncAfter(kWriteDelay, [file = std::weak_ptr(m_file)] {
            if (const std::shared_ptr<File> alive = file.lock()) {
                alive->write();
            }
        });
    }
}

} // namespace guide
