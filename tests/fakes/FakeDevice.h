#pragma once

#include "platform/memory/FixedDevice.h"

namespace guide {

/// By default a tablet in a zone whose daylight saving time is half an hour.
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
