#pragma once

#include "platform/KeyValueStore.h"
#include "platform/queues/DispatchQueue.h"

#include <memory>

namespace guide {

class FolderWatcher;

/// A folder with one small JSON file per key, {"key": …, "value": …}, each replaced atomically. A file-sync
/// tool may replicate the folder between devices. Plain values are plain JSON; a value that JSON
/// cannot express is an object with one member: {"bytes": hexadecimal digits}, {"date": ISO 8601},
/// {"double": text}.
///
/// Files are read again when they change. A file that does not hold a whole value, because it is damaged or
/// still being written, counts as unchanged: the value last read from it is kept. Files whose
/// name is not fileName(key) of the key inside (temporary files, copies of sync tools) are ignored.
class FolderKeyValueStore final : public KeyValueStore {
  public:
    FolderKeyValueStore(const QString& folder, DispatchQueues& queues);
    ~FolderKeyValueStore() override;

    std::optional<QCborValue> valueForKey(const QString& key) const override;
    bool setValue(const QString& key, const QCborValue& value) override;
    void removeKey(const QString& key) override;
    /// Changes are announced together, shortly after the first one. While the folder is missing, nothing
    /// is announced; when it reappears, the keys whose values differ are.
    void setObserver(KeyValueStoreObserver* observer) override;

    /// The file of a key: letters, digits, "-" and "_" as they are, any other byte of its UTF-8 as "%" and
    /// two digits; long names are truncated and end in "~" and a digest; that of the empty key is "~".
    static QString fileName(const QString& key);

  private:
    class Files;
    struct Observation;

    const QString m_folder;
    DispatchQueues& m_queues;
    const std::shared_ptr<DispatchQueue> m_queue;
    const std::shared_ptr<Files> m_files;
    std::shared_ptr<Observation> m_observation;
};

} // namespace guide
