#include "demo/pages/Pages.h"

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMorning = 6;

QString kindWord(Topic topic) {
    switch (topic) {
    case Topic::Series:
    case Topic::CrimeSeries:
    case Topic::ComedySeries:
        return u"- seriál"_s;
    case Topic::News:
    case Topic::Weather:
        return u"- zprávy"_s;
    case Topic::Documentary:
        return u"- dokument"_s;
    case Topic::Sports:
        return u"- sport"_s;
    case Topic::Entertainment:
    case Topic::Quiz:
    case Topic::Magazine:
    case Topic::Music:
        return u"- zábava"_s;
    case Topic::Children:
    case Topic::None:
        return {};
    default:
        return u"- film"_s;
    }
}

} // namespace

// All channels on one day from six to six.
std::optional<QByteArray> novaPage(const SiteRequest& request) {
    const SiteClock clock("Europe/Prague");
    const QDate date = QDate::fromString(request.query.queryItemValue(u"epg_date"_s), Qt::ISODate);
    if (request.path != "/program/"_L1 || !date.isValid()) {
        return std::nullopt;
    }
    const QString format = u"yyyy-MM-dd HH:mm:ss"_s;
    QString blocks = u"<div class=\"channels\">\n"_s;
    for (const SiteChannel& channel : request.channels) {
        blocks +=
            u"<div class=\"channels-item\">\n<div class=\"channels-logo\">%1</div>\n<ul class=\"channels-content\">\n"_s
                .arg(escapedMarkup(channel.sourceId.section(u'.', 2)));
        for (const Programme& programme : clock.day(channel, date, kMorning)) {
            blocks += uR"(<li class="channels-content-show" data-begin="%1" data-end="%2">
<span class="time">%3</span>
<span class="title">%4</span> <span class="type">%5</span>
<span class="description">%6</span>
</li>
)"_s.arg(clock.text(programme.start, format), clock.text(programme.stop, format), clock.time(programme.start),
                escapedMarkup(programme.title), kindWord(programme.topic),
                escapedMarkup(programme.description));
        }
        blocks += u"</ul>\n</div>\n"_s;
    }
    return webPage(u"cs"_s, u"Program"_s, blocks + u"</div>\n"_s).toUtf8();
}

} // namespace guide
