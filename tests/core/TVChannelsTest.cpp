#include "core/TVChannels.h"

#include "core/ListingsFile.h"
#include "fakes/ManualQueues.h"
#include "platform/archive/Archive.h"
#include "platform/files/FileContent.h"
#include "platform/files/FileReplacement.h"
#include "platform/memory/ManualClock.h"
#include "platform/memory/MemoryKeyValueStore.h"
#include "platform/queues/ThreadedQueues.h"

#include <QCborArray>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <atomic>
#include <gtest/gtest.h>
#include <thread>
#include <tuple>

namespace guide {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

const ObjectId kA = ObjectId::fromHex(u"58f4ded60befe78cb336a80a"_s);
const ObjectId kB = ObjectId::fromHex(u"58f4ded60befe78cb336a80b"_s);
const ObjectId kC = ObjectId::fromHex(u"58f4ded60befe78cb336a80c"_s);
const ObjectId kUnknown = ObjectId::fromHex(u"58f4ded60befe78cb336a8ff"_s);

CatalogueSnapshot listed(const std::vector<ObjectId>& ids, const QString& title = u"Channel"_s) {
    std::vector<CatalogueChannel> channels;
    channels.reserve(ids.size());
    for (const ObjectId& id : ids) {
        channels.push_back({id, title, u"cs"_s, u"Czech"_s, u"a"_s});
    }
    return CatalogueSnapshot(channels);
}

class TVChannelsTest : public testing::Test {
  protected:
    TVChannelsTest() { catalogue.replace(listed({kA, kB})); }
    TVChannels makeChannels() { return {folders, keyValueStore, queues, catalogue}; }
    /// Sets the selection and lets it be written.
    void select(TVChannels& channels, const std::vector<ObjectId>& ids) {
        channels.setSelected(ids);
        queues.runAll();
    }
    QString path() const { return folders.documents + u"/selectedChannels.plist"_s; }

    QTemporaryDir folder;
    Folders folders{folder.path(), folder.path(), {}, {}, {}, {}};
    ManualClock clock;
    ManualQueues queues{clock};
    MemoryKeyValueStore keyValueStore;
    Catalogue catalogue;
};

TEST_F(TVChannelsTest, SelectionAndItsOrderOutliveTheProcess) {
    {
        TVChannels channels = makeChannels();
        EXPECT_TRUE(channels.selected().empty());
        channels.setSelected({kB, kUnknown, kA});
        EXPECT_EQ(channels.selected(), (std::vector{kB, kUnknown, kA}));
        EXPECT_FALSE(QFile::exists(path())) << "written asynchronously";
        queues.runAll();
    }
    EXPECT_EQ(makeChannels().selected(), (std::vector{kB, kUnknown, kA}));
    EXPECT_EQ(keyValueStore.valueForKey(u"SelectedChannels"_s),
              QCborValue(QCborArray{kB.data(), kUnknown.data(), kA.data()}));
}

TEST_F(TVChannelsTest, AnEqualSelectionWritesNothing) {
    TVChannels channels = makeChannels();
    select(channels, {kA});
    ASSERT_TRUE(QFile::remove(path()));
    select(channels, {kA});
    EXPECT_FALSE(QFile::exists(path()));
    EXPECT_EQ(keyValueStore.writeCount(), 1);

    channels.setSelected({kB});
    select(channels, {});
    EXPECT_EQ(keyValueStore.valueForKey(u"SelectedChannels"_s), QCborValue(QCborArray{}));
}

TEST_F(TVChannelsTest, AFailedWriteIsNotMirroredAndIsRetried) {
    TVChannels channels = makeChannels();
    ASSERT_TRUE(QDir().mkdir(path()) && QDir(path()).mkdir(u"in the way"_s));
    select(channels, {kA});
    EXPECT_FALSE(channels.finishWriting());
    EXPECT_EQ(keyValueStore.writeCount(), 0);
    EXPECT_EQ(channels.selected(), std::vector{kA});

    ASSERT_TRUE(QDir(path()).removeRecursively());
    channels.retryWriting();
    queues.runAll();
    EXPECT_EQ(makeChannels().selected(), std::vector{kA});
    EXPECT_TRUE(channels.finishWriting());
    EXPECT_EQ(keyValueStore.writeCount(), 1);
}

TEST_F(TVChannelsTest, AnUnreadableFileIsAnEmptySelection) {
    const QByteArray whole = archivedData(QCborArray{kA.data(), QByteArray(11, 'x'), 5, kB.data()});
    const std::tuple<const char*, QByteArray, std::vector<ObjectId>> rows[] = {
        {"other values", whole, {kA, ObjectId(QByteArray(12, '\0')), kB}},
        {"truncated", whole.left(whole.size() - 3), {}},
        {"not an archive", "<plist/>", {}},
        {"empty", "", {}},
        {"not an array", archivedData(QCborValue(7)), {}},
    };
    for (const auto& [name, file, selected] : rows) {
        SCOPED_TRACE(name);
        ASSERT_TRUE(replaceFile(path(), file));
        EXPECT_EQ(makeChannels().selected(), selected);
    }
}

TEST_F(TVChannelsTest, TheCopyTakesThePlaceOfADamagedFile) {
    keyValueStore.setValue(u"SelectedChannels"_s, QCborArray{kB.data(), kA.data()});
    EXPECT_TRUE(makeChannels().selected().empty()) << "no file was ever written";
    ASSERT_TRUE(replaceFile(path(), archivedData(QCborArray{})));
    EXPECT_TRUE(makeChannels().selected().empty()) << "the user selected nothing";

    for (int round = 1; round <= 5; ++round) {
        ASSERT_TRUE(replaceFile(path(), QByteArray::number(round)));
        EXPECT_EQ(makeChannels().selected(), (std::vector{kB, kA}));
        EXPECT_EQ(fileContent(path() + u".damaged-1"_s, 100), QByteArray::number(round));
        EXPECT_EQ(fileContent(path(), 100), archivedData(QCborArray{kB.data(), kA.data()}));
    }
    EXPECT_EQ(fileContent(path() + u".damaged-3"_s, 100), "3");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 4) << "the older ones are deleted";

