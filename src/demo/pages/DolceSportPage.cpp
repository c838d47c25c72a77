#include "demo/pages/Pages.h"

#include <QLocale>

#include <algorithm>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMorning = 8;

} // namespace

// One tab per weekday, each for its next date, today included; days begin at eight.
std::optional<QByteArray> dolceSportPage(const SiteRequest& request) {
    const SiteClock clock("Europe/Bucharest");
    const auto channel =
        std::find_if(request.channels.begin(), request.channels.end(), [&](const SiteChannel& each) {
            return request.path == "/program/"_L1 + each.sourceId.section(u'.', 1);
        });
    if (channel == request.channels.end()) {
        return std::nullopt;
    }
    const QDate today = clock.date(request.now);
    const QLocale romanian(QLocale::Romanian);
    QString buttons;
    QString tabs;
    for (int weekday = 1; weekday <= 7; ++weekday) {
        const QDate date = today.addDays((weekday - today.dayOfWeek() + 7) % 7);
        const QString id = u"ziua-%1"_s.arg(weekday);
        const QString active = date == today ? u" active"_s : QString();
        buttons += u"<button type=\"button\" class=\"btn%1\" data-ls-for=\"%2\">%3</button>\n"_s.arg(
            active, id, romanian.dayName(weekday));
        tabs += u"<div class=\"tab-pane%1\" id=\"%2\">\n<h3>%3</h3>\n<ul class=\"list-group\">\n"_s.arg(
            active, id, romanian.toString(date, u"d MMMM"_s));
        for (const Programme& programme : clock.day(*channel, date, kMorning)) {
            const QString title =
                programme.topic == Topic::None ? u"TELESHOPPING"_s : programme.title.toUpper();
            tabs += u"<li class=\"list-group-item\">\n<span class=\"time\"> %1 </span>\n"
                    "<strong class=\"name\"> %2 </strong>\n</li>\n"_s.arg(clock.time(programme.start),
                                                                          escapedMarkup(title));
        }
        tabs += u"</ul>\n</div>\n"_s;
    }
    return webPage(u"ro"_s, channel->title,
                   u"<h1>Program TV %1</h1>\n<div class=\"days\">\n%2</div>\n%3"_s.arg(
                       escapedMarkup(channel->title), buttons, tabs))
        .toUtf8();
}

} // namespace guide
