#include "screens/channels/ScheduleAge.h"

#include "screens/Localized.h"

#include <chrono>

namespace guide {

QString scheduleAgeText(Moment loaded, Moment now) {
    using namespace std::chrono;
    const auto age = now - loaded;
    if (age < minutes(1)) {
        return Localized::tr("updated just now");
    }
    if (age < hours(1)) {
        return Localized::tr("updated %n min ago", nullptr, static_cast<int>(age / minutes(1)));
    }
    if (age < days(1)) {
        return Localized::tr("updated %n hour(s) ago", nullptr, static_cast<int>(age / hours(1)));
    }
    return Localized::tr("updated %n day(s) ago", nullptr, static_cast<int>(age / days(1)));
}

} // namespace guide
