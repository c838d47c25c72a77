#include "parsers/details/IMDbLookup.h"

#include "parsers/ParsersLog.h"
#include "parsers/formats/ReaderPages.h"
#include "parsers/markers/MarkerWalk.h"
#include "platform/encoding/Utf8.h"
#include "sources/WebURL.h"

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kLeastTitle = 3;
constexpr qsizetype kLeastSubtitle = 4;

bool applies(const QString& title, TVListingsCategory categories) {
    if (title.size() < kLeastTitle) {
        return false;
    }
    // A placeholder of some sources.
    if (title.toUpper() == "FILM"_L1) {
        qCDebug(parsersLog, "imdbLink FILM");
        return false;
    }
    if ((categories & (TVListingsCategoryAllFilm | TVListingsCategorySeries)) == 0) {
        qCDebug(parsersLog).noquote() << title << "imdbLink not-a-movie";
        return false;
    }
    return true;
}

std::optional<QUrl> searchFor(const QString& text, const SourceHostTable& hosts) {
    const auto base = hosts.base(u"IMDbHost"_s);
    if (!base) {
        return std::nullopt;
    }
    const QByteArray encoded = base->toUtf8() +
                               "/find?ref_=nv_sr_fn&q=" + QUrl::toPercentEncoding(text, "!$&'()*+,;=:@/?") +
                               "&s=tt";
    QUrl url = QUrl::fromEncoded(encoded, QUrl::StrictMode);
    if (!isWebURL(url)) {
        qCInfo(parsersLog, "imdbLink: cannot convert urlString=%s to URL", encoded.constData());
        return std::nullopt;
    }
    return url;
}

/// The address without the part of the file name that requests a scaled picture.
std::optional<QUrl> wholePicture(std::string_view link) {
    if (link.find("nopicture") != std::string_view::npos) {
        return std::nullopt;
    }
    QString text = pageString(link);
    const QString scaling = u"_V1_"_s;
    const qsizetype start = text.indexOf(scaling);
    const qsizetype end = text.lastIndexOf(u'.');
    if (start >= 0 && end > start + scaling.size()) {
        text.remove(start + scaling.size(), end - start - scaling.size());
    }
    QUrl url(text);
    if (!isWebURL(url)) {
        qCDebug(parsersLog).noquote() << "pictureURLString=" << text;
        return std::nullopt;
    }
    return url;
}

std::optional<QUrl> titlePage(std::string_view path, const QUrl& search) {
    const QUrl url(search.scheme() + "://"_L1 + search.authority() + pageString(path));
    return url.isValid() ? std::optional(url) : std::nullopt;
}

} // namespace

IMDbSearches imdbSearches(const std::optional<QString>& title, const std::optional<QString>& subtitle,
                          TVListingsCategory categories, const SourceHostTable& hosts) {
    IMDbSearches searches;
    if (!title || !applies(*title, categories)) {
        return searches;
    }
    std::vector<QString> texts{*title};
    if (subtitle && subtitle->size() >= kLeastSubtitle) {
        texts.push_back(*subtitle);
    }
    for (const QString& text : texts) {
        const auto url = searchFor(text, hosts);
        if (!url) {
            return searches;
        }
        qCDebug(parsersLog, "title=%s imdb: url1=%s", qUtf8Printable(text), url->toEncoded().constData());
        searches.urls.push_back(*url);
    }
    searches.started = true;
    return searches;
}

IMDbAnswer imdbAnswer(const QByteArray& page, const QUrl& search, bool isSeries) {
    MarkerTrace unused;
    MarkerWalk walk(pageText(page), unused);
    IMDbAnswer answer;
    if (!isValidUtf8(page) || !walk.moveTo("class=\"primary_photo\"> <a href=\"/title/")) {
        return answer;
    }
    const std::size_t rowStart = walk.position();
    const auto path = walk.take("class=\"primary_photo\"> <a href=\"", "\" ><img src=\"");
    if (!path) {
        return answer;
    }
    answer.imdbURL = titlePage(*path, search);
    walk.pass("\" ><img src=\"");
    if (const auto picture = MarkerWalk(walk).takeUpTo("\"")) {
        answer.pictureURL = wholePicture(*picture);
    }
    const auto rowEnd = walk.find("</tr>");
    const MarkerWalk row = walk.part(rowStart, rowEnd.value_or(rowStart));
    const bool isEpisode = row.contains("(TV Episode)");
    // Without its end a row cannot be recognised as a series.
    const bool isFilmOfThatName = isSeries && answer.imdbURL && !row.contains("(TV Series)");
    return isEpisode || isFilmOfThatName ? IMDbAnswer{} : answer;
}

bool imdbLinkWithClosure(const ExtendedTVEntry& show, const IMDbLookupEnvironment& environment,
                         const IMDbClosure& closure) {
    const TVListingsCategory categories = show.categories.value_or(0);
    const bool isSeries = (categories & TVListingsCategorySeries) != 0;
    const IMDbSearches searches =
        imdbSearches(show.basic->title(), show.basic->subtitle(), categories, environment.hosts);
    for (unsigned index = 0; index < searches.urls.size(); ++index) {
        HTTPRequest request;
        request.url = searches.urls[index];
        request.headers = {{"User-Agent", environment.userAgent.value()}};
        request.timeout = std::chrono::seconds(60);
        environment.queues.globalQueue(QueuePriority::Background)
            .async([request, index, isSeries, closure, &client = environment.client] {
                const TransferResult result = client.perform(request);
                const IMDbAnswer answer =
                    result.error ? IMDbAnswer{} : imdbAnswer(result.body, request.url, isSeries);
                const auto text = [](const std::optional<QUrl>& url) {
                    return url ? url->toEncoded() : QByteArrayLiteral("nothing");
                };
                qCDebug(parsersLog, "IMDB url=%s error=%s imdbURL=%s pictureURL=%s",
                        request.url.toEncoded().constData(),
                        result.error ? qUtf8Printable(result.error->description) : "",
                        text(answer.imdbURL).constData(), text(answer.pictureURL).constData());
                closure(index, answer);
            });
    }
    return searches.started;
}

} // namespace guide
