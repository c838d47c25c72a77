#pragma once

#include "platform/memory/FixedDevice.h"

namespace guide::probe {

/// A device with the zone and the locale that the command line asks for, a phone's screen and the memory of
/// this machine.
FixedDevice probeDevice(const QTimeZone& zone, const QLocale& locale);

/// The locale of a POSIX name, in which "@" introduces the script, as in "sr_RS@cyrillic".
QLocale localeNamed(const QString& name);

} // namespace guide::probe
