#include "parsers/details/PortPopups.h"

#include "parsers/formats/ReaderPages.h"

#include <algorithm>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

/// The value of a key in the query of an address.
std::optional<QString> queryValue(const QString& address, const QString& key) {
    const qsizetype place = address.indexOf(key);
    if (place < 0) {
        return std::nullopt;
    }
    const QString value = address.mid(place + key.size());
    return value.left(value.indexOf(u'&'));
}

std::optional<QString> objectIdIn(MarkerWalk link) {
    if (!link.pass("i_object_id=")) {
        return std::nullopt;
    }
    const std::string_view rest = link.rest();
    const auto end =
        std::find_if(rest.begin(), rest.end(), [](char byte) { return byte < '0' || byte > '9'; });
    return textUnlessEmpty(pageString(rest.substr(0, static_cast<std::size_t>(end - rest.begin()))));
}

/// The number of the show's pictures in the link to them: the one after the mark, or else the one before it.
std::optional<QString> objectId(const DetailPage& page) {
    const MarkerWalk walk = page.walk();
    const auto mark = walk.find("i_is_picture=2");
    if (!mark) {
        return std::nullopt;
    }
    const std::size_t end = walk.part(*mark).findOrLimit("\"");
    if (auto id = objectIdIn(walk.part(*mark, end))) {
        return id;
    }
    const auto start = walk.part(0, *mark).findLast("\"");
    return start ? objectIdIn(walk.part(*start, *mark)) : std::nullopt;
}

std::optional<QUrl> bottomPopup(const DetailPage& page) {
    const auto performance = queryValue(page.url.toString(QUrl::FullyEncoded), u"i_perf_id="_s);
    const auto object = performance ? objectId(page) : std::nullopt;
    if (!object) {
        return std::nullopt;
    }
    return page.url.resolved(
        QUrl(u"/pls/w/media.popup_bottom?i_area_id=17&i_object_id=%1&i_is_picture=2&i_is_video=1&i_topic_id="
             "&i_age_limit_from=12&i_perf_id=%2"_s.arg(*object, *performance)));
}

std::optional<QUrl> topPopup(const DetailPage& page, const QByteArray& bottom) {
    const auto object = objectId(page);
    if (!object) {
        return std::nullopt;
    }
    const std::string prefix =
        "/pls/me/media.popup_top?i_area_id=17&amp;i_object_id=" + object->toStdString() +
        "&amp;i_is_picture=2";
    MarkerWalk walk(pageText(bottom), page.trace);
    return walk.moveTo(prefix) ? decodedLink(walk.takeUpTo("\""), page.url) : std::nullopt;
}

std::optional<QUrl> trailer(const MarkerWalk& popup, const QUrl& site) {
    const auto base = MarkerWalk(popup).take("baseUrl:\"", "\"");
    const auto path = base ? MarkerWalk(popup).take("hd_available:true,hd_url:\"", "\"") : std::nullopt;
    if (!path) {
        return std::nullopt;
    }
    std::string joined = std::string(*base) + std::string(*path);
    std::erase(joined, '\\');
    return decodedLink(joined, site);
}

std::optional<QUrl> picture(const MarkerWalk& popup, const QUrl& site) {
    const auto lifted = MarkerWalk(popup).take("<img class=\"object_picture\" src=\"", "\"");
    if (!lifted) {
        return std::nullopt;
    }
    // The size mark: "_0" is the full picture. A name may end in two marks.
    std::string link(*lifted);
    for (const std::string_view size : {"_1", "_2", "_3", "_4"}) {
        std::size_t place = 0;
        for (int times = 0; times < 2 && (place = link.find(size, place)) != std::string::npos; ++times) {
            link[place + 1] = '0';
        }
    }
    return decodedLink(link, site);
}

} // namespace

void readPortPopups(const DetailPage& page, ShowDetails& show) {
    const auto bottomURL = bottomPopup(page);
    const auto bottom = bottomURL ? page.pages(*bottomURL) : std::nullopt;
    const auto topURL = bottom ? topPopup(page, *bottom) : std::nullopt;
    const auto top = topURL ? page.pages(*topURL) : std::nullopt;
    if (!top) {
        return;
    }
    const MarkerWalk popup(pageText(*top), page.trace);
    show.details.trailerURL = trailer(popup, page.url);
    addPicture(show, picture(popup, page.url));
}

} // namespace guide
