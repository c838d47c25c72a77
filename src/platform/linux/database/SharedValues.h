#pragma once

#include "platform/Moment.h"

#include <QByteArray>
#include <QCborValue>
#include <QHash>
#include <QString>
#include <QStringList>
#include <QUuid>

#include <chrono>
#include <mutex>
#include <optional>
#include <vector>

namespace guide {

/// What a device knows of values that are in a database: the last ones it received, and its own changes that
/// were not sent yet. Kept in a file. Any thread; nothing waits for more than that file.
class SharedValues {
  public:
    using Bytes = std::optional<QByteArray>;

    /// A change to be sent; without bytes, a removal. Each change has an id, with which it may be sent again.
    struct Change {
        QString key;
        Bytes bytes;
        QUuid write;
    };
    /// A key that the database has, and the write that made its value.
    struct StoredKey {
        QString key;
        QUuid write;
    };
    /// Another device that uses the values.
    struct Others {
        std::optional<Moment> lastSeen;
        QString lastWriter;

        friend bool operator==(const Others&, const Others&) = default;
    };
    enum class SetOutcome { Changed, Same, Refused };

    /// A file that does not exist, is damaged or is of another address counts as empty.
    SharedValues(QString path, QString address);

    /// Names this device in the database.
    const QUuid& device() const { return m_device; }
    Others others() const;
    void setOthers(const Others& others);

    std::optional<QCborValue> value(const QString& key) const;
    /// Refuses what cannot be expressed or is larger than `mostBytes`.
    SetOutcome set(const QString& key, const QCborValue& value, qsizetype mostBytes);
    /// False when there is none.
    bool remove(const QString& key);

    /// Gives up all values, and with them the changes that have not been sent.
    void clear();
    /// In no particular order, without those that are held back.
    std::vector<Change> changesToSend() const;
    /// The database has the change; `stored` is the write that made the value which it has now.
    void sent(const Change& change, const QUuid& stored);
    /// The database refused the change, which remains the value of this device.
    void holdBack(const Change& change, std::chrono::steady_clock::time_point until);
    bool holdsBack() const;
    void sendAll();

    /// Compares with what the database has. `toRead` are the keys whose values must be read; the result are
    /// those that other devices removed.
    QStringList compare(const std::vector<StoredKey>& stored, QStringList& toRead);
    /// A value that was read. Whether it replaced another one.
    bool receive(const StoredKey& stored, const QByteArray& bytes);

    /// Whether something changed since the last save().
    bool needsSaving() const;
    void save();

  private:
    struct Entry {
        /// Without bytes, the key is removed and the database does not know yet.
        Bytes bytes;
        std::optional<QCborValue> value;
        /// The write that made the value in the database, as far as known.
        QUuid known;
        /// The change that is to be sent.
        QUuid pending;
        std::chrono::steady_clock::time_point heldUntil;
    };

    void load();

    const QString m_path;
    const QString m_address;
    QUuid m_device = QUuid::createUuid();

    mutable std::mutex m_guard;
    // guarded
    QHash<QString, Entry> m_entries;
    Others m_others;
    /// Without a file, because of the name of this device.
    bool m_needsSaving = true;
    std::mutex m_fileGuard;
};

} // namespace guide
