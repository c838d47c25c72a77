#include "sources/SourceDay.h"

#include "sources/SourceId.h"

#include <QDateTime>

#include <algorithm>

namespace guide {

Moment startOfSourceDay(Moment now, const QTimeZone& deviceZone) {
    // The other countries of the sources share the first zone.
    static const QTimeZone kCentral = timeZoneForServer(u"cz").value_or(QTimeZone::utc());
    static const QTimeZone kEastern = timeZoneForServer(u"ro").value_or(QTimeZone::utc());
    Moment began = Moment::min();
    for (const QTimeZone& zone : {deviceZone, kCentral, kEastern}) {
        const QDate today = QDateTime::fromMSecsSinceEpoch(now.time_since_epoch().count(), zone).date();
        const Moment midnight(std::chrono::milliseconds(today.startOfDay(zone).toMSecsSinceEpoch()));
        began = std::max(began, midnight);
    }
    return began;
}

} // namespace guide
