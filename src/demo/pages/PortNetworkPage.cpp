#include "demo/pages/Pages.h"
#include "demo/pages/PortFilmPage.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

QString stamp(const SiteClock& clock, Moment moment) {
    const QDateTime local = clock.local(moment);
    return local.toOffsetFromUtc(local.offsetFromUtc()).toString(Qt::ISODate);
}

QJsonObject show(const SiteClock& clock, const Programme& programme) {
    QJsonObject row{{u"id"_s, u"event-%1"_s.arg(programme.start.time_since_epoch().count() / 60'000)},
                    {u"title"_s, programme.title},
                    {u"start_datetime"_s, stamp(clock, programme.start)},
                    {u"end_datetime"_s, stamp(clock, programme.stop)},
                    {u"is_repeat"_s, int(programme.repeat)},
                    {u"film_url"_s, programme.year > 0 ? portFilmPath(programme) : QString()},
                    {u"restriction"_s, QJsonObject{{u"age_limit"_s, 12}, {u"category"_s, QJsonValue()}}}};
    if (!programme.subtitle.isEmpty()) {
        row.insert(u"episode_title"_s, programme.subtitle);
    }
    if (programme.year > 0) {
        row.insert(u"short_description"_s, u"(%1, %2)"_s.arg(programme.country).arg(programme.year));
    }
    return row;
}

} // namespace

// One document with an object for each requested day.
std::optional<QByteArray> portNetworkPage(const SiteRequest& request) {
    if (request.path.startsWith(u"/film/")) {
        return portFilmPage(request);
    }
    const SiteClock clock("Europe/Budapest");
    const QString id = request.query.queryItemValue(u"channel_id"_s);
    const auto channel =
        std::find_if(request.channels.begin(), request.channels.end(),
                     [&](const auto& each) { return id == "tvchannel-"_L1 + each.sourceId; });
    const QDate from = QDate::fromString(request.query.queryItemValue(u"i_datetime_from"_s), Qt::ISODate);
    const QDate to = QDate::fromString(request.query.queryItemValue(u"i_datetime_to"_s), Qt::ISODate);
    if (request.path != "/tvapi"_L1 || channel == request.channels.end() || !from.isValid() ||
        !to.isValid() || from.daysTo(to) > 31) {
        return std::nullopt;
    }
    QJsonObject days;
    for (QDate date = from; date <= to; date = date.addDays(1)) {
        QJsonArray shows;
        for (const Programme& programme : clock.day(*channel, date, 0)) {
            shows.append(show(clock, programme));
        }
        days.insert(date.toString(Qt::ISODate),
                    QJsonObject{{u"date_from"_s, stamp(clock, clock.at(date, 0))},
                                {u"channels"_s, QJsonArray{QJsonObject{{u"id"_s, id},
                                                                       {u"name"_s, channel->title},
                                                                       {u"url"_s, u"/csatorna/tv"_s},
                                                                       {u"programs"_s, shows}}}}});
    }
    return QJsonDocument(days).toJson(QJsonDocument::Compact);
}

} // namespace guide
