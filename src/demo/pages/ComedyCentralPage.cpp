#include "demo/pages/Pages.h"

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t kPageLength = 16;
constexpr int kPages = 7;
constexpr int kLongest = 14;

} // namespace

// One list from today's midnight on, divided into pages, with times in seconds since the epoch.
std::optional<QByteArray> comedyCentralPage(const SiteRequest& request) {
    const SiteClock clock("Europe/Bucharest");
    const int page = request.query.queryItemValue(u"page"_s).toInt();
    if (request.path != "/program-tv"_L1 || request.channels.empty() || page < 0 || page >= kPages) {
        return std::nullopt;
    }
    const SiteChannel& channel = request.channels.front();
    const QDate today = clock.date(request.now);
    const std::vector<Programme> programmes =
        channel.programmes(clock.at(today, 0), clock.at(today.addDays(kLongest), 0));
    QString rows;
    for (std::size_t i = std::size_t(page) * kPageLength;
         i < std::min(programmes.size(), std::size_t(page + 1) * kPageLength); ++i) {
        const Programme& programme = programmes[i];
        rows += uR"(<article class="programme">
<time class="hour" data-time="%1">%2</time>
<div class="text">
<h3>%3</h3>
<p>%4</p>
<a class="more" href="/seriale/%5">Mai mult</a>
</div>
</article>
)"_s.arg(QString::number(programme.start.time_since_epoch().count() / 1000), clock.time(programme.start),
         escapedMarkup(programme.title), escapedMarkup(programme.description), slug(programme.title));
    }
    QString pager;
    for (int i = 0; i < kPages; ++i) {
        pager += u"<li><a href=\"?page=%1\">%2</a></li>\n"_s.arg(i).arg(i + 1);
    }
    return webPage(u"ro"_s, channel.title,
                   u"<section class=\"schedule\">\n%1</section>\n<ul class=\"pager\">\n%2</ul>\n"_s.arg(
                       rows, pager))
        .toUtf8();
}

} // namespace guide
