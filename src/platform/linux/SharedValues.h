#pragma once

#include "platform/Moment.h"
#include "platform/queues/DispatchQueue.h"

#include <QByteArray>
#include <QCborValue>
#include <QHash>
#include <QString>
#include <QStringList>
#include <QUuid>

#include <atomic>
#include <chrono>
#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

namespace guide {

/// What a device knows of values that it shares with others in a place that may be out of reach: the last
/// ones it received, and its own changes that were not sent yet. Kept in a file. Any thread; only load and
/// save wait for that file.
class SharedValues : public std::enable_shared_from_this<SharedValues> {
  public:
    using Bytes = std::optional<QByteArray>;

    /// A change to be sent; without bytes, a removal. Each change has an id, with which it may be sent again.
    struct Change {
        QString key;
        Bytes bytes;
        QUuid write;
        /// See attempt().
        std::int64_t attempt = 0;
    };
    /// A key that the place has, and the write that made its value; null when the value cannot be read now.
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

    /// A file that does not exist, is damaged or is of another address counts as empty. The queue is serial
    /// and saves.
    SharedValues(QString path, QString address, std::shared_ptr<DispatchQueue> saver);

    /// The address for which a file was written; empty when it cannot be read. Waits for the disk.
    static QString addressIn(const QString& path);

    /// Names this device.
    const QUuid& device() const { return m_device; }
    Others others() const;
    void setOthers(const Others& others);

    std::optional<QCborValue> value(const QString& key) const;
    /// The file system of the place when it was last read; 0 when that is not known.
    std::uint64_t volume() const;
    void setVolume(std::uint64_t volume);

    /// Whether the value gives way to the one that the place has, if it turns out to have one.
    enum class Yields { No, Yes };
    /// Refuses what cannot be expressed or is larger than `mostBytes`.
    SetOutcome set(const QString& key, const QCborValue& value, qsizetype mostBytes,
                   Yields yields = Yields::No);
    /// False when there is none.
    bool remove(const QString& key);
    /// The same, also when nothing is known of the key: there may be something that cannot be read.
    void removeAnyway(const QString& key);
    /// Those with a value.
    QStringList keys() const;

    /// Gives up all values, and with them the changes that have not been sent.
    void clear();
    /// In no particular order, without those that are held back and those that yield until compare() has
    /// shown that the place has no value of the key.
    std::vector<Change> changesToSend() const;
    /// The change is about to be sent with this number, which comes back with it if it is sent again; 0 when
    /// that has failed.
    void attempt(const Change& change, std::int64_t number);
    /// The place has the change; `stored` is the write that made the value which it has now.
    void sent(const Change& change, const QUuid& stored);
    /// The place refused the change, which remains the value of this device.
    void holdBack(const Change& change, std::chrono::steady_clock::time_point until);
    bool holdsBack() const;
    void sendAll();

    /// Compares with what the place has. `toRead` are the keys whose values must be read; the result are
    /// those that other devices removed.
    QStringList compare(const std::vector<StoredKey>& stored, QStringList& toRead);
    /// A value that was read. Whether it replaced another one.
    bool receive(const StoredKey& stored, const QByteArray& bytes);

    /// Blocks until the file has everything; false when it cannot be written.
    bool save();
    enum class Keeps { Nothing, Device };
    /// Gives up everything, also the file, or all in it but the name of this device. It is not written again.
    void forget(Keeps keeps);
    /// Saves soon, on the queue, if something changed since the last time.
    void saveSoon();

  private:
    struct Entry {
        /// Without bytes, the key is removed and the place does not know yet.
        Bytes bytes;
        std::optional<QCborValue> value;
        /// The write that made the value in the place, as far as known.
        QUuid known;
        /// The change that is to be sent.
        QUuid pending;
        std::int64_t attempt = 0;
        bool yields = false;
        std::chrono::steady_clock::time_point heldUntil;
    };

    void load();
    static void change(Entry& entry);

    const std::shared_ptr<DispatchQueue> m_saver;
    std::atomic<bool> m_isSaving = false;
    const QString m_path;
    const QString m_address;
    QUuid m_device = QUuid::createUuid();

    mutable std::mutex m_guard;
    // guarded
    QHash<QString, Entry> m_entries;
    Others m_others;
    std::uint64_t m_volume = 0;
    /// Without a file, because of the name of this device.
    bool m_needsSaving = true;
    std::mutex m_fileGuard;
    bool m_isForgotten = false; // guarded by the one above
};

} // namespace guide