    ASSERT_TRUE(QFile::remove(path()) && QDir().mkpath(path() + u"/inside"_s));
    EXPECT_EQ(makeChannels().selected(), (std::vector{kB, kA})) << "a folder in the way";
    EXPECT_EQ(fileContent(path(), 100), archivedData(QCborArray{kB.data(), kA.data()}));
}

TEST_F(TVChannelsTest, AReadOnlyProfileKeepsChangesInMemory) {
    keyValueStore.setValue(u"SelectedChannels"_s, QCborArray{kB.data()});
    ASSERT_TRUE(replaceFile(path(), "damaged"));
    folders.writable = false;
    TVChannels channels = makeChannels();
    EXPECT_EQ(channels.selected(), std::vector{kB});
    channels.setSelected({kA});
    EXPECT_EQ(channels.selected(), std::vector{kA});
    EXPECT_TRUE(channels.finishWriting());
    EXPECT_EQ(fileContent(path(), 100), "damaged");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 1);
    EXPECT_EQ(keyValueStore.writeCount(), 1);
}

TEST_F(TVChannelsTest, RecordsFollowTheSelection) {
    TVChannels channels = makeChannels();
    channels.setSelected({kA, kB, kC, kUnknown});
    const std::shared_ptr<TVChannel> a = channels.channelWithChannelId(kA);
    ASSERT_TRUE(a);
    EXPECT_FALSE(channels.channelWithChannelId(kUnknown));

    channels.setSelected({kB, kA});
    EXPECT_EQ(channels.channelWithChannelId(kA), a);
    channels.setSelected({kB});
    EXPECT_FALSE(channels.channelWithChannelId(kA));
    channels.setSelected({kB, kA});
    EXPECT_NE(channels.channelWithChannelId(kA), a);
    queues.runAll();

    EXPECT_TRUE(makeChannels().channelWithChannelId(kA)) << "before the first call of selected";
}

