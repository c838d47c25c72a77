#include "demo/pages/Pages.h"

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMorning = 6;
constexpr int kPages = 7;

/// The site's number for a genre.
int genre(Topic topic) {
    switch (topic) {
    case Topic::Adventure:
        return 28;
    case Topic::Comedy:
        return 30;
    case Topic::Crime:
        return 31;
    case Topic::Documentary:
        return 32;
    case Topic::Drama:
        return 33;
    case Topic::Horror:
        return 34;
    case Topic::ScienceFiction:
        return 36;
    case Topic::Thriller:
        return 37;
    case Topic::Western:
        return 38;
    case Topic::Sports:
        return 41;
    default:
        return 40;
    }
}

/// The first card of a channel has another layout, with the time at the end.
QString card(const SiteClock& clock, const Programme& programme, bool first) {
    const QString time = clock.time(programme.start);
    const QString title = escapedMarkup(programme.title);
    const QString link = u"<a href=\"/film/%1/\">"_s.arg(slug(programme.title));
    const QString opening = u"<div class='card zanr%1'>\n"_s.arg(genre(programme.topic));
    return opening +
           (first ? link + u"<h3 class='fit-text'> %1</h3></a>\n<div class=\"hour now\"> %2 </div>\n"_s.arg(
                               title, time)
                  : u"<div class=\"hour\"> %1 </div>\n%2<i></i></a>\n<h4 class='title'>%3</h4>\n"_s.arg(
                        time, link, title)) +
           u"</div>\n"_s;
}

} // namespace

// "/COUNTRY/raspored/": seven days from yesterday on, each from six to six; today's page begins with the show
// on air.
std::optional<QByteArray> cinestarPage(const SiteRequest& request) {
    const QString country = request.path.section(u'/', 1, 1);
    const SiteClock clock(country == "hr"_L1 ? "Europe/Zagreb" : "Europe/Belgrade");
    const QString number = request.query.queryItemValue(u"dan"_s);
    const int page = number.isEmpty() ? 1 : number.toInt();
    if (request.path.section(u'/', 2) != "raspored/"_L1 || page < 1 || page > kPages) {
        return std::nullopt;
    }
    const QDate today = clock.date(request.now);
    const QDate date = today.addDays(page - 2);
    QString content = u"<ul class='days'>\n"_s;
    for (int i = 1; i <= kPages; ++i) {
        content += u"<li><a href='?dan=%1'>%2</a></li>\n"_s.arg(QString::number(i),
                                                                today.addDays(i - 2).toString(u"dd.MM."_s));
    }
    content += u"</ul>\n<div class=\"date\">\n<span>%1</span>\n</div>\n"_s.arg(date.toString(u"dd.MM."_s));
    for (const SiteChannel& channel : request.channels) {
        if (channel.sourceId.section(u'.', 1, 1) != country) {
            continue;
        }
        content += u"<div class='kanal' id='kanal-C%1'>\n"_s.arg(channel.sourceId.section(u'.', 2));
        bool first = true;
        for (const Programme& programme : clock.day(channel, date, kMorning)) {
            if (date != today || programme.stop > request.now) {
                content += card(clock, programme, first);
                first = false;
            }
        }
        content += u"</div>\n"_s;
    }
    return webPage(country, u"Raspored"_s, content).toUtf8();
}

} // namespace guide
