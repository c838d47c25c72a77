#include "parsers/ListDriver.h"
#include "parsers/ShowJSON.h"
#include "parsers/URLPlanner.h"
#include "parsers/own/OwnFeedReader.h"
#include "platform/memory/ManualClock.h"
#include "probe/Command.h"
#include "probe/ProbePages.h"
#include "sources/PageFetcher.h"
#include "sources/SourceId.h"
#include "store/ListMerge.h"

#include <QJsonArray>
#include <QRandomGenerator>

#include <algorithm>
#include <iterator>

namespace guide::probe {

using namespace Qt::StringLiterals;

namespace {

/// The shows that the reader of the type finds in the pages. They keep references to the alphabet.
ParsedLists readPages(const Context& context, const Alphabet& alphabet, const std::vector<LoadItem>& items,
                      const std::vector<QByteArray>& pages, ListingsType type, MarkerTrace* trace = nullptr) {
    const ManualClock clock(context.now);
    const ListDriver driver({.clock = clock,
                             .alphabet = alphabet,
                             .hosts = context.hosts,
                             .merge = {},
                             .locale = context.device.locale(),
                             .timeZone = [&context] { return context.device.timeZone(); },
                             .physicalMemory = context.device.physicalMemory()});
    return driver.read(items, pages, context.now, type, trace);
}

/// CHANNEL,SOURCE_ID,LANGUAGE: the source id may contain commas.
std::optional<LoadItem> loadItem(const QString& text) {
    const qsizetype first = text.indexOf(u',');
    const qsizetype last = text.lastIndexOf(u',');
    if (first < 0 || first == last) {
        return std::nullopt;
    }
    return LoadItem{ObjectId::fromHex(text.left(first)), text.mid(first + 1, last - first - 1),
                    text.mid(last + 1)};
}

std::variant<std::vector<LoadItem>, Failure> loadItems(const Arguments& arguments) {
    std::vector<LoadItem> items;
    for (const QString& text : arguments.options.value(u"item"_s)) {
        const auto item = loadItem(text);
        if (!item) {
            return Failure{u"--item needs CHANNEL,SOURCE_ID,LANGUAGE, not \"%1\""_s.arg(text), true};
        }
        items.push_back(*item);
    }
    if (items.empty()) {
        return Failure{u"--item is missing"_s, true};
    }
    return items;
}

/// The lists of a source of the user's own, whose language is that of the first item.
Outcome parseOwn(const Context& context, const std::vector<LoadItem>& items) {
    const ManualClock clock(context.now);
    const Alphabet alphabet(writesCyrillic(context));
    std::vector<OwnFeedItem> channels;
    channels.reserve(items.size());
    for (const LoadItem& item : items) {
        channels.push_back(
            {.channel = item.channel, .feedChannel = item.sourceId, .language = item.language});
    }
    ParsedLists lists;
    for (const QString& path : context.arguments.operands) {
        OwnFeed feed = readOwnFeed(path, {}, channels,
                                   {.clock = clock,
                                    .alphabet = alphabet,
                                    .locale = context.device.locale(),
                                    .zone = timeZoneForLanguage(items.front().language),
                                    .physicalMemory = context.device.physicalMemory()});
        if (feed.result == SourceResult::NoFile) {
            return Failure{u"%1 cannot be read"_s.arg(path)};
        }
        for (auto& [channel, shows] : feed.lists) {
            std::ranges::move(shows, std::back_inserter(lists[channel]));
        }
    }
    return listsJSON(mergedLists(items, std::move(lists), context.now, ListingsType::XMLTV), true);
}

Outcome parse(Context& context) {
    const Arguments& arguments = context.arguments;
    const bool isOwn = arguments.has(u"own"_s);
    bool isNumber = false;
    // An unknown number has no reader.
    const auto type = static_cast<ListingsType>(
        arguments.value(u"type"_s).value_or(isOwn ? u"1"_s : QString()).toUInt(&isNumber));
    if (!isNumber) {
        return Failure{u"--type needs the number of a listing type"_s, true};
    }
    if (isOwn && type != ListingsType::XMLTV) {
        return Failure{u"--own needs type 1"_s, true};
    }
    auto read = loadItems(arguments);
    if (const auto* failure = std::get_if<Failure>(&read)) {
        return *failure;
    }
    const std::vector<LoadItem>& items = std::get<0>(read);
    if (isOwn) {
        return parseOwn(context, items);
    }
    auto pages = pagesFromFiles(arguments.operands, context);
    if (const auto* failure = std::get_if<Failure>(&pages)) {
        return *failure;
    }
    const Alphabet alphabet(writesCyrillic(context));
    ParsedLists lists = readPages(context, alphabet, items, std::get<0>(pages), type);
    return listsJSON(mergedLists(items, std::move(lists), context.now, type));
}

/// Fetches the pages of the URLs as a check does, up to the first failure, whose reason it stores in `why`.
std::vector<QByteArray> fetchPages(const Context& context, const QList<QUrl>& urls, QString& why) {
    std::vector<QByteArray> pages;
    withNetwork(context, why, [&](const PageFetcher& fetcher, const HTTPUserAgent& userAgent) {
        for (const QUrl& url : urls) {
            NetPage page = fetcher.netPageForRequest(pageRequest(url, userAgent), true);
            if (!page.page) {
                const QString reason = why.isEmpty() ? u"status %1"_s.arg(page.status) : why;
                why = u"%1: %2"_s.arg(url.toString(), reason);
                break;
            }
            pages.push_back(*std::move(page.page));
        }
    });
    return pages;
}

Outcome check(Context& context) {
    const QString& sourceId = context.arguments.operands[0];
    const QString language = context.arguments.value(u"language"_s).value_or(QString());
    const URLPlanner planner(context.hosts,
                             [](unsigned bound) { return QRandomGenerator::global()->bounded(bound); });
    const auto urls = planner.urlsForSourceId(sourceId, context.now, context.device.timeZone());
    QJsonObject report{{u"urls"_s, QJsonValue::Null},
                       {u"fetched"_s, 0},
                       {u"shows"_s, 0},
                       {u"first"_s, QJsonValue::Null},
                       {u"last"_s, QJsonValue::Null}};
    if (!urls) {
        return report;
    }
    QJsonArray planned;
    for (const QUrl& url : *urls) {
        planned.append(QString::fromLatin1(url.toEncoded()));
    }
    report[u"urls"_s] = planned;
    QString why;
    const std::vector<QByteArray> pages = fetchPages(context, *urls, why);
    if (pages.empty()) {
        return Failure{u"nothing was fetched: %1"_s.arg(why)};
    }
    if (!why.isEmpty()) {
        qWarning("%s", qUtf8Printable(why));
    }
    report[u"fetched"_s] = qint64(pages.size());
    const LoadItem item{ObjectId(ObjectId::Bytes{}), sourceId, language};
    const ListingsType type = listingsTypeForSourceId(sourceId, context.hosts);
    MarkerTrace trace;
    const Alphabet alphabet;
    ParsedLists read = readPages(context, alphabet, {item}, pages, type, &trace);
    const bool isAnyRead = !read[item.channel].empty();
    const MergeResult result = mergedLists({item}, std::move(read), context.now, type);
    const auto list = result.lists.find(item.channel);
    if (list != result.lists.end() && !list->second->empty()) {
        report[u"shows"_s] = qint64(list->second->size());
        report[u"first"_s] = jsonMoment(list->second->front().entry()->dateTime());
        report[u"last"_s] = jsonMoment(list->second->back().entry()->dateTime());
    } else if (const std::string& marker = trace.changed(pages); !isAnyRead && !marker.empty()) {
        // Shows that are over were read successfully.
        report[u"lastMissed"_s] = QString::fromStdString(marker);
    }
    return report;
}

} // namespace

std::vector<Command> listingsCommands() {
    return {
        {u"parse"_s,
         {u"--type N [--own] --item CHANNEL,SOURCE_ID,LANGUAGE [--item ...] PAGE..."_s,
          {u"type"_s, u"item"_s},
          {u"own"_s},
          1,
          -1},
         u"the lists that the guide would store of these pages"_s,
         parse},
        {u"check"_s,
         {u"SOURCE_ID [--language L]"_s, {u"language"_s}, {}, 1, 1},
         u"what the network has for a source now"_s,
         check},
    };
}

} // namespace guide::probe
