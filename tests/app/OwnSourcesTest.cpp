#include "core/own/OwnSources.h"

#include "app/GuideWorld.h"
#include "app/own/PreviewCache.h"
#include "app/own/SourceSchedule.h"
#include "fakes/ManualQueues.h"
#include "fakes/Packing.h"
#include "platform/files/FileReplacement.h"
#include "screens/sources/SourceActions.h"

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

QByteArray stamp(Moment moment) {
    return QDateTime::fromMSecsSinceEpoch(moment.time_since_epoch().count(), Qt::UTC)
        .toString(u"yyyyMMddHHmmss' +0000'"_s)
        .toLatin1();
}

/// A feed that names `channels` channels, of which the first `filled` have six shows of one hour from now on.
QByteArray feedOf(int channels, int filled, Moment now, const QByteArray& title, int shows = 6) {
    QByteArray feed = "<?xml version=\"1.0\"?>\n<tv>";
    for (int i = 1; i <= channels; ++i) {
        const QByteArray id = "c" + QByteArray::number(i);
        feed += "<channel id=\"" + id + "\"><display-name>Channel " + QByteArray::number(i) +
                "</display-name></channel>\n";
    }
    for (int i = 1; i <= filled; ++i) {
        for (int hour = 0; hour < shows; ++hour) {
            const Moment start = now + std::chrono::hours(hour);
            feed += "<programme start=\"" + stamp(start) + "\" stop=\"" + stamp(start + 1h) +
                    "\" channel=\"c" + QByteArray::number(i) + "\"><title>" + title + ' ' +
                    QByteArray::number(hour) + "</title></programme>\n";
        }
    }
    return feed + "</tv>\n";
}

struct OwnSourcesTest : testing::Test {
    GuideWorld world{QStringList{}};
    const QByteArray path = "/guide.xml";
    OwnSourceId source;

    void serve(const ServerReply& reply) { world.server->serve(path, reply); }
    void start() {
        world.start();
        world.guide->applicationDidBecomeActive();
    }
    SourceActions& actions() { return *world.guide->sourceActions(); }

    SourceProposal propose(const QString& input) {
        std::optional<SourceProposal> proposal;
        const auto token = actions().propose(
            input, {}, [&proposal](SourceProposal proposed) { proposal = std::move(proposed); });
        EXPECT_TRUE(world.runUntil([&] { return proposal.has_value(); }));
        return proposal.value_or(SourceProposal());
    }
    /// Adds the source and waits for the lists of its channels.
    void add(const QString& input, const QStringList& chosen) {
        source = actions().add(propose(input), OwnSource(), chosen, {});
        ASSERT_TRUE(world.runUntil([&] { return titles(chosen.last()) != QStringList(); }));
    }
    QStringList titles(const QString& key) {
        QStringList titles;
        for (const auto& [start, title] : world.shows(ownChannelId(source, key))) {
            titles << title;
        }
        return titles;
    }
    /// Lets the time pass until the source is due, and waits for the attempt.
    SourceStatus next() {
        const Moment before = *actions().status(source).lastTry;
        world.clock.advance(25h);
        world.guide->checkAndUpdateAllChannels();
        EXPECT_TRUE(world.runUntil([&] {
            const SourceStatus status = actions().status(source);
            return status.lastTry > before && !status.running;
        }));
        return actions().status(source);
    }
};

TEST_F(OwnSourcesTest, AFeedBecomesChannelsByOneRequestAndStaysAcrossARestart) {
    serve(ServerReply::ok(gzipped(feedOf(3, 3, world.clock.now(), "Film", 48)), {"ETag: \"1\""}));
    start();
    EXPECT_EQ(actions().newHostOf(world.server->base() + u"/guide.xml"_s), u"127.0.0.1"_s);
    add(world.server->base() + u"/guide.xml"_s, {u"c1"_s, u"c3"_s});
    EXPECT_EQ(titles(u"c1"_s).value(0), u"Film 0"_s);
    EXPECT_EQ(titles(u"c1"_s).size(), 48);
    EXPECT_EQ(titles(u"c2"_s), QStringList()) << "not chosen";
    EXPECT_EQ(world.server->requests().size(), 1U) << "what was fetched for the preview is read";
    EXPECT_EQ(world.guide->channels().selected(),
              (std::vector{ownChannelId(source, u"c1"_s), ownChannelId(source, u"c3"_s)}));
    EXPECT_EQ(actions().newHostOf(world.server->base() + u"/other.xml"_s), std::nullopt);
    world.end();

    start();
    EXPECT_EQ(titles(u"c3"_s).value(0), u"Film 0"_s);
    EXPECT_EQ(world.guide->channels().selected().size(), 2U);
    EXPECT_EQ(world.server->requests().size(), 1U) << "nothing is due";

    serve(ServerReply::answer(304, {}));
    const SourceStatus status = next();
    EXPECT_EQ(status.result, SourceResult::Unchanged);
    EXPECT_EQ(world.server->requests().back().header("If-None-Match"), "\"1\"");
    const auto record = world.guide->channels().channelWithChannelId(ownChannelId(source, u"c1"_s));
    EXPECT_EQ(record->timeLoaded(), world.clock.now());
    EXPECT_GE(*status.nextTry, world.clock.now() + 24h);
    world.end();
}

