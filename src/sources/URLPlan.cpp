#include "sources/URLPlan.h"

#include "sources/SourceId.h"
#include "sources/WebURL.h"

#include <QDateTime>

namespace guide {

void URLList::add(const QString& text) {
    const QUrl url(text, QUrl::TolerantMode);
    if (!isWebURL(url)) {
        m_valid = false;
    } else if (!m_urls.contains(url)) {
        m_urls.append(url);
    }
}

PlannedURLs URLList::result() && {
    return m_valid ? PlannedURLs(std::move(m_urls)) : std::nullopt;
}

PlannedURLs singleURL(const std::optional<QString>& base, const QString& rest) {
    if (!base) {
        return std::nullopt;
    }
    URLList urls;
    urls.add(*base + rest);
    return std::move(urls).result();
}

PlannedURLs numberedURLs(const std::optional<QString>& page, QLatin1StringView query, int first, int last) {
    if (!page) {
        return std::nullopt;
    }
    URLList urls;
    urls.add(*page);
    for (int number = first; number <= last; ++number) {
        urls.add(*page + query + QString::number(number));
    }
    return std::move(urls).result();
}

std::optional<QString> joinedURL(std::optional<QString> base, QLatin1StringView path) {
    if (base) {
        *base += path;
    }
    return base;
}

QDate dateInZone(const QTimeZone& zone, Moment moment) {
    return QDateTime::fromMSecsSinceEpoch(moment.time_since_epoch().count(), zone).date();
}

QDate dateAtServer(QStringView server, Moment moment) {
    return dateInZone(timeZoneForServer(server).value_or(QTimeZone::utc()), moment);
}

QString paddedNumber(int number, int digits) {
    return QString::number(number).rightJustified(digits, u'0');
}

QString yearMonthDayText(QDate date) {
    return paddedNumber(date.year(), 4) + u'-' + paddedNumber(date.month(), 2) + u'-' +
           paddedNumber(date.day(), 2);
}

} // namespace guide
