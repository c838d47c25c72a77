#include "agent/RingText.h"

#include "text/display/Localized.h"

#include <QDateTime>
#include <QStringList>

namespace guide {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

QDateTime localTime(Moment moment, const QTimeZone& zone) {
    return QDateTime::fromMSecsSinceEpoch(moment.time_since_epoch().count(), zone);
}

/// Empty for a show that is more than two hours away: its time says more.
QString distanceText(Moment start, Moment now) {
    const auto minutes = std::chrono::round<std::chrono::minutes>(start - now).count();
    if (minutes > 120) {
        return {};
    }
    if (minutes > 0) {
        return Localized::tr("Starts in %n min", nullptr, static_cast<int>(minutes));
    }
    return minutes == 0 ? Localized::tr("Starts now")
                        : Localized::tr("Began %n min ago", nullptr, static_cast<int>(-minutes));
}

} // namespace

QString ringText(const RingEvent& event, Moment now, const QLocale& locale, const QTimeZone& zone) {
    const QDateTime start = localTime(event.start, zone);
    QString when = locale.toString(start.time(), QLocale::ShortFormat);
    if (start.date() != localTime(now, zone).date()) {
        when = locale.toString(start.date(), u"ddd"_s) + u' ' + when;
    }
    QStringList parts{when, event.channel, distanceText(event.start, now)};
    parts.removeAll(QString());
    return parts.join(u" · "_s);
}

} // namespace guide
