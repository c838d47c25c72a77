#pragma once

#include "platform/KeyValueStore.h"

#include <QHash>

#include <cstdint>
#include <mutex>

namespace guide {

/// A folder with one small JSON file a key, {"key": …, "value": …}, each replaced whole: where a file-sync
/// tool replicates the folder, devices follow each other. Plain values are plain JSON; what JSON cannot say
/// is an object of one member: {"bytes": hexadecimal digits}, {"date": ISO 8601}, {"double": text}. A file
/// that was replaced from outside is read anew, a damaged one counts as absent.
class FolderKeyValueStore final : public KeyValueStore {
  public:
    explicit FolderKeyValueStore(const QString& folder)
        : m_folder(folder) {}

    std::optional<QCborValue> valueForKey(const QString& key) const override;
    bool setValue(const QString& key, const QCborValue& value) override;
    void removeKey(const QString& key) override;

    /// The file of a key: letters, digits, "-" and "_" as they are, any other byte of its UTF-8 as "%" and
    /// two digits; long names are cut and end in "~" and a digest, the empty one is "~".
    static QString fileName(const QString& key);

  private:
    /// What tells one state of a file from the next.
    struct Stamp {
        std::int64_t modifiedSeconds = 0;
        std::int64_t modifiedNanoseconds = 0;
        std::int64_t size = -1;
        std::uint64_t inode = 0;

        friend bool operator==(const Stamp&, const Stamp&) = default;
    };
    struct Known {
        Stamp stamp;
        std::optional<QCborValue> value;
    };

    QString path(const QString& key) const;
    static std::optional<Stamp> stampOf(const QString& path);

    const QString m_folder;
    mutable std::mutex m_mutex;
    mutable QHash<QString, Known> m_known;
};

} // namespace guide
