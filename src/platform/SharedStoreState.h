#pragma once

#include "platform/Moment.h"

#include <QString>

#include <functional>
#include <optional>

namespace guide {

enum class SharedStoreConnection {
    Connected,
    /// Not reachable now. Changes are kept and sent later.
    Offline,
    /// Reachable, but it refuses this device or one of its values.
    Refused,
};

/// What a store that several devices share knows of itself and of the other devices.
struct SharedStoreState {
    SharedStoreConnection connection = SharedStoreConnection::Offline;
    /// Why changes are not shared now: one English sentence, without names, addresses and passwords. Empty
    /// while they are.
    QString reason = {};
    /// Whether what others stored has been read, once at least.
    bool isRead = false;
    /// When another device was last seen, by the clock of this one.
    std::optional<Moment> lastSeen = {};
    /// The name of the other device that wrote last; empty when none has.
    QString device = {};

    friend bool operator==(const SharedStoreState&, const SharedStoreState&) = default;
};

/// A store that several devices share.
class SharedStore {
  public:
    virtual ~SharedStore() = default;
    /// Any thread.
    virtual SharedStoreState sharedState() const = 0;
    /// Sets what is called on the main thread after the state has changed; null ends that. Main thread.
    virtual void setStateObserver(std::function<void()> changed) = 0;
};

} // namespace guide
