#pragma once

#include "platform/Device.h"

namespace guide::probe {

/// A device with the zone and the locale that the command line asks for, and a phone's screen.
class ProbeDevice : public Device {
  public:
    ProbeDevice(const QTimeZone& zone, const QLocale& locale)
        : m_zone(zone)
        , m_locale(locale) {}

    QTimeZone timeZone() const override { return m_zone; }
    QLocale locale() const override { return m_locale; }
    UserInterfaceIdiom userInterfaceIdiom() const override { return UserInterfaceIdiom::Phone; }
    QSizeF screenSize() const override { return {390, 844}; }
    double screenScale() const override { return 1; }
    std::uint64_t physicalMemory() const override;

  private:
    QTimeZone m_zone;
    QLocale m_locale;
};

/// The locale of a name as systems write it: "sr_RS@cyrillic" names its script behind the "@".
QLocale localeNamed(const QString& name);

} // namespace guide::probe
