#include "screens/ShowRowText.h"

#include "text/display/ShortTimeFormat.h"

#include <QDateTime>

namespace guide {

ShowRowText::ShowRowText(const QLocale& locale, const QTimeZone& zone)
    : m_locale(locale)
    , m_zone(zone)
    , m_timeFormat(rowTimeFormat(locale)) {}

ShowRow ShowRowText::humanWithColor(const TVEntry& entry, ColorRole color, bool) const {
    ShowRow row = humanCondensedWithColor(entry, color, false);
    row.endTime = shortTime(entry.endDateTime());
    return row;
}

ShowRow ShowRowText::humanCondensedWithColor(const TVEntry& entry, ColorRole color, bool popular) const {
    ShowRow row;
    row.startTime = shortTime(entry.dateTime());
    row.title = entry.title().value_or(QString());
    row.timeColor = color;
    row.popular = popular;
    return row;
}

QString ShowRowText::shortTime(const std::optional<Moment>& moment) const {
    if (!moment) {
        return {};
    }
    const qint64 milliseconds = moment->time_since_epoch().count();
    return m_locale.toString(QDateTime::fromMSecsSinceEpoch(milliseconds, m_zone), m_timeFormat);
}

QString ShowRowText::dayUnlessToday(const QDate& day, const QDate& today) const {
    const qint64 ahead = today.daysTo(day);
    if (ahead == 0) {
        return {};
    }
    return ahead > 0 && ahead < 7 ? m_locale.standaloneDayName(day.dayOfWeek(), QLocale::ShortFormat)
                                  : m_locale.toString(day, QLocale::ShortFormat);
}

} // namespace guide