TEST_F(OwnSourcesTest, GoodListsOutliveWhatServersSay) {
    const Moment now = world.clock.now();
    // Long enough to be to come in all that follows.
    serve(ServerReply::ok(feedOf(24, 24, now, "Good", 24 * 12)));
    start();
    add(world.server->base() + u"/guide.xml"_s, {u"c1"_s, u"c2"_s});
    const QByteArray whole = feedOf(24, 24, now + 24h, "New", 24 * 12);
    const struct {
        const char* what;
        ServerReply reply;
        SourceResult result;
    } rows[] = {
        {"three of 24 channels", ServerReply::ok(feedOf(24, 3, now + 25h, "Poor")), SourceResult::Poor},
        {"an empty answer", ServerReply::ok({}), SourceResult::Empty},
        {"a page", ServerReply::ok("<!doctype html><html><body>Log in</body></html>"), SourceResult::Page},
        {"a redirect to a page", ServerReply::answer(302, {}, {"Location: /login"}), SourceResult::Page},
        {"a missing file", ServerReply::answer(404, {}), SourceResult::Status},
        {"damaged gzip", ServerReply::ok("\x1f\x8b\x08\x08garbage"), SourceResult::Damaged},
        {"a redirect to a file", ServerReply::answer(302, {}, {"Location: file:///etc/passwd"}),
         SourceResult::ForbiddenRedirect},
        {"no channel", ServerReply::ok("<?xml version=\"1.0\"?><tv></tv>"), SourceResult::Poor},
    };
    world.server->serve("/login", ServerReply::ok("<html><form>password</form></html>"));
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        serve(row.reply);
        EXPECT_EQ(next().result, row.result);
        EXPECT_FALSE(titles(u"c1"_s).isEmpty());
        EXPECT_TRUE(titles(u"c1"_s).last().startsWith("Good"_L1)) << titles(u"c1"_s).last().toStdString();
        EXPECT_TRUE(titles(u"c2"_s).last().startsWith("Good"_L1));
    }
    world.end();
}

TEST_F(OwnSourcesTest, AFeedThatBreaksOffKeepsWhatItWouldHaveRepeated) {
    const Moment now = world.clock.now();
    serve(ServerReply::ok(feedOf(2, 2, now, "Old", 24 * 4)));
    start();
    add(world.server->base() + u"/guide.xml"_s, {u"c1"_s, u"c2"_s});
    QByteArray cut = feedOf(2, 2, now + 25h, "New", 24 * 4);
    cut.truncate(cut.size() / 4);
    serve(ServerReply::ok(cut));
    EXPECT_EQ(next().result, SourceResult::Incomplete);
    EXPECT_TRUE(titles(u"c1"_s).first().startsWith("New"_L1));
    EXPECT_TRUE(titles(u"c1"_s).last().startsWith("Old"_L1));
    EXPECT_TRUE(titles(u"c2"_s).last().startsWith("Old"_L1));
    world.end();
}

TEST_F(OwnSourcesTest, ShiftsMoveTheTimesWithoutARequest) {
    serve(ServerReply::ok(feedOf(2, 2, world.clock.now(), "Show", 24)));
    start();
    add(world.server->base() + u"/guide.xml"_s, {u"c1"_s, u"c2"_s});
    const Moment before = world.shows(ownChannelId(source, u"c1"_s)).front().first;
    OwnSource changed = *world.guide->sourceActions()->sources()->begin();
    changed.shift = 120min;
    changed.channels[0].shift = -30min;
    // As a list that is over does; the source is not asked for it before its time.
    world.guide->channels().channelWithChannelId(ownChannelId(source, u"c2"_s))->requireReload();
    world.clock.advance(2min);
    actions().update(changed);
    ASSERT_TRUE(world.runUntil([&] {
        const auto shows = world.shows(ownChannelId(source, u"c1"_s));
        return !shows.empty() && shows.front().first == before + 90min;
    }));
    EXPECT_EQ(world.server->requests().size(), 1U);
    world.end();
}

