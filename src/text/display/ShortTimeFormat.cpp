#include "text/display/ShortTimeFormat.h"

#include <algorithm>

namespace guide {

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

} // namespace guide
