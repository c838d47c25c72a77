#pragma once

#include "platform/SharedStoreState.h"
#include "platform/queues/MainBlock.h"

#include <QString>

#include <functional>
#include <memory>

namespace guide {

/// Where the user's data is, for the other devices.
struct SharedPlace {
    enum class Kind {
        /// Nowhere but in the profile.
        ThisDevice,
        Folder,
        Database,
    };

    Kind kind = Kind::ThisDevice;
    /// The path of the folder, or the address of the database without the password.
    QString address = {};
    SharedStoreState state = {};
    /// What other devices call this one.
    QString deviceName = {};
};

/// The answer of SharedPlaceActions::choose() for a folder that createFolder() could create.
inline constexpr const char* kFolderIsMissing = "There is no such folder yet.";

/// What a user can do about it. Main queue.
class SharedPlaceActions {
  public:
    virtual ~SharedPlaceActions() = default;

    virtual SharedPlace place() const = 0;
    /// Moves to the folder with the path, the database with the address, or, without either, back to this
    /// device. What is there already takes the place of what this device has; the rest is stored there. Where
    /// this device shares already, a password in the address is tried and kept.
    /// Answers with an English sentence that says why that is impossible; empty when it is done.
    virtual void choose(const QString& address, MainBlock<QString> mainBlock) = 0;
    /// Makes the folder, in one that exists. Answers as choose() does.
    virtual void createFolder(const QString& path, MainBlock<QString> mainBlock) = 0;
    /// From the next change on; an empty name is that of the machine.
    virtual void setDeviceName(const QString& name) = 0;
    /// Connects again now where the place cannot be reached, such as when a network appears.
    virtual void retryNow() = 0;
    /// What is called after the place or its state has changed, as long as the owner exists. The latest call
    /// counts.
    virtual void setObserver(std::weak_ptr<const void> owner, std::function<void()> changed) = 0;
};

} // namespace guide
