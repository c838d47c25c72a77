#include "demo/pages/Pages.h"

#include <QSet>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::days kKept{3};

} // namespace

// "/enz/" lists the titles of the past days, "/enz/show/SLUG" the broadcasts of one of them, and
// "/enz/watch/…" is where one would be watched.
std::optional<QByteArray> archivePage(const SiteRequest& request) {
    const SiteClock clock("Europe/Prague");
    const QString archive = u"/enz/"_s;
    if (request.path.startsWith(archive + u"watch/"_s)) {
        return webPage(u"cs"_s, u"Archiv"_s, u"<h1>Záznam vysílání</h1>\n"_s).toUtf8();
    }
    const QString wanted = request.path.section(u'/', 3);
    QString links;
    QString broadcasts;
    QSet<QString> listed;
    for (const SiteChannel& channel : request.channels) {
        for (const Programme& programme : channel.programmes(request.now - kKept, request.now)) {
            const QString name = slug(programme.title);
            if (name == wanted) {
                broadcasts += u"<option value=\"../watch/%1-%2\">%3</option>\n"_s.arg(
                    name, clock.text(programme.start, u"yyyyMMddHHmm"_s),
                    clock.text(programme.start, u"d. M. yyyy HH:mm"_s));
            }
            if (!listed.contains(programme.title)) {
                listed.insert(programme.title);
                links += u"<li><a class=\"title\" href=\"show/%1\">%2</a></li>\n"_s.arg(
                    name, escapedMarkup(programme.title));
            }
        }
    }
    if (request.path == archive) {
        return webPage(u"cs"_s, u"Archiv"_s, u"<ul>\n%1</ul>\n"_s.arg(links)).toUtf8();
    }
    if (!request.path.startsWith(archive + u"show/"_s) || broadcasts.isEmpty()) {
        return std::nullopt;
    }
    return webPage(u"cs"_s, u"Archiv"_s, u"<select name=\"broadcast\">\n%1</select>\n"_s.arg(broadcasts))
        .toUtf8();
}

} // namespace guide
