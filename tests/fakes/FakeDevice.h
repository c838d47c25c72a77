#pragma once

#include "platform/memory/FixedDevice.h"

namespace guide {

/// A tablet in a zone of half-hour summer time, until the test changes it.
class FakeDevice final : public FixedDevice {
  public:
    FakeDevice() {
        zone = QTimeZone("Australia/Lord_Howe");
        deviceLocale = QLocale(QLocale::Slovenian, QLocale::Slovenia);
        idiom = UserInterfaceIdiom::Tablet;
        size = {1024, 768};
        scale = 2;
    }
};

} // namespace guide
