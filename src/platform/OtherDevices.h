#pragma once

#include "platform/Moment.h"

#include <QString>

#include <optional>

namespace guide {

/// What a key-value store knows of the user's other devices. Any thread.
class OtherDevices {
  public:
    struct Device {
        QString name;
        /// When it stored a value last, by its own clock.
        Moment stored;
    };

    virtual ~OtherDevices() = default;
    /// The one that stored a value last; nothing when no other device has stored any of the values.
    virtual std::optional<Device> lastSeen() const = 0;
};

} // namespace guide
