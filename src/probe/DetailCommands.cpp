#include "parsers/ShowJSON.h"
#include "parsers/details/DetailScraper.h"
#include "parsers/details/IMDbLookup.h"
#include "parsers/details/RecordedShows.h"
#include "probe/Command.h"
#include "probe/ProbePages.h"

#include <QJsonArray>

namespace guide::probe {

using namespace Qt::StringLiterals;

namespace {

Outcome detail(Context& context) {
    const Arguments& arguments = context.arguments;
    for (const QString& needed : {u"source-id"_s, u"url"_s}) {
        if (!arguments.has(needed)) {
            return Failure{u"--%1 is missing"_s.arg(needed), true};
        }
    }
    const auto pages = pagesFromFiles(arguments.operands, context);
    if (const auto* failure = std::get_if<Failure>(&pages)) {
        return *failure;
    }
    const Alphabet alphabet;
    const auto entry = std::make_shared<TVEntry>(alphabet);
    entry->setSourceId(arguments.value(u"source-id"_s));
    entry->setUrl(QUrl(*arguments.value(u"url"_s)));
    entry->setLanguage(arguments.value(u"language"_s));
    const DetailScraper scraper({.pages = givenPages(std::get<0>(pages)),
                                 .hosts = context.hosts,
                                 .update = {},
                                 .locale = context.device.locale()});
    const auto show = scraper.netDescriptionFor(entry);
    return show ? showDetailsJSON(*show) : QJsonObject{{u"show"_s, QJsonValue::Null}};
}

Outcome recorded(Context& context) {
    const Arguments& arguments = context.arguments;
    const auto title = arguments.value(u"title"_s);
    if (!title) {
        return Failure{u"--title is missing"_s, true};
    }
    const auto pages = pagesFromFiles(arguments.operands, context);
    if (const auto* failure = std::get_if<Failure>(&pages)) {
        return *failure;
    }
    std::optional<ArchivedShow> shows;
    QString why;
    if (!arguments.operands.isEmpty()) {
        shows = recordedShowsWithTitle(*title, context.hosts, givenPages(std::get<0>(pages)));
    } else {
        withNetwork(context, why, [&](const PageFetcher& fetcher, const HTTPUserAgent& userAgent) {
            shows = recordedShowsWithTitle(*title, context.hosts,
                                           networkPageSource(fetcher, userAgent, std::chrono::seconds(20)));
        });
    }
    if (!why.isEmpty()) {
        return Failure{u"a page could not be fetched: %1"_s.arg(why)};
    }
    if (!shows) {
        return QJsonObject{{u"recorded"_s, QJsonValue::Null}};
    }
    QJsonObject labels;
    for (auto show = shows->broadcasts.cbegin(); show != shows->broadcasts.cend(); ++show) {
        labels.insert(show.key(), show.value());
    }
    return QJsonObject{{u"recorded"_s, labels}};
}

QJsonValue jsonURL(const std::optional<QUrl>& url) {
    return url ? QJsonValue(url->toString(QUrl::FullyEncoded)) : QJsonValue(QJsonValue::Null);
}

Outcome imdb(Context& context) {
    const Arguments& arguments = context.arguments;
    bool isNumber = false;
    const TVListingsCategory categories =
        arguments.value(u"categories"_s).value_or(QString()).toUInt(&isNumber, 0);
    if (!isNumber || !arguments.has(u"title"_s)) {
        return Failure{u"--title and a number for --categories are needed"_s, true};
    }
    const auto pages = pagesFromFiles(arguments.operands, context);
    if (const auto* failure = std::get_if<Failure>(&pages)) {
        return *failure;
    }
    const auto& given = std::get<0>(pages);
    const IMDbSearches searches =
        imdbSearches(arguments.value(u"title"_s), arguments.value(u"subtitle"_s), categories, context.hosts);
    QJsonArray urls;
    QJsonArray answers;
    for (std::size_t index = 0; index < searches.urls.size(); ++index) {
        const QUrl& url = searches.urls[index];
        urls.append(jsonURL(url));
        const IMDbAnswer answer = imdbAnswer(index < given.size() ? given[index] : QByteArray(), url,
                                             (categories & TVListingsCategorySeries) != 0);
        answers.append(QJsonObject{{u"index"_s, int(index)},
                                   {u"imdbURL"_s, jsonURL(answer.imdbURL)},
                                   {u"pictureURL"_s, jsonURL(answer.pictureURL)}});
    }
    return QJsonObject{{u"started"_s, searches.started}, {u"urls"_s, urls}, {u"answers"_s, answers}};
}

} // namespace

std::vector<Command> detailCommands() {
    return {
        {u"detail"_s,
         {u"--source-id S --url U [--language L] PAGE..."_s,
          {u"source-id"_s, u"url"_s, u"language"_s},
          {},
          1,
          -1},
         u"the details of a show on its page and on the pages that it leads to"_s,
         detail},
        {u"recorded"_s,
         {u"--title T [INDEX_PAGE [SHOW_PAGE]]"_s, {u"title"_s}, {}, 0, 2},
         u"the past broadcasts of a show in the archive; without pages, from the network"_s,
         recorded},
        {u"imdb"_s,
         {u"--title T [--subtitle S] --categories N PAGE..."_s,
          {u"title"_s, u"subtitle"_s, u"categories"_s},
          {},
          0,
          -1},
         u"the searches for a film or series, and the results on their pages"_s,
         imdb},
    };
}

} // namespace guide::probe
