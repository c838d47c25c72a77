#include "fakes/ManualClock.h"
#include "parsers/ListDriver.h"
#include "parsers/ShowJSON.h"

#include <QDateTime>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>
#include <string>

namespace guide {

namespace {

using namespace Qt::StringLiterals;

constexpr unsigned kXMLTV = 1;

QByteArray content(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

/// "CHANNEL,SOURCE_ID,LANGUAGE", as the probe takes it.
LoadItem loadItem(const QString& text) {
    const qsizetype first = text.indexOf(u',');
    const qsizetype last = text.lastIndexOf(u',');
    return {ObjectId::fromHex(text.first(first)), text.sliced(first + 1, last - first - 1),
            text.sliced(last + 1)};
}

MergeResult merge(const std::vector<LoadItem>& items, ParsedLists parsed, Moment now, unsigned type) {
    MergeResult result;
    for (const LoadItem& item : items) {
        MergedList merged = mergedList(std::move(parsed[item.channel]), item.language, now, type);
        if (merged.list) {
            result.lists[item.channel] = std::move(merged.list);
        }
    }
    return result;
}

/// The lists of one recorded feed, as the probe prints them.
QJsonObject lists(const QString& stem) {
    const QJsonObject how = QJsonDocument::fromJson(content(stem + ".items.json"_L1)).object();
    const QDateTime time = QDateTime::fromString(how[u"now"_s].toString(), Qt::ISODate);
    const Moment now{std::chrono::milliseconds{time.toMSecsSinceEpoch()}};
    std::vector<LoadItem> items;
    for (const QJsonValue item : how[u"items"_s].toArray()) {
        items.push_back(loadItem(item.toString()));
    }
    const ManualClock clock(now);
    const Alphabet alphabet;
    const auto hosts =
        SourceHostTable::fromJson(R"({"FeedImageBase": "guide.example", "FeedSiteHost": "guide.example"})");
    const ListDriver driver({.clock = clock, .alphabet = alphabet, .hosts = *hosts, .merge = merge});
    return listsJSON(driver.netList(items, {content(stem + ".xml"_L1)}, now, kXMLTV));
}

TEST(RecordedFeeds, GiveTheListsThatWereExpected) {
    const QDir folder(QStringLiteral(QUELLIN_TEST_DATA "/recorded/xmltv"));
    const QStringList feeds = folder.entryList({u"*.xml"_s}, QDir::Files, QDir::Name);
    ASSERT_FALSE(feeds.isEmpty());
    for (const QString& feed : feeds) {
        const QString stem = folder.filePath(feed.chopped(4));
        const QJsonDocument expected = QJsonDocument::fromJson(content(stem + ".expected.json"_L1));
        const QJsonDocument found(lists(stem));
        EXPECT_TRUE(expected == found) << stem.toStdString() << " gives\n" << found.toJson().toStdString();
    }
}

} // namespace

} // namespace guide
