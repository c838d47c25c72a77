#include "demo/pages/Pages.h"

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr int kEndOfNight = 6;

/// One text: description, facts, director, cast.
QString block(const Programme& programme) {
    QString text = programme.description.isEmpty() ? programme.title + u'.' : programme.description;
    if (programme.year > 0) {
        text += u". %1 %2"_s.arg(programme.country).arg(programme.year);
    }
    if (!programme.director.isEmpty()) {
        text += u" Režie "_s + programme.director;
    }
    if (!programme.actors.isEmpty()) {
        text += u" Dále Hrají "_s + programme.actors.join(u", "_s);
    }
    return text;
}

QString row(const SiteClock& clock, const Programme& programme) {
    const QString episode = programme.episode > 0 ? u" (%1)"_s.arg(programme.episode) : QString();
    return uR"(<div class="row">
<div class="col-xs-2"><time>%1</time></div>
<div class="col-xs-3"><img src="https://static.max.example/porady/%2.jpg" alt=""></div>
<div class="col-xs-7">
<h3 class="broadcast-title broadcast-title-xs"><a class="detail" href="/porady/%2">%3</a></h3>
<p class="m-top broadcast-description">%4</p>
</div>
</div>
)"_s.arg(clock.time(programme.start), slug(programme.title), escapedMarkup(programme.title) + episode,
         escapedMarkup(block(programme)));
}

} // namespace

// A calendar day and the night after it.
std::optional<QByteArray> primaMaxPage(const SiteRequest& request) {
    const SiteClock clock("Europe/Prague");
    const QString day = request.path.section(u'/', 2, 2);
    const QDate date = day.isEmpty() ? clock.date(request.now) : QDate::fromString(day, Qt::ISODate);
    if (request.path.section(u'/', 1, 1) != "tv-program"_L1 || request.channels.empty() || !date.isValid()) {
        return std::nullopt;
    }
    const SiteChannel& channel = request.channels.front();
    QString content = u"<div class=\"tabs\"><a class=\"tab\" href=\"/tv-program\">Dnes</a>"
                      "<a class=\"tab tab-active\">%1</a></div>\n"_s.arg(date.toString(u"d. M."_s));
    for (const Programme& programme : clock.day(channel, date, 0, kEndOfNight)) {
        content += row(clock, programme);
    }
    return webPage(u"cs"_s, channel.title, content).toUtf8();
}

} // namespace guide
