#include "screens/TimeTexts.h"

#include "screens/Localized.h"

namespace guide {

QString durationText(std::chrono::minutes duration) {
    const auto hours = std::chrono::floor<std::chrono::hours>(duration);
    const auto minutes = static_cast<int>((duration - hours).count());
    if (hours.count() == 0) {
        return Localized::tr("%1 min").arg(minutes);
    }
    return minutes == 0 ? Localized::tr("%1 h").arg(hours.count())
                        : Localized::tr("%1 h %2 min").arg(hours.count()).arg(minutes);
}

QString nearDayText(const QDate& day, const QDate& today) {
    switch (today.daysTo(day)) {
    case -1:
        return Localized::tr("Yesterday");
    case 0:
        return Localized::tr("Today");
    case 1:
        return Localized::tr("Tomorrow");
    default:
        return {};
    }
}

} // namespace guide
