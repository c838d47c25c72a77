#pragma once

#include "platform/linux/FileStamp.h"
#include "platform/linux/KeyValueJson.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <QUuid>

#include <chrono>
#include <cstdint>
#include <optional>

namespace guide {

/// A folder with one small JSON file per key, {"key": …, "value": …, "stamp": …}, each replaced atomically. A
/// file-sync tool may replicate the folder between devices. Plain values are plain JSON; a value that JSON
/// cannot express is an object with one member: {"bytes": hexadecimal digits}, {"date": ISO 8601},
/// {"double": text}.
///
/// A file that does not hold a whole value, because it is damaged or still being written, counts as
/// unchanged: the value last read from it is kept.
///
/// When two devices wrote a key at the same time, a sync tool keeps one file and puts the other beside it
/// under a name of its own. Such a conflict copy is recognised by its name and the key inside. The newer one
/// by its stamp becomes the file of the key, byte by byte, so that all devices come to the same result; the
/// copy is deleted. Other files whose name is not fileName(key) of the key inside are ignored.
///
/// One thread at a time. Everything waits for the disk.
class KeyValueFiles {
  public:
    struct File {
        FileStamp state;
        /// In this state it holds the value.
        bool intact = false;
        QString key = {};
        std::optional<QCborValue> value = {};
        KeyValueStamp stamp = {};
        /// Differs between two contents; null for what was written here and not read yet.
        QUuid content = {};

        /// The name of the device may have been another one.
        bool isFromAnotherThan(const QString& device) const {
            const auto digits = [](QStringView of) { return of.sliced(of.lastIndexOf(u'-') + 1); };
            return !stamp.device.isEmpty() && digits(stamp.device) != digits(device);
        }
        /// The name, for people, of the device that stored it.
        QString writer() const { return stamp.device.left(stamp.device.lastIndexOf(u'-')); }
    };

    static constexpr qsizetype kLargestFile = 16 << 20;

    /// `device` identifies this one: a name for people, "-" and something unique.
    KeyValueFiles(QString folder, QString device)
        : m_folder(std::move(folder))
        , m_device(std::move(device)) {}

    /// The file of a key: letters, digits, "-" and "_" as they are, any other byte of its UTF-8 as "%" and
    /// two digits; long names are truncated and end in "~" and a digest; that of the empty key is "~".
    static QString fileName(const QString& key);

    const QString& folder() const { return m_folder; }
    const QString& device() const { return m_device; }
    void setDevice(const QString& device) { m_device = device; }

    /// Reads the files that have changed, and resolves conflict copies. False when the folder is missing or
    /// cannot be read; what was read before then remains. An empty folder that cannot be written counts as
    /// missing: disks are mounted on such folders.
    bool list();
    /// By name; those that have never held a value too.
    const QHash<QString, File>& files() const { return m_files; }
    bool isWritable() const;

    /// Reads the file of the key again if it has changed.
    File read(const QString& key) { return readFile(fileName(key)); }
    /// The counter of the next stamp: greater than that of every stamp seen.
    std::int64_t nextCounter() const;
    /// Writes nothing when the file holds an equal value. False when that failed.
    bool write(const QString& key, const QCborValue& value);
    /// With the conflict copies of the key, and with what interrupted writes left in the folder. False when
    /// something remains.
    bool remove(const QString& key);

  private:
    QString path(const QString& name) const { return m_folder + u'/' + name; }
    std::optional<QStringList> names() const;
    /// Removes what replacements left that ended halfway, here or on another device, if it is that old.
    void removeLeftovers(std::chrono::seconds age) const;
    bool isMissing() const;
    void resolve(const QString& copyName);
    File readFile(const QString& name);

    const QString m_folder;
    QString m_device;
    /// Whether old leftovers have been removed.
    bool m_isTidy = false;
    /// The largest of all stamps seen.
    std::int64_t m_counter = 0;
    QHash<QString, File> m_files;
};

} // namespace guide
