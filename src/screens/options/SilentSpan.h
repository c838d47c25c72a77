#pragma once

#include "alarms/SilentHours.h"
#include "screens/kit/Row.h"

#include <QLocale>
#include <QString>

namespace guide {

struct ScreenEnvironment;

/// The minute of the day as a short time; 1440 is the end of the day.
QString minuteText(int minute, const QLocale& locale);

/// Whether the period refuses every minute of the day.
bool isAllSilent(const SilentPeriod& period);
/// Why it does.
QString allSilentText(const SilentPeriod& period);

/// The silent parts of the day.
DayBarRow silentBar(const SilentPeriod& period, const QLocale& locale);

/// Lets a change of the silent hours reach the alarms.
void applySilentHours(const ScreenEnvironment& environment);

} // namespace guide