TEST_F(OwnSourcesTest, AChannelThatIsSelectedAgainGetsItsListFromWhatIsKept) {
    serve(ServerReply::ok(feedOf(2, 2, world.clock.now(), "Show", 24)));
    start();
    add(world.server->base() + u"/guide.xml"_s, {u"c1"_s, u"c2"_s});
    const std::vector<ObjectId> both = world.guide->channels().selected();
    world.guide->channels().setSelected({both[1]});
    world.guide->listings().removeListingsForChannel(both[0]);
    EXPECT_EQ(titles(u"c1"_s), QStringList());
    world.guide->channels().setSelected(both);
    world.guide->checkAndUpdateAllChannels();
    EXPECT_TRUE(world.runUntil([&] { return titles(u"c1"_s).size() == 24; }));
    EXPECT_EQ(world.server->requests().size(), 1U);
    world.end();
}

TEST_F(OwnSourcesTest, RemovingASourceTakesItsChannelsAndFilesAway) {
    serve(ServerReply::ok(feedOf(2, 2, world.clock.now(), "Show")));
    start();
    add(world.server->base() + u"/guide.xml"_s, {u"c1"_s, u"c2"_s});
    const ObjectId stranger = ownChannelId(OwnSourceId::generate(), u"of another device"_s);
    auto selected = world.guide->channels().selected();
    selected.push_back(stranger);
    world.guide->channels().setSelected(selected);
    actions().remove(source);
    world.end();
    EXPECT_TRUE(QDir(world.folders.caches + u"/sources"_s).isEmpty());
    start();
    world.runFor(50ms);
    EXPECT_EQ(world.guide->channels().selected(), std::vector{stranger})
        << "its source may come from another device";
    EXPECT_TRUE(actions().sources()->empty());
    world.end();
}

TEST_F(OwnSourcesTest, APlaylistTakesItsSchedulesFromAFeedAndItsStreamsFromItself) {
    serve(ServerReply::ok(feedOf(3, 3, world.clock.now(), "Show")));
    const auto list = [](const QByteArray& stream) {
        return ServerReply::ok("#EXTM3U url-tvg=\"http://feeds.test/x.xml\"\n"
                               "#EXTINF:-1 tvg-id=\"C2\",SK: Channel 2 HD\nhttp://streams.test/" +
                               stream + "\n#EXTINF:-1,Nobody knows it\nhttp://streams.test/9\n");
    };
    world.server->serve("/list.m3u", list("2?token=Passw0rd"));
    start();
    add(world.server->base() + u"/guide.xml"_s, {u"c1"_s});
    const SourceProposal proposal = propose(world.server->base() + u"/list.m3u"_s);
    EXPECT_EQ(proposal.kind, OwnSourceKind::Playlist);
    EXPECT_EQ(proposal.preview.playlist.feeds, QStringList{u"http://feeds.test/x.xml"_s});
    std::vector<MatchedEntry> entries;
    const auto token = actions().match(proposal.preview.playlist, {}, {},
                                       [&](std::vector<MatchedEntry> matched) { entries = matched; });
    ASSERT_TRUE(world.runUntil([&] { return !entries.empty(); }));
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(entries[0].match, MatchKind::Id);
    EXPECT_EQ(entries[1].match, MatchKind::None);
    const OwnSourceId feed = source;
    source = actions().add(proposal, OwnSource(), {entries[0].key, entries[1].key}, entries);
    ASSERT_TRUE(world.runUntil([&] { return titles(entries[0].key).size() == 6; }));
    const auto streamOf = [&](const QString& key) {
        const auto record = world.guide->channels().channelWithChannelId(ownChannelId(source, key));
        return record ? record->catalogueChannel().stream.value_or(QString()) : QString();
    };
    EXPECT_EQ(streamOf(entries[0].key), u"http://streams.test/2?token=Passw0rd"_s);
    EXPECT_EQ(streamOf(entries[1].key), u"http://streams.test/9"_s);

    world.server->serve("/list.m3u", list("moved"));
    EXPECT_EQ(next().result, SourceResult::Read);
    EXPECT_EQ(streamOf(entries[0].key), u"http://streams.test/moved"_s);
    EXPECT_EQ(feed, actions().sources()->front().id);
    world.end();
}

