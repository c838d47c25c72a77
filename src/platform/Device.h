#pragma once

#include <QLocale>
#include <QSizeF>
#include <QTimeZone>

#include <cstdint>

namespace guide {

enum class UserInterfaceIdiom { Phone = 0, Tablet = 1 };

/// Facts about the device. May be called from any thread. Zone and locale may change while the program runs;
/// that is reported as a significant time change.
class Device {
  public:
    virtual ~Device() = default;
    virtual QTimeZone timeZone() const = 0;
    virtual QLocale locale() const = 0;
    virtual UserInterfaceIdiom userInterfaceIdiom() const = 0;
    /// Size of the main screen in points; the scale is in pixels per point.
    virtual QSizeF screenSize() const = 0;
    virtual double screenScale() const = 0;
    /// In bytes.
    virtual std::uint64_t physicalMemory() const = 0;
};

} // namespace guide
