#pragma once

#include <QLocale>
#include <QSizeF>
#include <QTimeZone>

#include <cstdint>

namespace guide {

enum class UserInterfaceIdiom { Phone = 0, Tablet = 1 };

/// Facts of the device. May be called from any thread; zone and locale may change while the program runs,
/// which arrives as a significant change of time.
class Device {
  public:
    virtual ~Device() = default;
    virtual QTimeZone timeZone() const = 0;
    virtual QLocale locale() const = 0;
    virtual UserInterfaceIdiom userInterfaceIdiom() const = 0;
    /// The main screen in points, and pixels a point.
    virtual QSizeF screenSize() const = 0;
    virtual double screenScale() const = 0;
    /// Bytes.
    virtual std::uint64_t physicalMemory() const = 0;
};

} // namespace guide
