#include "text/display/DayFormat.h"

#include <QRegularExpression>

namespace guide {

using namespace Qt::StringLiterals;

QString dayFormat(const QLocale& locale) {
    // With what divides the year from the rest, such as the quoted word for it.
    static const QRegularExpression leadingYear(u"^y+(?:\\.|年|년|\\s?'[^']*'\\s?\\S*)?[\\s,]*"_s);
    static const QRegularExpression otherYear(
        u"[\\s,/.-]*(?:'[^']*'\\s*)?y+\\.?(?:\\s?'[^']*'\\.?)?(?=\\s|,|$)"_s);
    QString format = locale.dateFormat(QLocale::LongFormat);
    format.remove(leadingYear).remove(otherYear);
    return format.replace("dddd"_L1, "ddd"_L1).replace("MMMM"_L1, "MMM"_L1);
}

} // namespace guide
