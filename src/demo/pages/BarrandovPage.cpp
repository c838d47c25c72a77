#include "demo/pages/Pages.h"

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr int kEndOfNight = 6;

QString heading(const QString& slug, const QString& name) {
    return u"<h3 class=\"program-channel__title program-channel__title--%1\">%2</h3>\n"_s.arg(slug, name);
}

/// The class names of the headings contain a word of the channel's name.
QString headingSlug(const QString& name) {
    if (name == "Barrandov Family"_L1) {
        return u"muzika"_s;
    }
    return name.section(u' ', name.startsWith("Barrandov "_L1) ? 1 : 0).section(u' ', 0, 0).toLower();
}

QString modal(const SiteClock& clock, const QString& id, const Programme& programme) {
    QString text = u"<div class=\"remodal\" data-remodal-id=\"modal%1\">\n"
                   "<button data-remodal-action=\"close\"></button>\n<div class=\"show-detail\">\n"
                   "<img src=\"/files/porady/%2.jpg\" alt=\"\">\n"
                   "<h2 class=\"show-detail__title\">%3</h2>\n"_s.arg(id, slug(programme.title),
                                                                      escapedMarkup(programme.title));
    text +=
        u"<ul>\n<li><strong>Datum vysílání:</strong> %1</li>\n<li><strong>Repríza:</strong> %2</li>\n</ul>\n"_s
            .arg(clock.text(programme.start, u"dd.MM.yyyy HH:mm"_s), programme.repeat ? u"ANO"_s : u"NE"_s);
    text +=
        u"<p class=\"show-detail__perex\">%1</p>\n<p class=\"show-detail__about\">%2</p>\n</div>\n</div>\n"_s
            .arg(escapedMarkup(programme.subtitle), escapedMarkup(programme.description));
    return text;
}

} // namespace

// Links below the channels' headings open dialogs with the details, which are at the end of the page.
std::optional<QByteArray> barrandovPage(const SiteRequest& request) {
    const SiteClock clock("Europe/Prague");
    const QString day = request.query.queryItemValue(u"day"_s);
    const QDate date = day.isEmpty() ? clock.date(request.now) : QDate::fromString(day, Qt::ISODate);
    if (request.path != "/program/"_L1 || !date.isValid()) {
        return std::nullopt;
    }
    QString blocks;
    QString modals;
    int number = 10;
    for (const SiteChannel& channel : request.channels) {
        const QString name = channel.sourceId.section(u'.', 1);
        blocks += heading(headingSlug(name), name) + u"<ul class=\"program-channel__list\">\n"_s;
        for (const Programme& programme : clock.day(channel, date, 0, kEndOfNight)) {
            const QString id =
                u"%1%2"_s
                    .arg(programme.start.time_since_epoch().count() / 60'000 % 100'000, 5, 10, QChar(u'0'))
                    .arg(number);
            blocks += u"<li><span>%1</span> <a href=\"#modal%2\">%3</a></li>\n"_s.arg(
                clock.time(programme.start), id, escapedMarkup(programme.title));
            modals += modal(clock, id, programme);
        }
        blocks += u"</ul>\n"_s;
        ++number;
    }
    blocks += heading(u"radio"_s, u"Rádio"_s) + u"<p>Hrajeme dnem i nocí.</p>\n"_s;
    return webPage(u"cs"_s, u"Program"_s, blocks + modals).toUtf8();
}

} // namespace guide
