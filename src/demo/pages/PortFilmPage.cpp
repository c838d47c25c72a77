#include "demo/pages/PortFilmPage.h"

#include "demo/DemoFiles.h"
#include "demo/pages/Pages.h"
#include "demo/pages/Pictures.h"

namespace guide {

using namespace Qt::StringLiterals;

namespace {

/// A film's number is the minute of its broadcast.
QString numberOf(const Programme& programme) {
    return QString::number(programme.start.time_since_epoch().count() / 60'000);
}

/// The film whose number is in the query.
std::optional<Programme> requestedFilm(const SiteRequest& request, const QString& key) {
    constexpr qint64 kLastMinute = 100'000'000;
    const qint64 minute = request.query.queryItemValue(key).toLongLong();
    if (minute <= 0 || minute > kLastMinute) {
        return std::nullopt;
    }
    const Moment start{std::chrono::minutes(minute)};
    for (const SiteChannel& channel : request.channels) {
        for (const Programme& programme : channel.programmes(start, start + std::chrono::minutes(1))) {
            if (programme.year > 0) {
                return programme;
            }
        }
    }
    return std::nullopt;
}

QString popupLink(const QString& path, const QString& number) {
    return path + u"?i_area_id=17&amp;i_object_id="_s + number + u"&amp;i_is_picture=2"_s;
}

} // namespace

QString portFilmPath(const Programme& programme) {
    return u"/film/%1?i_perf_id=%2"_s.arg(slug(programme.title), numberOf(programme));
}

std::optional<QByteArray> portFilmPage(const SiteRequest& request) {
    const auto film = requestedFilm(request, u"i_perf_id"_s);
    if (!film || !portFilmPath(*film).startsWith(request.path + u'?')) {
        return std::nullopt;
    }
    return webPage(film->language, film->title,
                   uR"(<h1>%1</h1>
<!-- summary --><div>%2</div><div>%3</div><!-- /summary -->
<p><strong>A film ismertetése:</strong> <span>%4</span></p>
<ul><li><label>rendező:</label><span itemprop="name">%5</span></li></ul>
<a class="media" href="%6">&#9654;</a>
)"_s.arg(escapedMarkup(film->title), escapedMarkup(film->country), QString::number(film->year),
                   escapedMarkup(film->description), escapedMarkup(film->director),
                   popupLink(u"/pls/w/media.popup_bottom"_s, numberOf(*film))))
        .toUtf8();
}

std::optional<QByteArray> portPopup(const SiteRequest& request) {
    const auto film = requestedFilm(request, u"i_object_id"_s);
    if (film && request.path == "/w/media.popup_bottom"_L1) {
        return u"<html><body><a href=\"%1\">&#9654;</a></body></html>\n"_s
            .arg(popupLink(u"/pls/me/media.popup_top"_s, numberOf(*film)))
            .toUtf8();
    }
    if (film && request.path == "/me/media.popup_top"_L1) {
        return u"<html><body><img class=\"object_picture\" src=\"%1\">\n"
               "<script>player({baseUrl:\"%2\",hd_available:true,hd_url:\"trailer.ogv\"});</script>"
               "</body></html>\n"_s.arg(QString::fromLatin1(showPicturePath(film->title)), kStreams)
                   .toUtf8();
    }
    return std::nullopt;
}

} // namespace guide
