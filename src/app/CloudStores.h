#pragma once

#include "platform/KeyValueStore.h"
#include "platform/OtherDevices.h"
#include "platform/RecordStore.h"
#include "platform/UserDefaults.h"
#include "platform/files/Folders.h"
#include "platform/queues/DispatchQueue.h"

#include <memory>

namespace guide {

/// The stores that the guide shares with the user's other devices and with other users.
struct CloudStores {
    std::unique_ptr<KeyValueStore> keyValueStore;
    /// Null when no counters are shared.
    std::unique_ptr<RecordStore> records;
    /// Part of the key-value store; null when that does not know them.
    const OtherDevices* otherDevices = nullptr;
};

/// Those that the user has chosen: without a choice the folder of the profile.
CloudStores cloudStoresFor(const Folders& folders, UserDefaults& userDefaults, DispatchQueues& queues);

} // namespace guide