TEST_F(OwnSourcesTest, AFeedThatIsAddedLaterServesChannelsThatClearlyAreIts) {
    QByteArray list = "#EXTM3U\n";
    for (const char* name : {"tvg-id=\"c1\",First", "Channel 2 HD", "tvg-id=\"c3\",Third", "Channel"}) {
        list += QByteArray("#EXTINF:-1 ") + (name[0] == 'C' ? "," : "") + name + "\nhttp://streams.test/" +
                QByteArray::number(list.size()) + '\n';
    }
    world.server->serve("/list.m3u", ServerReply::ok(list));
    serve(ServerReply::ok(feedOf(3, 3, world.clock.now(), "Show")));
    start();
    const SourceProposal proposal = propose(world.server->base() + u"/list.m3u"_s);
    std::vector<MatchedEntry> entries;
    const auto token = actions().match(proposal.preview.playlist, {}, {},
                                       [&](std::vector<MatchedEntry> matched) { entries = matched; });
    ASSERT_TRUE(world.runUntil([&] { return entries.size() == 4; }));
    OwnSource settings;
    settings.corrections = {{entries[2].key, std::nullopt}};
    source = actions().add(proposal, settings,
                           {entries[0].key, entries[1].key, entries[2].key, entries[3].key}, entries);
    actions().add(propose(world.server->base() + u"/guide.xml"_s), OwnSource(), {}, {});
    ASSERT_TRUE(world.runUntil([&] { return titles(entries[1].key).size() == 6; }));
    EXPECT_EQ(titles(entries[0].key).size(), 6);
    const std::vector<OwnChannel> channels = actions().sourceWithId(source)->channels;
    EXPECT_EQ(channels[1].guide->channel, u"c2"_s);
    EXPECT_FALSE(channels[2].guide) << "the user said so";
    EXPECT_FALSE(channels[3].guide) << "no clear hit";
    world.end();
}

TEST_F(OwnSourcesTest, AChannelsOwnPictureStaysUntilItsSourceIsRemoved) {
    serve(ServerReply::ok(feedOf(1, 1, world.clock.now(), "Show", 48)));
    start();
    add(world.server->base() + u"/guide.xml"_s, {u"c1"_s});
    const QString folder = world.folders.documents + u"/channel-pictures/"_s + source.hex();
    const QString icon = world.folders.caches + u"/channel-icons/"_s + ownChannelId(source, u"c1"_s).hex();
    const QString red = world.folders.documents + u"/red.png"_s;
    QImage picture(40, 30, QImage::Format_RGB32);
    picture.fill(Qt::red);
    ASSERT_TRUE(picture.save(red));
    for (const auto& [file, isPicture] : {std::pair(world.folders.documents + u"/none.png"_s, false),
                                          {world.folders.caches + u"/own-sources.json"_s, false},
                                          {red, true}}) {
        std::optional<bool> answer;
        const auto token =
            actions().setPicture(source, u"c1"_s, file, [&answer](bool isSet) { answer = isSet; });
        ASSERT_TRUE(world.runUntil([&] { return answer.has_value(); }));
        EXPECT_EQ(answer, isPicture) << file.toStdString();
    }
    const auto isShown = [&] { return QImage(icon).pixelColor(5, 5) == QColor(Qt::red); };
    EXPECT_TRUE(world.runUntil(isShown));
    ASSERT_TRUE(QFile::remove(red)) << "a copy is shown";
    next();
    world.end();
    start();
    EXPECT_TRUE(actions().hasPicture(source, u"c1"_s));
    world.runFor(50ms);
    EXPECT_TRUE(isShown());
    actions().removePicture(source, u"c1"_s);
    EXPECT_TRUE(world.runUntil([&] { return !QFile::exists(icon); }));
    EXPECT_TRUE(QDir(folder).isEmpty());
    actions().remove(source);
    // Its files are removed in the background, which nobody is told.
    world.end();
    EXPECT_FALSE(QFile::exists(folder));
}

TEST_F(OwnSourcesTest, SecretsOfAnAddressStayOnTheDevice) {
    world.server->serve("/guide.xml?key=Passw0rd",
                        ServerReply::ok(feedOf(1, 1, world.clock.now(), "Show", 48)));
    start();
    add(world.server->base() + u"/guide.xml?key=Passw0rd"_s, {u"c1"_s});
    EXPECT_EQ(next().result, SourceResult::Read) << "it is put back into the address";
    world.end();
    QStringList betrayed;
    for (const QString& folder :
         {world.folders.caches, world.folders.documents, world.folders.configuration}) {
        QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            if (file.open(QIODevice::ReadOnly) && file.readAll().contains("Passw0rd")) {
                betrayed << file.fileName();
            }
        }
    }
    EXPECT_EQ(betrayed, QStringList());
    const auto copy = world.keyValueStore.valueForKey(u"OwnSources"_s);
    ASSERT_TRUE(copy);
    EXPECT_FALSE(copy->toCbor().contains("Passw0rd"));
}