TEST_F(TVChannelsTest, RecordsFollowTheCatalogue) {
    TVChannels channels = makeChannels();
    channels.setSelected({kA, kB, kC});
    const std::shared_ptr<TVChannel> a = channels.channelWithChannelId(kA);
    a->setTimeLoaded(clock.now());
    EXPECT_FALSE(channels.channelWithChannelId(kC));

    catalogue.replace(listed({kA, kC}));
    EXPECT_EQ(channels.channelWithChannelId(kA), a) << "an unchanged channel keeps its record";
    EXPECT_TRUE(channels.channelWithChannelId(kC)) << "a channel that was selected before it was listed";
    EXPECT_FALSE(channels.channelWithChannelId(kB));
    EXPECT_EQ(channels.selected(), (std::vector{kA, kB, kC}));

    catalogue.replace(listed({kA}, u"Renamed"_s));
    EXPECT_EQ(channels.channelWithChannelId(kA)->title(), u"Renamed"_s);
    EXPECT_EQ(channels.channelWithChannelId(kA)->timeLoaded(), clock.now());
    queues.runAll();
    EXPECT_EQ(keyValueStore.writeCount(), 1) << "the selection has not changed";
}

TEST_F(TVChannelsTest, AChannelIsDueByItsAge) {
    TVChannel channel({kA, u"t"_s, u"cs"_s, u"Czech"_s, u"a"_s}, folders.caches);
    const Moment now = clock.now();
    EXPECT_TRUE(channel.reloadNeeded(now, 24h)) << "no file";

    const QString file = folders.caches + u'/' + listingsFileFromChannelIdentificator(kA);
    ASSERT_TRUE(replaceFile(file, "list", now - 24h));
    EXPECT_FALSE(channel.reloadNeeded(now, 24h));
    EXPECT_TRUE(channel.reloadNeeded(now + 1s, 24h));
    EXPECT_TRUE(channel.reloadNeeded(now - 24h - 1s, 24h)) << "loaded in the future";
    channel.setLoading(true);
    EXPECT_FALSE(channel.reloadNeeded(now + 1s, 24h));
    channel.setLoading(false);

    ASSERT_TRUE(QFile::remove(file));
    EXPECT_FALSE(channel.reloadNeeded(now, 24h)) << "the date is cached";
    ASSERT_TRUE(replaceFile(file, "list", now));
    channel.requireReload();
    EXPECT_TRUE(QFile::exists(file));
    EXPECT_TRUE(channel.reloadNeeded(now, 24h)) << "the file date is ignored";
    EXPECT_FALSE(channel.timeLoaded());
    channel.setTimeLoaded(now);
    EXPECT_FALSE(channel.reloadNeeded(now, 24h));
    channel.unload();
    EXPECT_FALSE(QFile::exists(file));
    EXPECT_TRUE(channel.reloadNeeded(now, 24h));
    channel.setTimeLoaded(now - 23h);
    EXPECT_FALSE(channel.reloadNeeded(now, 24h));
}

TEST(TVChannelsThreadsTest, ReadersAndWritersOnSeveralThreads) {
    const QTemporaryDir folder;
    const Folders folders{folder.path(), folder.path(), {}, {}, {}, {}};
    MemoryKeyValueStore keyValueStore;
    ThreadedQueues threads([] {});
    Catalogue catalogue;
    catalogue.replace(listed({kA, kB}));
    {
        TVChannels channels(folders, keyValueStore, threads, catalogue);
        std::atomic<bool> ended = false;
        std::thread reader([&] {
            while (!ended) {
                const std::vector<ObjectId> selected = channels.selected();
                EXPECT_TRUE(selected.empty() || selected.front() == kA);
                if (const auto channel = channels.channelWithChannelId(kB)) {
                    channel->setLoading(!channel->loading());
                }
            }
        });
        for (int round = 0; round < 200; ++round) {
            channels.setSelected({kA});
            channels.setSelected({kA, kB});
        }
        ended = true;
        reader.join();
    }
    threads.shutDown();
    TVChannels channels(folders, keyValueStore, threads, catalogue);
    EXPECT_EQ(channels.selected(), (std::vector{kA, kB}));
    channels.setSelected({kB});
    EXPECT_TRUE(channels.finishWriting()) << "even after the queues have shut down";
}

} // namespace
} // namespace guide
