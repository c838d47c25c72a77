#pragma once

#include "platform/Device.h"

namespace guide {

/// By default a tablet in a zone with half an hour of daylight saving.
class FakeDevice final : public Device {
  public:
    QTimeZone timeZone() const override { return zone; }
    QLocale locale() const override { return deviceLocale; }
    UserInterfaceIdiom userInterfaceIdiom() const override { return idiom; }
    QSizeF screenSize() const override { return size; }
    double screenScale() const override { return scale; }
    std::uint64_t physicalMemory() const override { return memory; }

    QTimeZone zone{"Australia/Lord_Howe"};
    QLocale deviceLocale{QLocale::Slovenian, QLocale::Slovenia};
    UserInterfaceIdiom idiom = UserInterfaceIdiom::Tablet;
    QSizeF size{1024, 768};
    double scale = 2.0;
    std::uint64_t memory = std::uint64_t{4} << 30;
};

} // namespace guide
