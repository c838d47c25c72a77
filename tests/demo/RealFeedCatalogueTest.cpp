// Reads the output of tools/real_feed_catalogue.py with the guide's own readers.
#include "core/CatalogueFiles.h"
#include "core/TVStationIcons.h"
#include "demo/Texts.h"
#include "demo/feeds/Packing.h"
#include "demo/feeds/XMLTVWriter.h"
#include "demo/schedule/ScheduleGenerator.h"
#include "fakes/Files.h"
#include "parsers/URLPlanner.h"
#include "platform/files/FileReplacement.h"

#include <QDir>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimeZone>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace guide {
namespace {

QByteArray feed() {
    const ScheduleGenerator generator(sourceTexts());
    std::vector<FeedChannel> channels;
    for (const DemoChannel& channel : demoChannels()) {
        channels.push_back({channel.feedId, channel.title, channel.zone,
                            generator.schedule(channel, QDate(2026, 11, 20), 2)});
    }
    return xmltvDocument(channels, {});
}

void expectGuideToFind(const QByteArray& packed) {
    const QTemporaryDir folder;
    const QString source = folder.filePath(u"any-name"_s);
    ASSERT_TRUE(replaceFile(source, packed));
    const QDir made(folder.filePath(u"made"_s));
    QProcess script;
    script.start(u"python3"_s,
                 {u"-B"_s, QStringLiteral(QUELLIN_SOURCE_DATA "/../tools/real_feed_catalogue.py"), source,
                  made.path(), u"--language"_s, u"sk"_s, u"--port"_s, u"8123"_s});
    ASSERT_TRUE(script.waitForFinished());
    ASSERT_EQ(script.exitCode(), 0) << script.readAllStandardError().constData();
    EXPECT_TRUE(script.readAllStandardOutput().contains("--now 2026-11-2"));

    const auto rows = rowsOfPropertyList(made.filePath(u"Data.plist"_s));
    const auto hosts = SourceHostTable::fromFile(made.filePath(u"hosts.json"_s));
    ASSERT_TRUE(rows && hosts);
    const auto types =
        SupportedChannelTypes::fromFile(QStringLiteral(QUELLIN_SOURCE_DATA "/supported-channel-types.json"));
    TVStationIcons icons(made.filePath(u"icons"_s), 1);
    const auto kept = filteredChannels(
        *rows, types, [&icons](const QString& name) { return !icons.iconNamed(name).isNull(); });
    ASSERT_EQ(kept.size(), demoChannels().size());
    const URLPlanner planner(*hosts, [](unsigned) { return 0U; });
    QStringList identities;
    for (const CatalogueRow& row : kept) {
        identities.append(row.channel.id.hex());
        const auto urls = planner.urlsForSourceId(row.channel.sourceIds[0], Moment(), QTimeZone::utc());
        ASSERT_TRUE(urls);
        ASSERT_EQ(urls->size(), 1);
        EXPECT_EQ(urls->front().port(), 8123);
        EXPECT_EQ(test::contentOf(made.path() + urls->front().path()), packed);
    }
    const QJsonArray selection =
        QJsonDocument::fromJson(test::contentOf(made.filePath(u"selection.json"_s))).array();
    EXPECT_EQ(selection.size(), 12);
    for (const QJsonValue selected : selection) {
        EXPECT_TRUE(identities.contains(selected.toString()));
    }
}

TEST(RealFeedCatalogue, PointsTheGuideToTheFeed) {
    // Icons that contain text need a font database.
    int count = 1;
    char program[] = "test";
    char* arguments[] = {program};
    const QGuiApplication application(count, arguments);
    for (const QByteArray& packed : {feed(), gzipped(feed()), xzPacked(feed())}) {
        expectGuideToFind(packed);
    }
}

} // namespace
} // namespace guide
