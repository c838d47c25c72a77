#pragma once

#include "platform/memory/FixedDevice.h"

namespace guide {

/// By default a tablet in a zone with half an hour of daylight saving.
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
