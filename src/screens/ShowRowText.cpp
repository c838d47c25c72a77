#include "screens/ShowRowText.h"

#include "text/display/ShortTimeFormat.h"

#include <QDateTime>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

// Asks for the day's halves in small letters, whatever the locale's own case is. Literal text stays.
QString withSmallDayHalves(const QString& format) {
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
    , m_timeFormat(withSmallDayHalves(rowTimeFormat(locale.timeFormat(QLocale::ShortFormat)))) {}

StyledText ShowRowText::humanWithColor(const TVEntry& entry, ColorRole color, bool) const {
    StyledText text;
    text.append(shortTime(entry.dateTime()), TextStyle::Time, color);
    text.append(shortTime(entry.endDateTime()), TextStyle::RaisedTime, ColorRole::SecondaryLabel);
    text.append(entry.title().value_or(QString()), TextStyle::Title, ColorRole::Label);
    return text;
}

StyledText ShowRowText::humanCondensedWithColor(const TVEntry& entry, ColorRole color, bool popular) const {
    StyledText text;
    text.append(shortTime(entry.dateTime()), TextStyle::Time, color);
    text.append(u' ' + entry.title().value_or(QString()), TextStyle::Title, ColorRole::Label);
    if (popular) {
        text.append(u"❤️"_s, TextStyle::RaisedMark, ColorRole::Label);
    }
    return text;
}

StyledText ShowRowText::endTime(const TVEntry& entry) const {
    StyledText text;
    if (entry.endDateTime()) {
        text.append(shortTime(entry.endDateTime()), TextStyle::RaisedTime, ColorRole::SecondaryLabel);
    }
    return text;
}

StyledText ShowRowText::details(const TVEntry& entry) const {
    StyledText text;
    if (const std::optional<QString> details = entry.fullInstantDetails()) {
        text.append(*details, TextStyle::Details, ColorRole::SecondaryLabel);
    }
    return text;
}

QString ShowRowText::shortTime(const std::optional<Moment>& moment) const {
    if (!moment) {
        return {};
    }
    const qint64 milliseconds = moment->time_since_epoch().count();
    return m_locale.toString(QDateTime::fromMSecsSinceEpoch(milliseconds, m_zone), m_timeFormat);
}

} // namespace guide
