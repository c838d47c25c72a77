#include "demo/pages/Pages.h"
#include "demo/pages/Pictures.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>

#include <algorithm>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMorning = 6;

struct Country {
    const char* zone;
    QString word;
};

std::optional<Country> countryOf(const QString& code) {
    static const QMap<QString, Country> countries{
        {u"hu"_s, {"Europe/Budapest", u"tvmusor"_s}},  {u"hr"_s, {"Europe/Zagreb", u"raspored"_s}},
        {u"ba"_s, {"Europe/Sarajevo", u"raspored"_s}}, {u"rs"_s, {"Europe/Belgrade", u"program"_s}},
        {u"ro"_s, {"Europe/Bucharest", u"program"_s}}, {u"cz"_s, {"Europe/Prague", u"program"_s}},
        {u"sk"_s, {"Europe/Bratislava", u"program"_s}}};
    const auto country = countries.find(code);
    return country == countries.end() ? std::nullopt : std::optional(*country);
}

/// The date with this month and day that is nearest to today.
QDate nearest(const QDate& today, int month, int day) {
    QDate best;
    for (int year = today.year() - 1; year <= today.year() + 1; ++year) {
        const QDate date(year, month, day);
        if (date.isValid() &&
            (!best.isValid() || std::abs(today.daysTo(date)) < std::abs(today.daysTo(best)))) {
            best = date;
        }
    }
    return best;
}

QString show(const SiteClock& clock, const Programme& programme, Moment now) {
    const QString episode = programme.episode > 0 ? u", ep. %1"_s.arg(programme.episode) : QString();
    return uR"(<a href="/show/%1"><div class="show%2">
<div class="time">%3</div>
<div class="title">%4</div>
<p>%5</p></div></a>
)"_s.arg(slug(programme.title), programme.stop <= now ? u" past"_s : QString(), clock.time(programme.start),
         escapedMarkup(programme.title) + episode, escapedMarkup(programme.subtitle));
}

/// "/COUNTRY/show/SLUG": what the page of a show says to search engines.
std::optional<QByteArray> showPage(const SiteRequest& request) {
    const QString wanted = request.path.section(u'/', 3, 3);
    for (const SiteChannel& channel : request.channels) {
        for (const Programme& each :
             channel.programmes(request.now - std::chrono::days(1), request.now + std::chrono::days(8))) {
            if (slug(each.title) != wanted) {
                continue;
            }
            QJsonArray actors;
            for (const QString& actor : each.actors) {
                actors.append(QJsonObject{{u"@type"_s, u"Person"_s}, {u"name"_s, actor}});
            }
            const QJsonObject image{{u"@type"_s, u"ImageObject"_s},
                                    {u"url"_s, QString::fromLatin1(showPicturePath(each.title))}};
            const QJsonObject director{{u"@type"_s, u"Person"_s}, {u"name"_s, each.director}};
            const QJsonObject show{{u"@type"_s, each.episode > 0 ? u"TVSeries"_s : u"Movie"_s},
                                   {u"description"_s, each.description},
                                   {u"image"_s, QJsonArray{image}},
                                   {u"director"_s, QJsonArray{director}},
                                   {u"actor"_s, actors}};
            return "<div class=\"rich-snippet\"><script type=\"application/ld+json\">" +
                   QJsonDocument(show).toJson(QJsonDocument::Compact).replace('<', "\\u003c") +
                   "</script></div>";
        }
    }
    return std::nullopt;
}

} // namespace

// "/COUNTRY/WORD/MONTH/DAY": all channels of a country on one day from six to six.
std::optional<QByteArray> hboPage(const SiteRequest& request) {
    const QString code = request.path.section(u'/', 1, 1);
    const auto country = countryOf(code);
    if (country && request.path.section(u'/', 2, 2) == "show"_L1) {
        return showPage(request);
    }
    if (!country || request.path.section(u'/', 2, 2) != country->word) {
        return std::nullopt;
    }
    const SiteClock clock(country->zone);
    const QDate date = nearest(clock.date(request.now), request.path.section(u'/', 3, 3).toInt(),
                               request.path.section(u'/', 4, 4).toInt());
    if (!date.isValid()) {
        return std::nullopt;
    }
    QString blocks = u"<script>\nsite.start(\"initVariables\", {\"day\": \"%1\", \"rows\": [1, 2]});\n"
                     "</script>\n<div class=\"channels\">\n"_s.arg(date.toString(Qt::ISODate));
    for (const SiteChannel& channel : request.channels) {
        if (channel.sourceId.section(u'.', 1, 1) != code) {
            continue;
        }
        blocks +=
            u"<div class=\"channel\">\n<div class=\"logo logo_index_%1\"></div>\n<div class=\"shows\">\n"_s
                .arg(channel.sourceId.section(u'.', 2, 2));
        for (const Programme& programme : clock.day(channel, date, kMorning)) {
            blocks += show(clock, programme, request.now);
        }
        blocks += u"</div>\n</div>\n"_s;
    }
    return webPage(code, u"Program"_s, blocks + u"</div>\n"_s).toUtf8();
}

} // namespace guide
