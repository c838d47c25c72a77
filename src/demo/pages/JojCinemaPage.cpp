#include "demo/pages/Pages.h"

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMorning = 6;

} // namespace

// One day from six to six, after links to the neighbouring days.
std::optional<QByteArray> jojCinemaPage(const SiteRequest& request) {
    const SiteClock clock("Europe/Bratislava");
    const QString format = u"d-M-yyyy"_s;
    const QDate date = QDate::fromString(request.query.queryItemValue(u"day"_s), format);
    if (request.path != "/cz/cz-program/"_L1 || request.channels.empty() || !date.isValid()) {
        return std::nullopt;
    }
    const SiteChannel& channel = request.channels.front();
    QString days;
    for (int i = -3; i <= 3; ++i) {
        days += u"<li><a href=\"?day=%1\"%2>%3</a></li>\n"_s.arg(date.addDays(i).toString(format),
                                                                 i == 0 ? u" class=\"active\""_s : QString(),
                                                                 date.addDays(i).toString(u"d. M."_s));
    }
    QString items;
    for (const Programme& programme : clock.day(channel, date, kMorning)) {
        const QString name = slug(programme.title);
        items += uR"(<div class="item">
<div class="time">%1</div>
<div class="img"><a href="/cz/filmy/%2" title="%3"><img src="/media/%2/250x140.jpg" alt=""></a></div>
<div class="desc"><h3>%3</h3><p>%4</p></div>
</div>
)"_s.arg(clock.time(programme.start), name, escapedMarkup(programme.title),
         escapedMarkup(programme.description));
    }
    return webPage(u"cs"_s, channel.title,
                   u"<ul class=\"days\">\n%1</ul>\n<div class=\"program\">\n%2</div>\n"_s.arg(days, items))
        .toUtf8();
}

} // namespace guide
