#include "text/display/ShortTimeFormat.h"

#include <algorithm>

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

QString rowTimeFormat(const QString& shortTimeFormat) {
    QString format = shortTimeFormat;
    const auto* const blank = std::find_if(shortTimeFormat.begin(), shortTimeFormat.end(),
                                           [](QChar unit) { return unit.isSpace(); });
    if (blank != shortTimeFormat.end()) {
        format.remove(blank - shortTimeFormat.begin(), 1);
    }
    const bool singleHour = shortTimeFormat.size() >= 4 &&
                            (shortTimeFormat[0] == u'h' || shortTimeFormat[0] == u'H') &&
                            shortTimeFormat[1] != shortTimeFormat[0];
    return singleHour ? shortTimeFormat[0] + format : format;
}

QString rowTimeFormat(const QLocale& locale) {
    return withLowerCaseDayPeriods(rowTimeFormat(locale.timeFormat(QLocale::ShortFormat)));
}

QString shortTime(const QTime& time, const QLocale& locale) {
    return time.isValid() ? locale.toString(time, rowTimeFormat(locale)) : QString();
}

} // namespace guide
