#include "screens/ShowRowText.h"

#include "text/display/ShortTimeFormat.h"

#include <QDateTime>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

// Writes AM and PM in lower case in every locale. Quoted text stays as it is.
QString withLowerCaseDayPeriods(const QString& format) {
    QString result;
    bool quoted = false;
    for (qsizetype index = 0; index < format.size(); ++index) {
        const QChar unit = format[index];
        quoted = quoted != (unit == u'\'');
        if (!quoted && (unit == u'A' || unit == u'a')) {
            result += "ap"_L1;
            const bool pair = index + 1 < format.size() && format[index + 1].toLower() == u'p';
            index += pair ? 1 : 0;
        } else {
            result += unit;
        }
    }
    return result;
}

} // namespace

ShowRowText::ShowRowText(const QLocale& locale, const QTimeZone& zone)
    : m_locale(locale)
    , m_zone(zone)
    , m_timeFormat(withLowerCaseDayPeriods(rowTimeFormat(locale.timeFormat(QLocale::ShortFormat)))) {}

ShowRow ShowRowText::humanWithColor(const TVEntry& entry, ColorRole color, bool) const {
    ShowRow row = humanCondensedWithColor(entry, color, false);
    row.endTime = endTime(entry);
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

} // namespace guide
