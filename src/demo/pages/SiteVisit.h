#pragma once

#include "demo/Programme.h"

#include <QDate>
#include <QString>
#include <QTimeZone>
#include <QUrlQuery>

#include <functional>
#include <optional>
#include <vector>

namespace guide {

/// A channel as the site that has its schedule knows it.
struct SiteChannel {
    /// What the catalogue says: the site's own name of the channel is in it.
    QString sourceId;
    QString title;
    /// The programmes that begin at the first moment or later and before the second one, in order. Called on
    /// the server's threads.
    std::function<std::vector<Programme>(Moment from, Moment until)> programmes;
};

/// A page that somebody asks a site for.
struct SiteVisit {
    /// The channels that have their schedule there.
    const std::vector<SiteChannel>& channels;
    Moment now;
    /// Below the site's own path, with a slash in front.
    QString path;
    QUrlQuery query;
};

/// Times as the walls of a zone show them.
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

    /// What begins between the hour of the date and the hour of the next date.
    std::vector<Programme> day(const SiteChannel& channel, const QDate& date, int fromHour,
                               int untilHour) const;
    std::vector<Programme> day(const SiteChannel& channel, const QDate& date, int hour) const {
        return day(channel, date, hour, hour);
    }

  private:
    QTimeZone m_zone;
};

QString escapedMarkup(QString text);

/// The last part of a path to a show's own page.
QString slug(const QString& title);

/// A whole page around its content: head, navigation, scripts, footer.
QString webPage(const QString& language, const QString& title, const QString& content);

} // namespace guide
