#include "sources/SourceId.h"

#include <QHash>

#include <array>
#include <limits>

namespace guide {

using namespace Qt::StringLiterals;

bool sourceIdUsedByPortNetwork(QStringView sourceId) {
    constexpr qsizetype kMostDigits = std::numeric_limits<std::int32_t>::digits10 + 1;
    if (sourceId.isEmpty() || sourceId.size() > kMostDigits || (sourceId.size() > 1 && sourceId[0] == u'0')) {
        return false;
    }
    std::int64_t number = 0;
    for (const QChar digit : sourceId) {
        if (digit < u'0' || digit > u'9') {
            return false;
        }
        number = number * 10 + (digit.unicode() - u'0');
    }
    return number <= std::numeric_limits<std::int32_t>::max();
}

std::optional<QTimeZone> timeZoneForServer(QStringView serverName) {
    struct Row {
        QLatin1StringView ending;
        QTimeZone zone;
    };
    static const std::array<Row, 7> kZones{{
        {"ro"_L1, QTimeZone("Europe/Bucharest")},
        {"sk"_L1, QTimeZone("Europe/Bratislava")},
        {"hu"_L1, QTimeZone("Europe/Budapest")},
        {"hr"_L1, QTimeZone("Europe/Zagreb")},
        {"rs"_L1, QTimeZone("Europe/Belgrade")},
        {"cz"_L1, QTimeZone("Europe/Prague")},
        {"ba"_L1, QTimeZone("Europe/Sarajevo")},
    }};
    for (const Row& row : kZones) {
        if (serverName.endsWith(row.ending)) {
            return row.zone;
        }
    }
    return std::nullopt;
}

QTimeZone timeZoneForLanguage(const QString& language) {
    // As the ending of a server's name, where it differs from the language.
    static const QHash<QString, QString> kCountries{
        {u"cs"_s, u"cz"_s}, {u"sr"_s, u"rs"_s}, {u"bs"_s, u"ba"_s}};
    const QString code = language.left(2);
    return timeZoneForServer(kCountries.value(code, code)).value_or(QTimeZone::utc());
}

} // namespace guide
