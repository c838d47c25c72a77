#pragma once

#include "demo/schedule/Programme.h"

#include <QDate>
#include <QString>
#include <QTimeZone>
#include <QUrlQuery>

#include <functional>
#include <optional>
#include <vector>

namespace guide {

/// A channel of a site.
struct SiteChannel {
    /// As in the catalogue; contains the site's name for the channel.
    QString sourceId;
    QString title;
    /// The programmes that begin in [from, until), in order. Called on the server's threads.
    std::function<std::vector<Programme>(Moment from, Moment until)> programmes;
};

/// A request for a page of a site.
struct SiteRequest {
    /// The channels of the site.
    const std::vector<SiteChannel>& channels;
    Moment now;
    /// The path relative to the site's, with a leading slash.
    QString path;
    QUrlQuery query;
};

/// Conversions between moments and local times of a zone.
class SiteClock {
  public:
    explicit SiteClock(const char* zone)
        : m_zone(zone) {}

    QDateTime local(Moment moment) const;
    QDate date(Moment moment) const { return local(moment).date(); }
    /// "20:15"
    QString time(Moment moment) const { return text(moment, QStringLiteral("HH:mm")); }
    QString text(Moment moment, const QString& format) const { return local(moment).toString(format); }
    Moment at(const QDate& date, int hour) const;

    /// The programmes that begin between `fromHour` of the date and `untilHour` of the next date.
    std::vector<Programme> day(const SiteChannel& channel, const QDate& date, int fromHour,
                               int untilHour) const;
    std::vector<Programme> day(const SiteChannel& channel, const QDate& date, int hour) const {
        return day(channel, date, hour, hour);
    }

  private:
    QTimeZone m_zone;
};

QString escapedMarkup(QString text);

/// The title as a path segment.
QString slug(const QString& title);

/// A complete HTML page with head, navigation, scripts and footer around the content.
QString webPage(const QString& language, const QString& title, const QString& content);

} // namespace guide
