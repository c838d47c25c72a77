#include "screens/options/SilentSpan.h"

#include "screens/Localized.h"
#include "screens/shell/ScreenEnvironment.h"
#include "text/display/ShortTimeFormat.h"

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMinutesOfDay = 24 * 60;

} // namespace

QTime timeOfMinute(int minute) {
    return {minute / 60 % 24, minute % 60};
}

QString minuteText(int minute, const QLocale& locale) {
    return shortTime(timeOfMinute(minute), locale);
}

bool isAllSilent(const SilentPeriod& period) {
    return period.from == period.to || (period.from > period.to && !period.acrossMidnight);
}

QString allSilentText(const SilentPeriod& period) {
    return period.from == period.to
               ? Localized::tr(
                     "All recurring alerts are silent, all day: the time span begins and ends at the "
                     "same time.")
               : Localized::tr("All recurring alerts are silent, all day: the time span crosses midnight.");
}

DayBarRow silentBar(const SilentPeriod& period, const QLocale& locale) {
    DayBarRow bar;
    if (isAllSilent(period)) {
        bar.parts = {{0, kMinutesOfDay}};
        bar.description = Localized::tr("Silent all day");
    } else {
        if (period.from < period.to) {
            bar.parts = {{period.from, period.to}};
        } else {
            bar.parts = {{0, period.to}, {period.from, kMinutesOfDay}};
            std::erase(bar.parts, DayBarRow::Part{});
        }
        bar.description = Localized::tr("Silent from %1 to %2")
                              .arg(minuteText(period.from, locale), minuteText(period.to, locale));
    }
    for (int hour = 0; hour <= 24; hour += 6) {
        bar.scale.push_back(minuteText(hour * 60, locale));
    }
    return bar;
}

void applySilentHours(const ScreenEnvironment& environment) {
    environment.alarmSynchronisation.resynchronize();
    environment.updates.checkAndUpdateAllChannels();
}

} // namespace guide