TEST_F(OwnSourcesTest, AScriptIsAGrabberAndAFolderIsWatchedForItsNewestFile) {
    const QString folder = world.folders.documents + u"/grabbed"_s;
    QDir().mkpath(folder);
    const auto write = [](const QString& name, const QByteArray& content) {
        QFile file(name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
    };
    write(folder + u"/guide.xml"_s, feedOf(1, 1, world.clock.now(), "Folder", 48));
    const QString script = world.folders.documents + u"/tv_grab_own"_s;
    write(script, "#!/bin/sh\ncase \"$1\" in --*) exit 1;; esac\necho warning >&2\ncat '" + folder.toUtf8() +
                      "/guide.xml'\n");
    QFile(script).setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    start();
    for (const auto& [file, isProgram] : {std::pair(script, true), {folder + u"/guide.xml"_s, false}}) {
        std::optional<bool> answer;
        const auto token = actions().isProgram(file, [&answer](bool is) { answer = is; });
        EXPECT_TRUE(world.runUntil([&] { return answer.has_value(); }));
        EXPECT_EQ(answer, isProgram);
    }
    add(script, {u"c1"_s});
    EXPECT_EQ(actions().sources()->back().kind, OwnSourceKind::Grabber);
    EXPECT_EQ(titles(u"c1"_s).value(0), u"Folder 0"_s);
    EXPECT_EQ(next().output.trimmed(), u"warning"_s);

    add(folder, {u"c1"_s});
    EXPECT_EQ(actions().sources()->back().kind, OwnSourceKind::Feed);
    world.end();
}

TEST(PreviewCache, MakesAPreviewOnceAMinuteForAFileAsItIs) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"feed"_s);
    ASSERT_TRUE(replaceFile(path, "one"));
    ManualClock clock;
    ManualQueues queues(clock);
    PreviewCache cache(queues.makeQueue("previews", QueueKind::Concurrent, QueuePriority::Background));
    int made = 0;
    bool stopped = true;
    const auto make = [&]() -> std::shared_ptr<const SourcePreview> {
        ++made;
        return stopped ? nullptr : std::make_shared<const SourcePreview>();
    };
    const Moment now{std::chrono::hours(500'000)};
    EXPECT_EQ(cache.previewOf(path, u"cs"_s, now, make), nullptr);
    stopped = false;
    const auto first = cache.previewOf(path, u"cs"_s, now, make);
    EXPECT_EQ(cache.previewOf(path, u"cs"_s, now + 59s, make), first);
    EXPECT_EQ(made, 2) << "one that was stopped says nothing";
    cache.previewOf(path, u"sk"_s, now, make);
    ASSERT_TRUE(replaceFile(path, "longer"));
    cache.previewOf(path, u"cs"_s, now, make);
    cache.previewOf(path, u"cs"_s, now + 60s, make);
    EXPECT_EQ(made, 5);
}

TEST(SourceSchedule, WaitsAccordingToTheResult) {
    const Moment now{std::chrono::hours(500'000)};
    const auto wait = [now](SourceResult result, std::optional<Moment> notBefore = {}, int hours = 24) {
        return nextTryAfter({result, now, notBefore}, std::chrono::hours(hours),
                            [](unsigned) { return 60U; }) -
               now;
    };
    EXPECT_EQ(wait(SourceResult::Read), 24h + 1min);
    EXPECT_EQ(wait(SourceResult::Unchanged, {}, 1), 12h + 1min) << "never more often than twice a day";
    EXPECT_EQ(wait(SourceResult::NoAnswer), 1min);
    EXPECT_EQ(wait(SourceResult::Busy, now + 5h), 5h);
    EXPECT_EQ(wait(SourceResult::Busy, now + 24h * 9999), 24h * 31);

    SourceStatus status;
    EXPECT_TRUE(isSourceDue(status, now));
    status.lastTry = now;
    status.nextTry = now + 1h;
    EXPECT_FALSE(isSourceDue(status, now));
    EXPECT_TRUE(isSourceDue(status, now + 1h));
    EXPECT_TRUE(isSourceDue(status, now - 1h)) << "the clock was set back";

    status.lastSuccess = now;
    status.channelsWithShows = 190;
    status.shows = 20'000;
    EXPECT_TRUE(isFarPoorer({3, 300}, status, now));
    EXPECT_TRUE(isFarPoorer({190, 4'000}, status, now));
    EXPECT_FALSE(isFarPoorer({100, 9'000}, status, now));
    EXPECT_FALSE(isFarPoorer({3, 300}, status, now + 24h * 8)) << "in the end it is believed";
}

} // namespace
} // namespace guide
