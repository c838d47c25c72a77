#include "screens/DaySections.h"

#include "store/LocalTime.h"

#include <QHash>

namespace guide {

std::vector<DaySection> daySections(std::span<const ShowItem> shows, const QLocale& locale,
                                    const QTimeZone& zone) {
    std::vector<DaySection> days;
    QHash<QDate, std::size_t> placeOfDay;
    LocalTime local(zone);
    for (const ShowItem& show : shows) {
        if (!show.entry()->dateTime()) {
            continue;
        }
        const QDate day = local.dateAt(*show.entry()->dateTime());
        const auto known = placeOfDay.constFind(day);
        if (known != placeOfDay.cend()) {
            days[*known].shows.push_back(show);
        } else {
            placeOfDay.insert(day, days.size());
            days.push_back({day.toString(Qt::ISODate), locale.toString(day, QLocale::LongFormat), {show}});
        }
    }
    return days;
}

} // namespace guide
