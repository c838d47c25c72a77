#pragma once

#include "platform/KeyValueStore.h"
#include "platform/SharedStoreState.h"
#include "platform/queues/DispatchQueue.h"

#include <functional>
#include <memory>

namespace guide {

class FolderWatcher;

/// A folder with one small JSON file per key, {"key": …, "value": …, "stamp": …}, each replaced atomically. A
/// file-sync tool may replicate the folder between devices. Plain values are plain JSON; a value that JSON
/// cannot express is an object with one member: {"bytes": hexadecimal digits}, {"date": ISO 8601},
/// {"double": text}.
///
/// Files are read again when they change. A file that does not hold a whole value, because it is damaged or
/// still being written, counts as unchanged: the value last read from it is kept.
///
/// When two devices wrote a key at the same time, a sync tool keeps one file and puts the other beside it
/// under a name of its own. Such a conflict copy is recognised by its name and the key inside. The newer one
/// by its stamp becomes the file of the key, byte by byte, so that all devices come to the same result; the
/// copy is deleted. Other files whose name is not fileName(key) of the key inside are ignored.
class FolderKeyValueStore final : public KeyValueStore, public SharedStore {
  public:
    /// `device` identifies this one: a name for people, "-" and something unique.
    FolderKeyValueStore(const QString& folder, const QString& device, DispatchQueues& queues);
    ~FolderKeyValueStore() override;

    std::optional<QCborValue> valueForKey(const QString& key) const override;
    bool setValue(const QString& key, const QCborValue& value) override;
    void removeKey(const QString& key) override;
    /// Changes are announced together, shortly after the first one. While the folder is missing, the values
    /// last read remain, none can be set, and nothing is announced; when it reappears, the keys whose values
    /// differ or could not be set are.
    void setObserver(KeyValueStoreObserver* observer) override;

    /// As far as the files have been read: the other device that stored a value last, and when, by its clock.
    SharedStoreState sharedState() const override;
    void setStateObserver(std::function<void()> changed) override;

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
    const std::shared_ptr<std::function<void()>> m_stateChanged = std::make_shared<std::function<void()>>();
};

} // namespace guide
