#pragma once

#include "platform/Device.h"

namespace guide {

/// A device with settable properties; a phone by default.
class FixedDevice : public Device {
  public:
    QTimeZone timeZone() const override { return zone; }
    QLocale locale() const override { return deviceLocale; }
    UserInterfaceIdiom userInterfaceIdiom() const override { return idiom; }
    QSizeF screenSize() const override { return size; }
    double screenScale() const override { return scale; }
    std::uint64_t physicalMemory() const override { return memory; }

    QTimeZone zone;
    QLocale deviceLocale;
    UserInterfaceIdiom idiom = UserInterfaceIdiom::Phone;
    QSizeF size{390, 844};
    double scale = 1;
    std::uint64_t memory = std::uint64_t{4} << 30;
};

} // namespace guide
