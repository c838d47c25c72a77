#include "demo/pages/Pages.h"

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr int kTabs = 15;
constexpr int kMorning = 3;

QString logo(const QString& name) {
    return u"<div class=\"logo\"><img src=\"http://static.sport.example/logo/%1.png\" alt=\"%2\" /></div>\n"_s
        .arg(slug(name), name);
}

} // namespace

// One tab per day from today on, each with all channels; days begin at three.
std::optional<QByteArray> digiSportPage(const SiteRequest& request) {
    const SiteClock clock("Europe/Bratislava");
    if (request.path != "/program/"_L1) {
        return std::nullopt;
    }
    QString buttons;
    QString tabs;
    for (int tab = 0; tab < kTabs; ++tab) {
        const QDate date = clock.date(request.now).addDays(tab);
        buttons +=
            u"<li><a href=\"#tabs-%1\">%2</a></li>\n"_s.arg(QString::number(tab), date.toString(u"d.M."_s));
        tabs += u"<div id=\"tabs-%1\" class=\"day\">\n"_s.arg(tab);
        for (const SiteChannel& channel : request.channels) {
            tabs += logo(channel.sourceId.section(u'.', 1)) + u"<ul>\n"_s;
            for (const Programme& programme : clock.day(channel, date, kMorning)) {
                tabs += u"<li><span><strong>%1</strong></span>\n"
                        "<p><strong>%2</strong><br />%3<br /><em>%4</em></p></li>\n"_s.arg(
                            clock.time(programme.start), escapedMarkup(programme.title),
                            escapedMarkup(programme.description), escapedMarkup(programme.subtitle));
            }
            tabs += u"</ul>\n"_s;
        }
        tabs += u"<p><a href=\"http://static.sport.example/program.pdf\">PDF</a></p>\n</div>\n"_s;
    }
    return webPage(u"sk"_s, u"Program"_s,
                   u"<div id=\"tabs\">\n<ul>\n%1</ul>\n%2</div>\n"_s.arg(buttons, tabs))
        .toUtf8();
}

} // namespace guide
