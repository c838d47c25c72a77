#pragma once

#include "platform/Clock.h"
#include "platform/KeyValueStore.h"
#include "platform/RecordStore.h"
#include "platform/SecretStore.h"
#include "platform/SharedStoreState.h"
#include "platform/linux/database/DatabaseAddress.h"
#include "platform/queues/DispatchQueue.h"

#include <chrono>
#include <functional>
#include <memory>

namespace guide {

class WakeUp;

/// Stores that the devices of a user share.
struct SharedStores {
    std::unique_ptr<KeyValueStore> keyValueStore;
    std::unique_ptr<RecordStore> recordStore;
    /// The state of the store above.
    SharedStore* state = nullptr;
    /// Connects again now instead of after a delay, such as when a network appears. Any thread.
    std::function<void()> retryNow;
    /// Another password, from the next connection on. Any thread.
    std::function<void(const QString& password)> setPassword;
    /// What other devices call this one from now on. Any thread.
    std::function<void(const QString& name)> setDeviceName;
    /// Leaves nothing of the values and counters in the folder, and no file that was made for stores that
    /// were not used after all. Any thread.
    std::function<void(bool wasUsed)> forget;
};

struct SharedStoresOptions {
    /// Where the last values and what is still to be sent are kept, each address in files of its own.
    QString folder;
    /// What other devices call this one.
    QString deviceName;
    /// Keeps nothing of an earlier use: the database is joined.
    bool joins = false;
    std::chrono::milliseconds firstRetry{500};
    std::chrono::milliseconds longestRetry{60'000};
};

/// The stores in the database at the address (see DatabaseAddress). The password is the one of the address,
/// if it has one, or the one that keepDatabasePassword() kept. Connects in the background; until then, and
/// whenever the database cannot be reached, the stores have the last values and keep changes to be sent. The
/// clock, the secrets and the queues must outlive the stores; the secrets also the queues. Main thread.
/// Without stores when the address cannot be used; `why` then has a sentence.
SharedStores sharedStoresFor(const QString& address, const SharedStoresOptions& options, const Clock& clock,
                             SecretStore& secrets, DispatchQueues& queues, QString& why);

/// Moves the password of an address that a user entered to the secrets. What is returned can be kept in
/// settings and shown. Empty when the address cannot be used or the password cannot be kept; `why` then has a
/// sentence. May block; not on the main thread.
std::optional<QString> keepDatabasePassword(const QString& address, SecretStore& secrets, QString& why);

/// Whether the database lets the user in with the password of the address; otherwise `why` has a sentence.
/// Blocks until then, or until `stop` is woken.
bool acceptsDatabasePassword(const DatabaseAddress& address, const WakeUp& stop, QString& why);

} // namespace guide
