#pragma once

#include "alarms/SilentHours.h"
#include "screens/kit/Row.h"

#include <QLocale>
#include <QString>
#include <QTime>

namespace guide {

struct ScreenEnvironment;

/// The minute of the day; 1440 is the end of the day, which clocks show as 0:00.
QTime timeOfMinute(int minute);
/// As a short time.
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
